#pragma once

#include <QDate>
#include <QString>
#include <vector>

namespace sarne {

class UserFile;

/// Keeps that a recipe was cooked on a day, once a day. True when it is on the disk.
bool keepCooked(UserFile& file, int recipe, const QString& name, QDate day, double portions);
/// The days on which it was, the last one first.
std::vector<QDate> cookedDays(UserFile& file, int recipe);

/// A recipe, by the name it had, and a day on which it was cooked.
struct CookedDay {
    int recipe = 0;
    QString name;
    QDate day;
};
/// All of them.
std::vector<CookedDay> allCookedDays(UserFile& file);

/// \a day as it is written: "1. 11. 2026".
QString dayText(QDate day);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
