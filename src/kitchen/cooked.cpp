#include "kitchen/cooked.h"

#include <algorithm>

#include "db/userfile.h"

namespace sarne {
namespace {

const QString kTable = QStringLiteral("Uvareno");
constexpr int kDays = 100'000;  // more than a Julian day's last digits ever tell apart in a lifetime

}  // namespace

bool keepCooked(UserFile& file, int recipe, const QString& name, QDate day, double portions) {
    // The key is the recipe and the day, so that pressing twice keeps one.
    const qint64 key = qint64(recipe) * kDays + day.toJulianDay() % kDays;
    return file.store(kTable, QStringLiteral("ID"),
                      {{QStringLiteral("ID"), key},
                       {QStringLiteral("Recept"), recipe},
                       {QStringLiteral("Nazev"), name},
                       {QStringLiteral("Den"), day.toString(Qt::ISODate)},
                       {QStringLiteral("Porce"), portions}});
}

std::vector<CookedDay> allCookedDays(UserFile& file) {
    std::vector<CookedDay> days;
    for (Recordset rows = file.forReading().OpenTable(kTable); !rows.AtEnd(); rows.MoveNext()) {
        const QDate day = QDate::fromString(rows.field(QStringLiteral("Den")).toString(), Qt::ISODate);
        if (day.isValid())
            days.push_back({rows.field(QStringLiteral("Recept")).toInt(),
                            rows.field(QStringLiteral("Nazev")).toString(), day});
    }
    return days;
}

std::vector<QDate> cookedDays(UserFile& file, int recipe) {
    std::vector<QDate> days;
    for (const CookedDay& one : allCookedDays(file))
        if (one.recipe == recipe) days.push_back(one.day);
    std::sort(days.begin(), days.end(), std::greater<>());
    return days;
}

QString dayText(QDate day) {
    return QStringLiteral("%1. %2. %3").arg(day.day()).arg(day.month()).arg(day.year());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
