#include <gtest/gtest.h>

#include <QPainter>
#include <set>

#include "screens/navigation/buttontable.h"
#include "screens/navigation/ornaments.h"
#include "screens/navigation/sweep.h"
#include "support/kept.h"

namespace sarne {
namespace {

TEST(ButtonTable, PositionsAreFixedAndAreasComeFromTheArt) {
    const auto table = buttonTable(
        u"# tlačítko vlevo nahoře šířka výška snímek\n0 9000 300 900 2000 1200 2100\n"
        "5 4000 5000 x 600 700 800\n6 1 2 0 4 5 6\n19 0 0 600 600 600 600\n99 1 1 1 1 1 1\nnic"_s);
    EXPECT_EQ(table[0].position, QPoint(9335, 370));
    EXPECT_EQ(table[0].hotArea, QRect(9000, 300, 900, 2000));
    EXPECT_EQ(table[0].frame, QSize(1200, 2100));
    EXPECT_EQ(table[5].hotArea.topLeft(), QPoint(4288, 5003)) << "a bad line leaves the button its own place";
    EXPECT_EQ(table[6].hotArea.topLeft(), QPoint(4874, 1320));
    EXPECT_EQ(table[18].position, QPoint(8736, 6721));
    EXPECT_FALSE(table[19].isShown());
    EXPECT_FALSE(table[20].isShown());
}

TEST(ButtonTable, ArrowsGoToTheNearestAndEveryButtonCanBeReached) {
    const auto table = buttonTable({});
    EXPECT_EQ(nearestButton(table, 5, Direction::Right), 8);
    EXPECT_EQ(nearestButton(table, 0, Direction::Up), 0) << "nothing further up";
    EXPECT_EQ(nearestButton(table, -5, Direction::Down), firstButton(table));
    std::set<int> reached{firstButton(table)}, before;
    while (before != reached) {
        before = reached;
        for (const int from : before) {
            for (const auto direction : {Direction::Left, Direction::Right, Direction::Up, Direction::Down})
                reached.insert(nearestButton(table, from, direction));
        }
    }
    EXPECT_EQ(reached.size(), 19u);
}

/// In a minute; steps count from 0.
TEST(Ornaments, MoveRarelyAndRestBetween) {
    Ornaments ornaments;
    const char* const names[] = {"steam", "cat", "candle"};
    QStringList moves;
    std::set<int> moving;
    for (int step = 0; step < 60'000 / Ornaments::kInterval; ++step, ornaments.step()) {
        for (int thing = 0; thing < Ornaments::kThings; ++thing) {
            const bool now = ornaments.phase(Ornaments::Thing(thing)) >= 0;
            if (now == moving.contains(thing)) continue;
            moves << u"%1 %2 %3"_s.arg(step).arg(QLatin1String(names[thing]), now ? u"begins"_s : u"rests"_s);
            now ? void(moving.insert(thing)) : void(moving.erase(thing));
        }
        EXPECT_EQ(ornaments.stepsUntilMove() == 0, !moving.empty()) << step;
    }
    test::expectText(u"ozdoby"_s, moves.join(u'\n'));
    ornaments.rest();
    ornaments.skip(ornaments.stepsUntilMove());
    EXPECT_GE(ornaments.phase(Ornaments::kCandle), 0) << "what was skipped was rest only";
}

TEST(Ornaments, EachIsPaintedWhileItMoves) {
    std::set<int> painted;
    Ornaments ornaments;
    for (int step = 0; step < 2000 && painted.size() < Ornaments::kThings; ++step, ornaments.step()) {
        std::vector<int> moving;
        for (int thing = 0; thing < Ornaments::kThings; ++thing)
            if (ornaments.phase(Ornaments::Thing(thing)) >= 0) moving.push_back(thing);
        if (moving.size() != 1) continue;
        QImage paper(800, 600, QImage::Format_RGB32);
        paper.fill(Qt::gray);
        const QImage before = paper;
        QPainter painter(&paper);
        painter.scale(1 / 15., 1 / 15.);
        painter.translate(6000, 0);  // the kitchen counts from its middle
        ornaments.paint(painter, [](QPainter& kitchen) { kitchen.fillRect(-6000, 0, 12000, 9000, Qt::red); });
        painter.end();
        if (paper != before) painted.insert(moving[0]);
    }
    EXPECT_EQ(painted.size(), std::size_t(Ornaments::kThings));
}

TEST(Sweep, EachThingGlowsUpOnceAndGoesOutAgain) {
    Sweep sweep;
    EXPECT_FALSE(sweep.isRunning());
    QStringList steps;
    for (sweep.start({4, 6, 0}); sweep.isRunning() && steps.size() < 1000; sweep.step()) {
        QString lit;
        for (const int thing : sweep.lit()) lit += u" %1: %2"_s.arg(thing).arg(sweep.glow(thing), 0, 'f', 2);
        steps << lit.trimmed();
    }
    test::expectText(u"svetlo"_s, steps.join(u'\n'));
    for (const int thing : {0, 4, 6, 9}) EXPECT_EQ(sweep.glow(thing), 0) << thing;
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
