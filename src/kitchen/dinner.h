// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

#include "kitchen/timeplan.h"

namespace sarne {

class Database;
class UserFile;

/// The courses of a menu, in the order in which they come to the table.
enum class Course { Starter, Soup, Main };
inline constexpr int kCourses = 3;
QString courseName(Course course);

/// A recipe that a menu can be made of.
struct DinnerRecipe {
    int id = 0;
    QString name;
    std::array<bool, kCourses> suits{};
    int minutes = 0;
    int months = 0;         ///< bit n - 1 for month n; 0 where it is not known
    QStringList occasions;  ///< feasts and times of year it is for
};
/// Those of a book; nothing where it does not know what course a recipe is.
std::vector<DinnerRecipe> readDinnerRecipes(Database& book);

/// A menu for a day or a feast. A course may stay empty.
struct Dinner {
    QString occasion;  ///< "Vánoce"; empty: any
    std::array<int, kCourses> recipes{};
    double portions = 4;
    int served = 18 * 60;  ///< minutes from midnight: when the first course is on the table

    bool isEmpty() const { return recipes == std::array<int, kCourses>{}; }
    bool operator==(const Dinner&) const = default;
};

/// The recipes for a course of \a dinner: what was chosen first, then those for its occasion, then those
/// whose fish is in season in \a month, then the others.
std::vector<DinnerRecipe> candidates(const std::vector<DinnerRecipe>& all, Course course,
                                     const Dinner& dinner, int month);
/// The occasions that any of \a all is for, in the order of the year.
QStringList dinnerOccasions(const std::vector<DinnerRecipe>& all);

/// When a course is on the table: the first one at the hour, each other that much later.
inline constexpr int kBetweenCourses = 20;  // minutes
int servedAt(const Dinner& dinner, Course course);
/// "18", "18.30", "18:30", "1830" as minutes from midnight; nothing for what is no time of day.
std::optional<int> timeOfDay(const QString& typed);

/// What is to be done for a menu, and when.
std::vector<PlanLine> dinnerPlan(Database& book, const Dinner& dinner);
/// Menu and plan as text for paper.
QString dinnerText(Database& book, const Dinner& dinner, const QLocale& locale);

/// The menu that was made last; an empty one where there is none.
Dinner readDinner(UserFile& file);
bool storeDinner(UserFile& file, const Dinner& dinner);

}  // namespace sarne
