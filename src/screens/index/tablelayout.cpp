#include "screens/index/tablelayout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/unbreakable.h"
#include "forms/label.h"

namespace sarne {
namespace {

int width(const QString& text, const QFontMetricsF& metrics) {
    return static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));
}

int widestWord(const QString& text, const QFontMetricsF& metrics) {
    int widest = 0;
    for (const QString& word : unbroken(text).split(u' ')) widest = std::max(widest, width(word, metrics));
    return widest;
}

/// The widths with which a column's cells break no word, and with which they break no line.
struct Wish {
    int least = 0;
    int natural = 0;

    void add(const QString& text, const QFontMetricsF& metrics) {
        constexpr int kBoth = 2 * TableLayout::kPadding;
        least = std::max(least, widestWord(text, metrics) + kBoth);
        natural = std::max(natural, width(text, metrics) + kBoth);
    }
};

std::vector<Wish> wishes(const LookupTable& table, const TextFont& font, const TextFont& headFont) {
    const QFontMetricsF plain(font.toQFont()), bold(headFont.toQFont());
    std::vector<Wish> all(static_cast<size_t>(table.columns.size()));
    for (size_t column = 0; column < all.size(); ++column) {
        const auto index = static_cast<qsizetype>(column);
        all[column].add(table.columns[index], bold);
        // The first cell may be a link, which is bold.
        for (const LookupRow& row : table.rows) all[column].add(row.cells[index], column == 0 ? bold : plain);
    }
    return all;
}

/// Gives every column at least \a have of it and shares out \a spare by \a share.
std::vector<int> shareOut(std::vector<int> have, const std::vector<int>& share, int spare) {
    const int sum = std::max(1, std::accumulate(share.begin(), share.end(), 0));
    for (size_t i = 0; i < have.size(); ++i) have[i] += static_cast<int>(qint64(spare) * share[i] / sum);
    return have;
}

std::vector<int> columnWidths(const std::vector<Wish>& wishes, int width, LookupTable::Rows rows) {
    std::vector<int> least, natural, missing;
    for (const Wish& wish : wishes) {
        least.push_back(wish.least);
        natural.push_back(wish.natural);
        missing.push_back(wish.natural - wish.least);
    }
    const int leastSum = std::accumulate(least.begin(), least.end(), 0);
    const int naturalSum = std::accumulate(natural.begin(), natural.end(), 0);
    std::vector<int> widths;
    if (naturalSum <= width) {
        widths = shareOut(natural, natural, width - naturalSum);
    } else if (rows == LookupTable::Rows::Names) {
        // The last column gives way, as long as it keeps the larger part.
        const int others = naturalSum - natural.back(), leastOthers = leastSum - least.back();
        const int room = std::max(leastOthers, width * 2 / 5);
        least.back() = missing.back() = 0;
        widths = others <= room ? natural : shareOut(least, missing, room - leastOthers);
    } else if (leastSum <= width) {
        widths = shareOut(least, missing, width - leastSum);
    } else {
        widths = shareOut(std::vector<int>(least.size()), least, width);
    }
    const int others = std::accumulate(widths.begin(), widths.end() - 1, 0);
    widths.back() = std::max(width / 4, width - others);
    return widths;
}

int rowHeight(const QStringList& cells, const std::vector<int>& widths, const TextFont& font,
              const TextFont& firstFont) {
    int height = 0;
    for (size_t column = 0; column < widths.size(); ++column) {
        const int room = std::max(1, widths[column] - 2 * TableLayout::kPadding);
        const TextFont& own = column == 0 ? firstFont : font;
        height = std::max(height, Label::measure(cells[static_cast<qsizetype>(column)], own, room).height());
    }
    return height + 2 * TableLayout::kLeading;
}

}  // namespace

TableLayout TableLayout::of(const LookupTable& table, int width, const TextFont& font,
                            const TextFont& headFont) {
    TableLayout layout;
    if (table.columns.isEmpty()) return layout;
    layout.widths = columnWidths(wishes(table, font, headFont), width, table.layout);
    for (int left = 0; const int column : layout.widths) {
        layout.lefts.push_back(left);
        left += column;
    }
    layout.headHeight = rowHeight(table.columns, layout.widths, headFont, headFont);
    for (const LookupRow& row : table.rows)
        layout.heights.push_back(rowHeight(row.cells, layout.widths, font, headFont));
    return layout;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
