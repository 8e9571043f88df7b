#include "typography.h"

#include <QRegularExpression>

namespace sarne::disc {
namespace {

struct Rule {
    const char16_t* pattern;
    const char16_t* complaint;
};

constexpr Rule kRules[] = {
    {u"[\"\u201d']", u"rovné nebo cizí uvozovky; české jsou \u201e a \u201c"},
    {u"\\.\\.\\.", u"tři tečky; výpustka je jeden znak"},
    {u"(^|\\s)-(\\s|$)", u"spojovník mezi mezerami; pomlčka je \u2013"},
    {u"\\d-\\d", u"spojovník mezi čísly; pomlčka je \u2013"},
    {u"\\d\\.\\d", u"desetinná tečka; čeština má čárku"},
    {u"\\d°", u"před značkou stupně chybí mezera"},
    {u"°(?!C)", u"za značkou stupně chybí C"},
    {u"\\d stup(eň|ně|ňů)", u"stupně slovem; píše se °C"},
    {u"--|\u2014", u"cizí pomlčka; česká je \u2013"},
    {u"[\u2018\u2019\u201a\u00ab\u00bb`]", u"cizí uvozovky nebo apostrof"},
    {u"\\d%", u"před procentem chybí mezera"},
    {u"\\d/\\d", u"zlomek s lomítkem; napište desetinné číslo"},
    {u"\\S  +\\S", u"dvě mezery za sebou"},
    {u"\\s[,;:!?]", u"mezera před interpunkcí"},
    {u"[,;][^\\s\\d]", u"za interpunkcí chybí mezera"},
};

/// The rules' patterns in their order, compiled once.
const QList<QRegularExpression>& patterns() {
    static const QList<QRegularExpression> all = [] {
        QList<QRegularExpression> compiled;
        for (const Rule& rule : kRules) compiled << QRegularExpression(QString::fromUtf16(rule.pattern));
        return compiled;
    }();
    return all;
}

}  // namespace

void checkTypography(const QString& text, const Place& place, Problems& problems) {
    qsizetype at = 0;
    for (const Rule& rule : kRules) {
        const auto found = patterns()[at++].match(text);
        if (found.hasMatch())
            problems.error(place, QString::fromUtf16(rule.complaint) + QStringLiteral(": \"") +
                                      text.mid(qMax(0, found.capturedStart() - 12), 30).trimmed() + u'"');
    }
    if (text.count(QChar(0x201e)) != text.count(QChar(0x201c)))
        problems.error(place, QStringLiteral("uvozovky, které k sobě nepatří"));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
