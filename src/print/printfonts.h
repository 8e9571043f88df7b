#pragma once

#include "richtext/surface.h"

/// The fonts of the printed page.
namespace sarne::printfonts {

/// Of all headings below the name.
inline constexpr QRgb kHeadingColor = 0xff963422;

inline TextFont header() {
    return {QStringLiteral("Times New Roman"), 8, false, true, false, 238};
}

inline TextFont name() {
    return {QStringLiteral("Arial"), 14, true, true, true, 238};
}

inline TextFont heading() {
    return {QStringLiteral("Arial"), 12, true, false, false, 238};
}

inline TextFont body() {
    return {};
}

}  // namespace sarne::printfonts

// SPDX-License-Identifier: GPL-3.0-or-later
