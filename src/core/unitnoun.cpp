#include "core/unitnoun.h"

#include <QString>

namespace sarne {

const UnitNoun* unitWritten(std::span<const UnitNoun> units, QStringView written) {
    for (const UnitNoun& unit : units)
        if (written == QString::fromUtf8(unit.written)) return &unit;
    return nullptr;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
