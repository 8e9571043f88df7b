#pragma once

#include <QString>
#include <optional>

namespace sarne::disc {

/// The months of a season, bit n - 1 for month n: all for "celoročně", whatever follows behind a comma;
/// "říjen–březen" goes over the turn of the year. Nothing for anything else.
std::optional<int> monthsOf(const QString& season);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
