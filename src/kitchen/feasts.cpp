// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/feasts.h"

#include "kitchen/bookwords.h"

namespace sarne {
namespace {

constexpr int kDecember = 12;

}  // namespace

/// The rule of the Gregorian calendar, in whole numbers.
QDate easterSunday(int year) {
    const int golden = year % 19, century = year / 100, rest = year % 100;
    const int moon = (19 * golden + century - century / 4 - (century - (century + 8) / 25 + 1) / 3 + 15) % 30;
    const int sunday = (32 + 2 * (century % 4) + 2 * (rest / 4) - moon - rest % 4) % 7;
    const int late = (golden + 11 * moon + 22 * sunday) / 451;
    const int days = moon + sunday - 7 * late + 114;
    return {year, days / 31, days % 31 + 1};
}

QStringList feastsOf(QDate day) {
    QStringList feasts;
    const QDate easter = easterSunday(day.year());
    // Good Friday may fall into the month before: one cooks for it, too.
    if (easter.month() == day.month() || easter.addDays(-2).month() == day.month()) feasts << book::kEaster;
    if (day.month() == kDecember) feasts << book::kChristmas << book::kNewYearsEve;
    return feasts;
}

QStringList occasionsOf(QDate day) {
    return feastsOf(day) << book::seasons()[day.month() % 12 / 3];
}

}  // namespace sarne
