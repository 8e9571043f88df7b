#include "core/spokentext.h"

#include <QLocale>
#include <QRegularExpression>

#include "core/czech.h"
#include "core/texts.h"
#include "core/unitnoun.h"

namespace sarne {
namespace {

constexpr UnitNoun kUnits[] = {
    {"kg", QT_TRANSLATE_NOOP("Texts", "kilogram"), QT_TRANSLATE_NOOP("Texts", "kilogramy"),
     QT_TRANSLATE_NOOP("Texts", "kilogramů"), QT_TRANSLATE_NOOP("Texts", "kilogramu")},
    {"g", QT_TRANSLATE_NOOP("Texts", "gram"), QT_TRANSLATE_NOOP("Texts", "gramy"),
     QT_TRANSLATE_NOOP("Texts", "gramů"), QT_TRANSLATE_NOOP("Texts", "gramu")},
    {"ml", QT_TRANSLATE_NOOP("Texts", "mililitr"), QT_TRANSLATE_NOOP("Texts", "mililitry"),
     QT_TRANSLATE_NOOP("Texts", "mililitrů"), QT_TRANSLATE_NOOP("Texts", "mililitru")},
    {"l", QT_TRANSLATE_NOOP("Texts", "litr"), QT_TRANSLATE_NOOP("Texts", "litry"),
     QT_TRANSLATE_NOOP("Texts", "litrů"), QT_TRANSLATE_NOOP("Texts", "litru")},
    {"cm", QT_TRANSLATE_NOOP("Texts", "centimetr"), QT_TRANSLATE_NOOP("Texts", "centimetry"),
     QT_TRANSLATE_NOOP("Texts", "centimetrů"), QT_TRANSLATE_NOOP("Texts", "centimetru")},
    {"min", QT_TRANSLATE_NOOP("Texts", "minuta"), QT_TRANSLATE_NOOP("Texts", "minuty"),
     QT_TRANSLATE_NOOP("Texts", "minut"), QT_TRANSLATE_NOOP("Texts", "minuty")},
    {"ks", QT_TRANSLATE_NOOP("Texts", "kus"), QT_TRANSLATE_NOOP("Texts", "kusy"),
     QT_TRANSLATE_NOOP("Texts", "kusů"), QT_TRANSLATE_NOOP("Texts", "kusu")},
    {"kcal", QT_TRANSLATE_NOOP("Texts", "kilokalorie"), QT_TRANSLATE_NOOP("Texts", "kilokalorie"),
     QT_TRANSLATE_NOOP("Texts", "kilokalorií"), QT_TRANSLATE_NOOP("Texts", "kilokalorie")},
    {"kJ", QT_TRANSLATE_NOOP("Texts", "kilojoule"), QT_TRANSLATE_NOOP("Texts", "kilojouly"),
     QT_TRANSLATE_NOOP("Texts", "kilojoulů"), QT_TRANSLATE_NOOP("Texts", "kilojoulu")},
    {"\u00b0C", QT_TRANSLATE_NOOP("Texts", "stupeň Celsia"), QT_TRANSLATE_NOOP("Texts", "stupně Celsia"),
     QT_TRANSLATE_NOOP("Texts", "stupňů Celsia"), QT_TRANSLATE_NOOP("Texts", "stupně Celsia")},
};

QString unitBehind(double number, const UnitNoun& unit) {
    return Noun{Texts::tr(unit.one), Texts::tr(unit.few), Texts::tr(unit.many), Texts::tr(unit.part)}.behind(
        number);
}

QString withUnitsInWords(const QString& text) {
    static const QRegularExpression measure(
        QStringLiteral("(\\d+(?:,\\d+)?)[ \u00a0](kg|g|ml|l|cm|min|ks|kcal|kJ|\u00b0C)(?!\\w)"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QLocale czech(QLocale::Czech);
    QString words;
    qsizetype done = 0;
    for (auto found = measure.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        words += text.mid(done, match.capturedStart(2) - done) +
                 unitBehind(czech.toDouble(match.captured(1)), *unitWritten(kUnits, match.capturedView(2)));
        done = match.capturedEnd();
    }
    return words + text.mid(done);
}

/// Ends each line that ends in a letter or digit, so that the next one is not read as its continuation.
QString withLinesEnded(const QString& text) {
    static const QRegularExpression end(QStringLiteral("([\\w)])[ ]*\n"),
                                        QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(end, QStringLiteral("\\1.\n"));
}

/// "sůl (g): 12" as "sůl: 12 g".
QString withUnitsBehind(QString text) {
    static const QRegularExpression before(QStringLiteral(" \\((kg|g|ml|l|ks)\\): ?([\\d,]+)"));
    return text.replace(before, QStringLiteral(": \\2 \\1"));
}

QString withStarsCounted(const QString& text) {
    static const QRegularExpression row(QStringLiteral("(★+)☆*"));
    const Noun stars{Texts::tr("hvězdička"), Texts::tr("hvězdičky"), Texts::tr("hvězdiček"),
                     Texts::tr("hvězdičky")};
    QString words = text;
    for (auto found = row.match(words); found.hasMatch(); found = row.match(words))
        words.replace(found.capturedStart(), found.capturedLength(),
                      counted(double(found.capturedLength(1)), stars, QLocale(QLocale::Czech)));
    return words;
}

}  // namespace

QString spokenText(const QString& text) {
    static const QRegularExpression range(QStringLiteral("(\\d)[–-](\\d)"));
    static const QRegularExpression onlyForTheEye(QStringLiteral("[•·▲▼▸▾@]"));
    static const QRegularExpression word(QStringLiteral("\\w"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    QString words = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    words.replace(QStringLiteral(" · "), QStringLiteral(", "));
    words = withStarsCounted(withUnitsBehind(words));
    words.replace(range, QStringLiteral("\\1 ") + Texts::tr("až") + QStringLiteral(" \\2"));
    words.remove(onlyForTheEye);
    if (!words.contains(word)) return {};
    return withLinesEnded(withUnitsInWords(words).trimmed());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
