#include "screens/recipe/ingredientcolumns.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr int kReserve = 400;  // twips that stay free below the last line of a column
constexpr int kGap = 240;      // twips between the columns

QStringList wrapped(const std::vector<QString>& lines, int width, const MeasureText& measure) {
    QStringList all;
    for (const QString& line : lines) {
        const bool indented = line.startsWith(u' ');
        all << wrapAtBlanks(line, width, measure, QString(indented ? 9 : 4, u' '));
    }
    return all;
}

/// How many lines begin more than the reserve above the bottom.
qsizetype linesInColumn(const ListArea& area) {
    const int room = area.height - kReserve;
    return std::max(1, (room + area.lineHeight - 1) / area.lineHeight);
}

}  // namespace

std::vector<PlacedLine> placeInColumns(const std::vector<QString>& lines, const ListArea& area,
                                       const MeasureText& measure) {
    qsizetype perColumn = linesInColumn(area);
    QStringList all = wrapped(lines, area.width, measure);
    if (all.size() > perColumn) {
        all = wrapped(lines, area.width / 2 - kGap, measure);
        perColumn = std::max(perColumn, (all.size() + 1) / 2);
    }
    std::vector<PlacedLine> placed;
    placed.reserve(size_t(all.size()));
    for (qsizetype i = 0; i < all.size(); ++i) {
        const int x = i < perColumn ? 0 : area.width / 2;
        placed.push_back({x, static_cast<int>(i % perColumn) * area.lineHeight, all[i]});
    }
    return placed;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
