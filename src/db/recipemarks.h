// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

namespace sarne {

class UserFile;

/// What the user has made of a recipe, known like a note by the recipe's number and name.
struct RecipeMark {
    int recipe = 0;
    QString name;
    int stars = 0;     ///< 1 to 5; 0: none given
    QDateTime opened;  ///< when it was looked at last; invalid: never
};

/// The stars that the user gives to recipes, and when each was looked at last.
class RecipeMarks {
  public:
    static constexpr int kMostStars = 5;

    /// Keeps in \a file, which outlives this object.
    explicit RecipeMarks(UserFile& file) : file_(file) {}

    int stars(int recipe, const QString& name);
    /// Gives \a stars, 0 to take them back; true when it is on the disk.
    bool setStars(int recipe, const QString& name, int stars);
    bool keepOpened(int recipe, const QString& name, const QDateTime& when);
    std::vector<RecipeMark> all();

  private:
    UserFile& file_;
};

}  // namespace sarne
