#include <gtest/gtest.h>

#include "screens/browse/photogrid.h"
#include "support/kept.h"

namespace sarne {
namespace {

TEST(PhotoGrid, SevenInARowAndGroupsThatOverlap) {
    QRegion taken;
    for (int cell = 1; cell <= kGridCells; ++cell) {
        const QRect place = gridCellRect(cell);
        EXPECT_FALSE(taken.intersects(place)) << cell;
        taken += place;
    }
    EXPECT_TRUE(QRect(0, 0, 12000, 9000).contains(taken.boundingRect()));
    EXPECT_EQ(gridCellRect(8).x(), gridCellRect(50).x());
    QStringList groups;
    for (int group = 0; group < 5; ++group) {
        groups << QString();
        for (const int id : gridGroupIds(group)) groups.last() += u"%1 "_s.arg(id);
    }
    test::expectText(u"skupiny"_s, groups.join(u'\n'));
}

/// Right, left, up and down, a cell that is chosen ("44") and a group ("g3"); which cell is chosen after
/// each.
TEST(PhotoGrid, KeysMoveOverTheLivingCells) {
    test::expectCases(u"mrizka"_s, [](const QString& moves) {
        PhotoGrid grid;
        QStringList cells;
        for (const QString& move : moves.split(u' ')) {
            const int right = (move == u"right") - (move == u"left"),
                      down = (move == u"down") - (move == u"up");
            bool moved = true;
            if (move.startsWith(u'g'))
                grid.setGroup(move.mid(1).toInt());
            else if (right || down)
                moved = grid.move(right, down);
            else
                grid.lock(move.toInt());
            cells << QString::number(grid.cell()) + (moved ? QString() : u"!"_s);
        }
        return cells.join(u' ');
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
