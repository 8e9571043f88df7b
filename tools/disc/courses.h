#pragma once

#include <QStringList>

namespace sarne::disc {

/// The photo grid's groups in their order, as courses: "polévka", "teplé", "studené", "slavnostní".
const QStringList& courses();

/// The courses that the grid shows \a recipe in.
QStringList gridCourses(int recipe);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
