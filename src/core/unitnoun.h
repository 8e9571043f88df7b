#pragma once

#include <QStringView>
#include <span>

namespace sarne {

/// A unit of measure as a recipe writes it, and its noun: behind 1, 2, 5 and 2,5.
struct UnitNoun {
    const char *written, *one, *few, *many, *part;
};
/// The one of \a units that is written so; null when it is none of them.
const UnitNoun* unitWritten(std::span<const UnitNoun> units, QStringView written);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
