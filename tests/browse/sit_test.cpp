#include "browse/browsefixture.h"
#include "forms/button.h"
#include "forms/label.h"
#include "screens/browse/frmfotobig.h"
#include "screens/browse/frmsit.h"

namespace sarne {
namespace {

using Ids = std::vector<std::int16_t>;

TEST(PhotoGrid, SevenInARowAndGroupsThatOverlap) {
    QRegion taken;
    for (int cell = 1; cell <= kGridCells; ++cell) {
        const QRect place = gridCellRect(cell);
        EXPECT_FALSE(taken.intersects(place)) << cell;
        taken += place;
    }
    EXPECT_TRUE(QRect(0, 0, 12000, 9000).contains(taken.boundingRect()));
    EXPECT_EQ(gridCellRect(8).x(), gridCellRect(50).x());
    const size_t sizes[] = {5, 29, 22, 4, 0};
    for (int group = 0; group < 5; ++group) EXPECT_EQ(gridGroupIds(group).size(), sizes[group]);
    for (const int group : {1, 2}) EXPECT_EQ(std::ranges::count(gridGroupIds(group), 13), 1);
    for (int cell = 1; cell <= kGridCells; ++cell) {
        int groups = 0;
        for (int group = 0; group < kGridGroups; ++group)
            groups += static_cast<int>(std::ranges::count(gridGroupIds(group), cell));
        EXPECT_GE(groups, 1) << "recipe " << cell << " is in no group";
    }
}

TEST(PhotoGrid, KeysMoveOverTheLivingCells) {
    PhotoGrid grid;
    const auto go = [&](std::initializer_list<std::pair<int, int>> moves) {
        for (const auto& [right, down] : moves) grid.move(right, down);
        return grid.cell();
    };
    EXPECT_EQ(go({{1, 0}}), 1) << "without a choice the first";
    EXPECT_EQ(go({{0, 1}, {1, 0}}), 9);
    EXPECT_FALSE(go({{0, -1}}) != 2 || grid.move(0, -1)) << "no row above the first";
    EXPECT_EQ(go({{-1, 0}, {-1, 0}}), 1);
    grid.lock(44);
    EXPECT_EQ(go({{0, 1}}), 50) << "the nearest cell of the short last row";
    EXPECT_FALSE(grid.move(1, 0));
    grid.setGroup(3);
    EXPECT_EQ(grid.cell(), 50);
    EXPECT_EQ(go({{-1, 0}}), 46);
    EXPECT_EQ(go({{0, -1}}), 35);
    EXPECT_EQ(go({{0, -1}}), 9);
    grid.setGroup(0);
    EXPECT_EQ(grid.cell(), 0) << "a choice outside the group is given up";
}

class SitTest : public BrowseTest {
  protected:
    SitTest() { grid->Zobraz(); }
    Button* cell(int number) const { return grid->findChild<Button*>(u"imgFoto(%1)"_s.arg(number)); }
    Button* button(const char* name) const { return grid->findChild<Button*>(QString::fromLatin1(name)); }
    void hover(int number) {
        QTest::mouseMove(cell(number), {3, 3});
        QTest::mouseMove(cell(number), center(cell(number)));
    }
    QString name() const { return child<Label>(*grid, "Label1")->text(); }
    int chosen() const { return grid->grid().cell(); }
    Ids alive() const {
        Ids cells;
        for (std::int16_t number = 1; number <= 50; ++number) {
            if (cell(number)->isEnabled()) cells.push_back(number);
        }
        return cells;
    }
    const QStringList& calls() const { return run.recorded.calls; }

    Form* below = run.openAbove("frmHlavni");
    frmSit* grid = new frmSit(run);
};

TEST_F(SitTest, TheMouseNamesTheRecipeUnderIt) {
    hover(7);
    EXPECT_EQ(name(), u"Recept 007"_s);
    run.database.Execute(u"DELETE FROM Recepty WHERE ID = 8"_s);
    grid->goBack();
    grid = new frmSit(run);
    grid->Zobraz();
    hover(8);
    EXPECT_EQ(name(), QString()) << "a cell without a recipe";
    const QRect place = cell(8)->geometry();
    const QImage framed = grid->grab().toImage();
    hover(9);
    EXPECT_NE(framed.copy(place), grid->grab().toImage().copy(place)) << "the cell under the mouse is framed";
}

TEST_F(SitTest, GroupsAreCalledAsTheBookSays) {
    EXPECT_EQ(button("imgSkupina(3)")->caption(), u"Slavnostní mísy"_s);
    run.database.Execute(u"INSERT INTO Kniha (Nazev, Hodnota) VALUES ('Skupina3', 'Na oslavu')"_s);
    grid->Zobraz();
    EXPECT_EQ(button("imgSkupina(3)")->caption(), u"Na oslavu"_s);
    EXPECT_EQ(button("imgSkupina(0)")->caption(), u"Polévky"_s);
    EXPECT_FALSE(button("imgCela")->toolTip().isEmpty());
}

TEST_F(SitTest, AClickLocksTheChoiceUntilTheNext) {
    hover(3);
    click(cell(3));
    hover(4);
    hover(20);
    EXPECT_EQ(chosen(), 3);
    click(button("imgBtnHlavni(0)"));
    EXPECT_EQ(run.recorded.photos.startPosition, 2);
    click(cell(20));
    hover(5);
    EXPECT_EQ(name(), u"Recept 020"_s);
    click(cell(20));
    hover(5);
    EXPECT_EQ(chosen(), 5);
    click(cell(5));
    QTest::mouseClick(grid, Qt::LeftButton, {}, {300, 580});
    hover(6);
    EXPECT_EQ(chosen(), 6) << "a click beside the cells unlocks";
}

TEST_F(SitTest, PhotosOfTheWholeGridOrOfTheGroup) {
    click(cell(50));
    click(button("imgBtnHlavni(0)"));
    EXPECT_EQ(run.recorded.photos.photoIds.size(), 50u);
    EXPECT_EQ(run.recorded.photos.startPosition, 49);
    click(button("imgSkupina(3)"));
    EXPECT_EQ(alive(), (Ids{9, 35, 46, 50}));
    hover(9);
    EXPECT_EQ(chosen(), 50);
    click(cell(50));
    hover(9);
    key(Qt::Key_Space);
    EXPECT_EQ(run.recorded.photos.photoIds, (Ids{9, 35, 46, 50}));
    EXPECT_EQ(run.recorded.photos.startPosition, 0);
    EXPECT_FALSE(run.recorded.photos.slideShow);
    click(button("imgBtnHlavni(2)"));
    EXPECT_EQ(calls().back(), u"showRecipe 9"_s);
}

TEST_F(SitTest, GroupsNarrowTheGridAndTheBackgroundWidensIt) {
    writePhoto("foto/sitCela.bmp", {120, 90}, Qt::white);
    writePhoto("foto/sit1.bmp", {120, 90}, Qt::magenta);
    grid->goBack();
    grid = new frmSit(run);
    grid->Zobraz();
    const auto ground = [&] {  // as it stands on the display, not painted for the test
        QCoreApplication::processEvents();
        const QImage shown = run.window.screen()->grabWindow(run.window.winId()).toImage();
        return shown.pixelColor(grid->mapTo(&run.window, QPoint(300, 580)));
    };
    EXPECT_EQ(ground(), QColor(Qt::white));
    click(cell(15));
    click(button("imgSkupina(1)"));
    EXPECT_EQ(ground(), QColor(Qt::magenta));
    EXPECT_EQ(alive().size(), 29u);
    EXPECT_EQ(chosen(), 0);
    EXPECT_EQ(name(), QString());
    click(button("imgSkupina(1)"));
    EXPECT_EQ(alive().size(), 29u) << "the group that shows already";
    click(cell(13));
    click(cell(15));
    EXPECT_EQ(alive().size(), 50u) << "a cell that is not alive is background";
    EXPECT_EQ(chosen(), 13);
    click(button("imgSkupina(2)"));
    EXPECT_EQ(alive().size(), 22u);
    EXPECT_EQ(chosen(), 13) << "recipe 13 is in both groups";
    click(button("imgSkupina(0)"));
    click(button("imgCela"));
    EXPECT_EQ(ground(), QColor(Qt::white));
    EXPECT_EQ(alive().size(), 50u);
    click(button("imgSkupina(0)"));
    const QPoint between(10500, button("imgSkupina(0)")->twips().bottom() + 30);
    QTest::mouseClick(grid, Qt::LeftButton, {}, grid->toPixels(between));
    EXPECT_EQ(alive().size(), 50u) << "what is no button is background";
}

TEST_F(SitTest, ADoubleClickOpensTheRecipe) {
    doubleClick(cell(12));
    EXPECT_EQ(calls(), QStringList{u"showRecipe 12"_s});
    EXPECT_TRUE(grid->grid().isLocked());
    QTest::mouseRelease(cell(12), Qt::LeftButton, {}, center(cell(12)));
    click(cell(30));
    doubleClick(cell(30));
    EXPECT_EQ(calls().back(), u"showRecipe 30"_s);
    EXPECT_TRUE(grid->grid().isLocked()) << "whether the cell was locked before or not";
}

TEST_F(SitTest, TheKeyboardReachesEverything) {
    for (const Qt::Key pressed : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}) key(pressed);
    EXPECT_EQ(name(), u"Recept 009"_s);
    EXPECT_EQ(run.announced, (QStringList{u"Recept 001"_s, u"Recept 002"_s, u"Recept 009"_s}));
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    EXPECT_EQ(calls(), (QStringList{u"showRecipe 9"_s, u"showPhotos 8"_s}));
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_EQ(grid->grid().group(), 0);
    key(Qt::Key_4);
    EXPECT_EQ(grid->grid().group(), 3);
    key(Qt::Key_Backtab);
    key(Qt::Key_Backtab);
    EXPECT_TRUE(button("imgBtnHlavni(4)")->hasFocus());
    key(Qt::Key_Return);
    EXPECT_EQ(run.exits, 1);
    key(Qt::Key_Left);
    key(Qt::Key_Return);
    EXPECT_EQ(calls().back(), u"showRecipe 9"_s) << "among the cells Enter means the cell again";
    key(Qt::Key_0);
    EXPECT_EQ(alive().size(), 50u);
    key(Qt::Key_Escape);
    EXPECT_EQ(run.FormStack.top(), below);
}

TEST_F(SitTest, BackFromTheViewerTheGroupIsAsItWas) {
    click(button("imgSkupina(3)"));
    click(cell(9));
    click(button("imgBtnHlavni(0)"));
    auto* viewer = new frmFotoBig(run);
    viewer->Zobraz(run.recorded.photos);
    EXPECT_EQ(alive(), Ids());
    QTest::mouseMove(viewer, {400, 300});
    QTest::mouseClick(viewer, Qt::LeftButton, {}, {400, 300});
    EXPECT_EQ(run.FormStack.top(), grid);
    EXPECT_EQ(alive(), (Ids{9, 35, 46, 50}));
    EXPECT_EQ(chosen(), 9);
    EXPECT_EQ(name(), u"Recept 009"_s);
    EXPECT_TRUE(grid->grid().isLocked());
    EXPECT_TRUE(grid->isAncestorOf(run.window.focusWidget()) || grid->hasFocus());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
