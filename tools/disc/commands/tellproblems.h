#pragma once

#include "../problems.h"

namespace sarne::disc {

/// Where in the content below \a root a problem is: the line and, from 1 on, the column of what its text
/// quotes. A paragraph's place is its first line; the quoted words may stand in a later one.
struct ProblemSpot {
    Place place;
    int column = 1;
    /// The line itself; empty when the problem has none.
    QString line;
};
ProblemSpot spotOf(const QString& root, const Problem& problem);

/// What would be right, where the problem's own text does not say it already; else empty.
QString adviceFor(const QString& text);

/// Writes all problems for a person: file, line, column, what is wrong, what would be right, the line itself
/// with a mark. Errors come last, so that they are seen. Returns how many errors there are.
qsizetype tellProblems(const QString& root, const Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
