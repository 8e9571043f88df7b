// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What the book's own words say: those of the recipes' heads, and the sentences of their steps. They are
/// looked up and read, not shown, and so are not translated.
namespace sarne::book {

// Courses.
extern const QString kStarter, kCold, kSoup, kWarm, kFestive, kColdMain;
// Feasts.
extern const QString kEaster, kChristmas, kNewYearsEve;
/// The times of year, winter first.
const QStringList& seasons();
/// Feasts and times of year in the order of the year.
const QStringList& occasions();

inline constexpr int kNight = 10 * 60;  ///< minutes: what "overnight" means

/// Minutes that a sentence makes one wait; how long something keeps is none of them.
int waitOf(const QString& sentence);
/// Whether a sentence speaks of what was done before its step begins: fish that has been frozen.
bool tellsPast(const QString& sentence);
bool lightsOven(const QString& sentence);
bool bakes(const QString& text);
/// "200 °C"; nothing where none are named.
QString degreesIn(const QString& sentence);

// Of what a recipe wants to be done beforehand:
/// It is time to ripen when the dish is made.
bool ripens(const QString& ahead);
/// It is something that is made the day before.
bool isForDayBefore(const QString& ahead);
/// It is only for one of the ways to serve the dish.
bool isForOneWay(const QString& ahead);

}  // namespace sarne::book
