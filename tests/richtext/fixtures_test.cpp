// Documents as three editors save them, laid out under fixed metrics. To renew the dumps after a wanted
// change, run with SARNE_WRITE_DUMPS=1 and review what changed.
#include <gtest/gtest.h>

#include <QFile>

#include "richtext/layoutdump.h"

namespace sarne {
namespace {

QByteArray contents(const QString& name) {
    QFile file(QStringLiteral(SARNE_FIXTURES "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

void replace(const QString& name, const QString& text) {
    QFile file(QStringLiteral(SARNE_FIXTURES "/") + name);
    if (file.open(QIODevice::WriteOnly)) file.write(text.toUtf8());
}

class Fixtures : public testing::TestWithParam<const char*> {};

TEST_P(Fixtures, LookAsReviewed) {
    const QString name = QLatin1String(GetParam());
    const QString rtf = QString::fromUtf8(contents(name + u".rtf"_s));
    test::FixedMetrics metrics;
    const RtfLayout screen = RtfLayout::of(rtf, {0, 6000, 0}, metrics);
    const RtfLayout paper = RtfLayout::of(rtf, {0, 6000, 0}, metrics, LinkMarkers::Remove);
    const QString dump = u"screen\n"_s + test::dumped(screen) + u"paper\n"_s +
                         test::wordsOf(paper).replace(u'|', u'\n') + u'\n';
    const QString dumpName = name + u".dump"_s;
    if (qEnvironmentVariableIsSet("SARNE_WRITE_DUMPS")) replace(dumpName, dump);
    EXPECT_EQ(dump.toStdString(), contents(dumpName).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Editors, Fixtures, testing::Values("wordpad", "office", "writer"),
                         [](const auto& editor) { return std::string(editor.param); });

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
