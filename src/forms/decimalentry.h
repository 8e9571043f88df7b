#pragma once

namespace sarne {

class Edit;

/// Makes \a entry one for numbers: a comma typed there appears as the point that numbers are read with.
void takeDecimalComma(Edit& entry);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
