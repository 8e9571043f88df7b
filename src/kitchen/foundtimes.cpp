#include "kitchen/foundtimes.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "core/czech.h"
#include "core/texts.h"

namespace sarne {
namespace {

constexpr int kMinute = 60, kHour = 3600, kDay = 24 * kHour;

/// Numbers that a text spells out, by how their words begin.
struct NumberWord {
    const char* begins;
    double value;
};
constexpr NumberWord kNumberWords[] = {
    {QT_TRANSLATE_NOOP("Texts", "čtvrt"), 0.25},
    {QT_TRANSLATE_NOOP("Texts", "půl"), 0.5},
    {"jedn", 1},
    {"dv", 2},
    {QT_TRANSLATE_NOOP("Texts", "třičtvrt"), 0.75},
    {QT_TRANSLATE_NOOP("Texts", "tř"), 3},
    {QT_TRANSLATE_NOOP("Texts", "čtyř"), 4},
    {QT_TRANSLATE_NOOP("Texts", "pět"), 5},
    {QT_TRANSLATE_NOOP("Texts", "šest"), 6},
    {"sedm", 7},
    {"osm", 8},
    {QT_TRANSLATE_NOOP("Texts", "devět"), 9},
    {"deset", 10},
    {"patn", 15},
    {"dvac", 20},
    {QT_TRANSLATE_NOOP("Texts", "třic"), 30},
    {QT_TRANSLATE_NOOP("Texts", "čtyřic"), 40},
    {QT_TRANSLATE_NOOP("Texts", "padesát"), 50},
};

/// "dvě", "dvacet".
double numberOfWord(const QString& text) {
    // Longer beginnings first: "dvac" is no "dv".
    const NumberWord* best = nullptr;
    for (const NumberWord& word : kNumberWords) {
        const QString begins = QString::fromUtf8(word.begins);
        if (text.startsWith(begins, Qt::CaseInsensitive) &&
            (!best || begins.size() > QString::fromUtf8(best->begins).size()))
            best = &word;
    }
    return best ? best->value : 1;
}

/// "2", "1,5", "1/2", "1 a 1/2", "dvě", "dvacet pět".
double numberOf(const QString& text) {
    static const QRegularExpression mixed(QStringLiteral("^(?:(\\d+)(?: a)? )?(\\d+)/(\\d+)$"));
    if (const auto match = mixed.match(text); match.hasMatch())
        return match.captured(1).toDouble() +
               match.captured(2).toDouble() / std::max(1., match.captured(3).toDouble());
    QString digits = text;
    bool isNumber = false;
    const double value = digits.replace(u',', u'.').toDouble(&isNumber);
    if (isNumber) return value;
    double sum = 0;
    for (const QString& word : text.split(u' ')) sum += numberOfWord(word);
    return sum;
}

int unitSeconds(const QString& unit) {
    if (unit.startsWith(u"min")) return kMinute;
    if (unit.startsWith(u"hod")) return kHour;
    return unit.startsWith(u'd') ? kDay : 1;
}

const QRegularExpression& pattern() {
    static const QRegularExpression found(
        QStringLiteral(
            "(?<![\\p{L}\\d])"
            "(?:(?<from>\\d+(?:,\\d+)?)\\s?[–-]\\s?)?"
            "(?:(?<number>\\d+ a \\d/\\d|\\d+ \\d/\\d|\\d/\\d|\\d+(?:,\\d+)?|čtvrt|půl|jedn[aéuo]|dv[aě]|"
            "dvou|třičtvrtě|tři|tří|čtyři|čtyř|pěti?|šesti?|sedmi?|osmi?|devět|deseti?|patnácti?|"
            "(?:(?:dva|tři|čtyři)ceti?|padesáti?)(?: pěti?)?)"
            "(?<more> a půl)?\\s)?"
            "(?<unit>minut(?:ách|ami|[ayu])?|min\\b|hodin(?:ách|ami|[ayu])?|vteřin(?:[ayu])?|sekund(?:[ayu])?"
            "|dn[ůy]|dní|den)"
            "(?<half> a půl)?(?!\\p{L})"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return found;
}

/// Whether the words before a time say that it is none to wait for.
bool isNoWaiting(const QString& text, qsizetype at) {
    static const QRegularExpression before(
        QStringLiteral("(každ\\p{L}*|posledn\\p{L}*|po každ\\p{L}*|prvn\\p{L}*)\\s$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return before.match(text.left(at)).hasMatch();
}

/// A unit without a number is one only in the cases in which one waits: "minutu", "hodinu", "den" is a word.
bool standsAlone(const QString& unit) {
    return unit == u"minutu" || unit == u"hodinu";
}

}  // namespace

std::vector<FoundTime> findTimes(const QString& original) {
    QString text = original;
    text.replace(QChar(QChar::Nbsp), u' ');
    std::vector<FoundTime> times;
    for (auto all = pattern().globalMatch(text); all.hasNext();) {
        const auto match = all.next();
        const QString unit = match.captured(QStringLiteral("unit")).toLower();
        const QString number = match.captured(QStringLiteral("number"));
        if ((number.isEmpty() && !standsAlone(unit)) || isNoWaiting(text, match.capturedStart())) continue;
        const bool isHalfMore =
            !(match.captured(QStringLiteral("more")) + match.captured(QStringLiteral("half"))).isEmpty();
        const double extra = isHalfMore ? 0.5 : 0;
        const double longest = (number.isEmpty() ? 1 : numberOf(number)) + extra;
        const QString from = match.captured(QStringLiteral("from"));
        const double shortest = from.isEmpty() ? longest : numberOf(from);
        const int size = unitSeconds(unit);
        const auto seconds = [size](double count) { return static_cast<int>(std::lround(count * size)); };
        if (longest > 0)
            times.push_back(
                {match.capturedStart(), match.capturedLength(), seconds(shortest), seconds(longest)});
    }
    return times;
}

QString clockText(qint64 milliseconds) {
    const qint64 seconds = (std::max<qint64>(0, milliseconds) + 999) / 1000;
    const auto two = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString rest = two(seconds % kMinute);
    if (seconds < kHour) return QString::number(seconds / kMinute) + u':' + rest;
    return QString::number(seconds / kHour) + u':' + two(seconds % kHour / kMinute) + u':' + rest;
}

QString durationText(int seconds) {
    const Noun hours{Texts::tr("hodina"), Texts::tr("hodiny"), Texts::tr("hodin"), Texts::tr("hodiny")};
    const Noun minutes{Texts::tr("minuta"), Texts::tr("minuty"), Texts::tr("minut"), Texts::tr("minuty")};
    const Noun small{Texts::tr("vteřina"), Texts::tr("vteřiny"), Texts::tr("vteřin"), Texts::tr("vteřiny")};
    QStringList parts;
    const auto add = [&parts](int number, const Noun& noun) {
        if (number > 0) parts << counted(number, noun, QLocale::c());
    };
    add(seconds / kHour, hours);
    add(seconds % kHour / kMinute, minutes);
    add(seconds % kMinute, small);
    return parts.join(u' ');
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
