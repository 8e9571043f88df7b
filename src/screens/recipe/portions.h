#pragma once

#include <QString>

#include "core/quantities.h"
#include "db/ingredients.h"

namespace sarne {

/// For how many portions a recipe is shown: one of the cutlery pictures, which are named by their number.
class Portions {
  public:
    /// The picture for any number, which the user enters.
    static constexpr int kAnyNumber = 10;

    /// A recipe whose amounts are given for \a base portions. It starts with that number: on its own picture
    /// where it has one, otherwise as the any number. A base beyond 1 to 255 counts as 0.
    explicit Portions(int base = 0);

    int base() const { return base_; }
    int choice() const { return choice_; }
    /// Whether choosing picture \a index asks for a new list. The any-number picture always does.
    bool changes(int index) const { return index != choice_ || index == kAnyNumber; }
    void choose(int index) { choice_ = index; }
    /// Keeps \a number, as text, for the any-number picture.
    void setCustom(double number);
    const QString& customText() const { return custom_; }

    /// The number of portions on the screen.
    double number() const;
    Quantities quantities(const QLocale& locale) const { return {number(), base_, locale}; }

  private:
    int base_;
    int choice_;
    QString custom_;
};

/// The places that the keyboard steps over in the list of ingredients: the cutlery pictures by their numbers
/// and, last, the toggle between the unit systems.
class PanelPosition {
  public:
    static constexpr int kToggle = 12;

    int value() const { return value_; }
    void reset() { value_ = 0; }
    void set(int position) { value_ = position; }
    /// Steps forwards (1) or backwards (-1), round the ends.
    int step(int direction);
    /// What the picture at \a position does, for those who do not see it.
    static QString hint(int position, UnitSystem units);

  private:
    int value_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
