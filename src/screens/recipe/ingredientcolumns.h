#pragma once

#include <QStringList>
#include <vector>

#include "richtext/wordwrap.h"

namespace sarne {

/// The surface that a list of ingredients is written on, in twips.
struct ListArea {
    int width = 0;
    int height = 0;
    int lineHeight = 0;
};

/// A line of text and the place of its upper left corner, in twips.
struct PlacedLine {
    int x = 0;
    int y = 0;
    QString text;

    bool operator==(const PlacedLine&) const = default;
};

/// Puts \a lines below each other from the top of \a area; those that come within 400 twips of its bottom go
/// into a second column, which begins at half the width. A list too long for two columns makes both longer.
/// A line wider than its column goes on in the next one, indented. \a measure gives a text's width.
std::vector<PlacedLine> placeInColumns(const std::vector<QString>& lines, const ListArea& area,
                                       const MeasureText& measure);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
