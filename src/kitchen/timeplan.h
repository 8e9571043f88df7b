// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "kitchen/steps.h"

namespace sarne {

/// A dish that is to be on the table at its time.
struct PlannedDish {
    QString name;
    int minutes = 0;  ///< from the first touch to the table, waiting overnight and the like apart
    QString ahead;    ///< what the recipe says is to be done before: "12 hodin v chladu"
    std::vector<CookingStep> steps;
    int served = 0;  ///< minutes from midnight of the day
};

/// Something to be done at its time.
struct PlanLine {
    int at = 0;  ///< minutes from midnight of the day of serving; negative on the days before
    QString what, dish;
    bool serves = false;  ///< the dish is on the table now
};

/// What is to be done for \a dishes and when, in the order of time, reckoned backwards from when each is
/// served: the times that a step names are waited for, what is left of the dish's minutes is shared by how
/// much the steps say. Steps that would begin at night because of a long wait begin in the evening before.
/// The oven is lit in time.
std::vector<PlanLine> timePlan(const std::vector<PlannedDish>& dishes);

/// On which day a line is: "den předem", "3 dny předem"; nothing for the day itself.
QString planDayText(int at);
/// "17.10".
QString planClockText(int at);
/// "17.10", "den předem v 20.30".
QString planTimeText(int at);

}  // namespace sarne
