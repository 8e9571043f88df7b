#include "support/kept.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/files.h"

namespace sarne::test {

const char* const kFolder = SARNE_TEST_FOLDER;

namespace {

QString fileOf(const QString& name) {
    return u"%1/golden/%2.txt"_s.arg(QString::fromUtf8(kFolder), name);
}

const std::pair<QChar, QChar> kSigns[] = {{u'\n', u'¶'},     {u'\r', u'␍'}, {u'\t', u'⇥'},
                                          {u'\u00a0', u'␣'}, {u'\0', u'␀'}, {u'\ufeff', u'␢'}};

QString written(QString text) {
    for (const auto& [meant, sign] : kSigns) text.replace(meant, sign);
    if (text.isEmpty()) return u"∅"_s;
    if (text.startsWith(u' ')) text[0] = u'␠';
    if (text.endsWith(u' ')) text.back() = u'␠';
    return text;
}

}  // namespace

QString meant(QString text) {
    for (const auto& [meant, sign] : kSigns) text.replace(sign, meant);
    return text == u"∅" ? QString() : text.replace(u'␠', u' ');
}

QString keptText(const QString& name) {
    return QString::fromUtf8(bytesOf(fileOf(name)));
}

void expectText(const QString& name, const QString& text) {
    const QString file = fileOf(name);
    if (qEnvironmentVariableIsSet("SARNE_RENEW")) {
        ASSERT_TRUE(write(file, text.toUtf8() + '\n'));
    }
    const QStringList kept = keptText(name).split(u'\n'), now = (text + u'\n').split(u'\n');
    for (qsizetype i = 0; i < std::max(kept.size(), now.size()); ++i)
        EXPECT_EQ(now.value(i), kept.value(i)) << name.toStdString() << ".txt, line " << i + 1;
}

void expectCases(const QString& name, const std::function<QString(const QString&)>& of) {
    const QString parts = u" ⇒ "_s;
    const QString kept = keptText(name);
    EXPECT_TRUE(kept.contains(parts)) << "no cases in " << name.toStdString();
    QStringList lines = kept.split(u'\n', Qt::SkipEmptyParts);
    for (QString& line : lines)
        if (!line.startsWith(u';'))
            line = line.section(parts, 0, 0) + parts + written(of(meant(line.section(parts, 0, 0))));
    expectText(name, lines.join(u'\n'));
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
