#include "core/rowpaging.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <map>

#include "support/kept.h"

namespace sarne {
namespace {

/// "10 25 10 in 30: scroll 1, move -1" are rows so high in a view; where they are after each step, "!" where
/// nothing moved, "?" where the selected one is not seen.
TEST(RowPaging, ShowsWholeRowsAndNoEmptyEndAndTheSelectionIsAlwaysSeen) {
    test::expectCases(u"strankovani"_s, [](const QString& text) {
        const QString rowsAndView = text.section(u": "_s, 0, 0);
        std::vector<int> heights;
        for (const QString& height : rowsAndView.section(u"in "_s, 0, 0).split(u' ', Qt::SkipEmptyParts))
            heights.insert(heights.end(), size_t(height.section(u'x', 1, 1).toInt() + 1),
                           height.section(u'x', 0, 0).toInt());
        RowPaging rows;
        rows.reset(heights, rowsAndView.section(u"in "_s, 1).toInt());
        QStringList all;
        for (const QString& step : text.section(u": "_s, 1).split(u", "_s)) {
            const QString word = step.section(u' ', 0, 0);
            const int by = step.section(u' ', 1).toInt();
            bool moved = true;
            if (word == u"scroll")
                rows.scrollBy(by);
            else if (word == u"page")
                rows.movePage(by);
            else
                moved = word == u"jump" ? rows.jumpTo(by) : rows.moveBy(by);
            const int at = rows.selected();
            all << u"%1-%2 %3%4%5"_s.arg(rows.top())
                       .arg(rows.end())
                       .arg(at)
                       .arg(moved ? u""_s : u"!"_s, at < 0 || rows.sees(at) ? u""_s : u"?"_s);
        }
        return all.join(u", "_s);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
