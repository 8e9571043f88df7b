#pragma once

#include <QChar>
#include <array>

namespace sarne {

/// The characters of one eight-bit code page by their codes.
using CharsetTable = std::array<QChar, 256>;

/// The code page that a font's \a charset number stands for (238: windows-1250). A number that is not known
/// reads as windows-1252. The table lives as long as the program.
const CharsetTable& charsetTable(int charset);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
