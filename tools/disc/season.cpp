#include "season.h"

#include <QStringList>

namespace sarne::disc {
namespace {

constexpr int kMonths = 12;

int monthOf(const QString& name) {
    static const QStringList names{
        QStringLiteral("leden"),    QStringLiteral("únor"),     QStringLiteral("březen"),
        QStringLiteral("duben"),    QStringLiteral("květen"),   QStringLiteral("červen"),
        QStringLiteral("červenec"), QStringLiteral("srpen"),    QStringLiteral("září"),
        QStringLiteral("říjen"),    QStringLiteral("listopad"), QStringLiteral("prosinec")};
    return static_cast<int>(names.indexOf(name.trimmed()));
}

}  // namespace

std::optional<int> monthsOf(const QString& season) {
    const QString months = season.section(u',', 0, 0).trimmed();
    if (months == QStringLiteral("celoročně")) return (1 << kMonths) - 1;
    const int first = monthOf(months.section(u'–', 0, 0));
    const int last = months.contains(u'–') ? monthOf(months.section(u'–', 1)) : first;
    if (first < 0 || last < 0) return std::nullopt;
    int bits = 1 << last;
    for (int month = first; month != last; month = (month + 1) % kMonths) bits |= 1 << month;
    return bits;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
