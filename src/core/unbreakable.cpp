// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/unbreakable.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace sarne {
namespace {

bool isLoneLetter(QStringView text, qsizetype at) {
    const bool lone = at == 0 || !text[at - 1].isLetterOrNumber();
    return lone && QStringView(u"ksvzouaiKSVZOUAI").contains(text[at]);
}

bool endsNumber(QStringView text, qsizetype at) {
    return text[at].isDigit() || (text[at] == u'.' && at > 0 && text[at - 1].isDigit());
}

/// A day and its month, or two numbers of a fraction: what follows the blank is a stroke and more, or what
/// stands before it is the stroke.
bool joinsByStroke(QStringView text, qsizetype blank) {
    const auto isStroke = [&](qsizetype at) { return at >= 0 && at < text.size() && text[at] == u'/'; };
    if (isStroke(blank + 1)) return endsNumber(text, blank - 1);
    return isStroke(blank - 1) && text[blank + 1].isDigit();
}

/// Whether the letters from \a begin up to \a end are one or two digits: a day, a month.
bool isShortNumber(QStringView text, qsizetype begin, qsizetype end) {
    const auto isDigit = [](QChar one) { return one.isDigit(); };
    const QStringView number = text.sliced(begin, end - begin);
    return !number.isEmpty() && number.size() <= 2 && std::all_of(number.begin(), number.end(), isDigit);
}

/// A day and its month in numbers: "15. 4.".
bool isDayAndMonth(QStringView text, qsizetype blank) {
    const qsizetype point = blank - 1, next = text.indexOf(u'.', blank);
    if (text[point] != u'.' || next < 0) return false;
    qsizetype day = point;
    while (day > 0 && text[day - 1].isDigit()) --day;
    return isShortNumber(text, day, point) && isShortNumber(text, blank + 1, next);
}

}  // namespace

bool holdsTogether(QStringView text, qsizetype blank) {
    if (blank < 1 || blank + 1 >= text.size()) return false;
    const QChar next = text[blank + 1];
    // A link phrase or another font takes the whole word in which it begins, so nothing is joined to its
    // front.
    if (isLoneLetter(text, blank - 1)) return !next.isSpace() && !QStringView(u"[*_").contains(next);
    if (joinsByStroke(text, blank) || isDayAndMonth(text, blank)) return true;
    return endsNumber(text, blank - 1) && (next.isLetter() || next == u'°' || next == u'%');
}

QString withUnbreakableBlanks(QString text) {
    for (qsizetype at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at + 1))
        if (holdsTogether(text, at)) text[at] = QChar::Nbsp;
    return text;
}

QString unbroken(QString text) {
    static const QRegularExpression dash(QStringLiteral("(?<=\\d)–(?=\\d)|–(?=\u00a0)"));
    return withUnbreakableBlanks(std::move(text)).replace(dash, QStringLiteral("–\u200d"));
}

}  // namespace sarne
