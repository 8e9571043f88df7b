#include "screens/browse/frmfotobig.h"

#include "browse/browsefixture.h"
#include "screens/browse/photofile.h"
#include "support/kept.h"

namespace sarne {
namespace {

using Ids = std::vector<std::int16_t>;

TEST(PhotoZones, TheEdgesStepAndCornersGoSideways) {
    const char* const zones[] = {"none", "right", "left", "up", "down"};
    test::expectCases(u"okraje"_s, [&](const QString& at) {
        const Zone zone = zoneAt({at.section(u',', 0, 0).toInt(), at.section(u',', 1).toInt()});
        return QString::fromLatin1(zones[int(zone)]);
    });
}

TEST(PhotoSteps, StopsAtTheEndsAndWrapsByItself) {
    PhotoSteps steps;
    steps.start({10, 11, 12, 13, 14}, 3);
    EXPECT_TRUE(steps.step(zoneStep(Zone::Down)));
    EXPECT_EQ(steps.currentId(), 14) << "a step of seven ends at the last photo";
    EXPECT_FALSE(steps.step(zoneStep(Zone::Right)));
    EXPECT_FALSE(steps.step(zoneStep(Zone::Down)));
    steps.advance();
    EXPECT_EQ(steps.currentId(), 10);
    EXPECT_FALSE(steps.step(zoneStep(Zone::Left)));
    EXPECT_FALSE(steps.step(zoneStep(Zone::Up)));
    steps.start({10, 11}, 99);
    EXPECT_EQ(steps.position(), 1);
    steps.start({10, 11}, -1);
    EXPECT_EQ(steps.position(), 0);
}

class FotoBigTest : public BrowseTest {
  protected:
    frmFotoBig& open(Ids ids, int start = 0, bool slideShow = false) {
        viewer = new frmFotoBig(run);
        PhotoRequest request;
        request.photoIds = std::move(ids);
        request.startPosition = start;
        request.slideShow = slideShow;
        viewer->Zobraz(request);
        return *viewer;
    }
    /// A click at a pixel of the 800 x 600 design, as a mouse makes it; half a second after the last one.
    void clickAt(QPoint pixel, int milliseconds = 500) {
        run.time.time += milliseconds;
        QTest::mouseMove(viewer, pixel);
        QTest::mouseClick(viewer, Qt::LeftButton, {}, pixel);
    }
    void press(Qt::Key pressed, int milliseconds = 500) {
        run.time.time += milliseconds;
        key(pressed);
    }
    QString title() const { return child<Label>(*viewer, "lblNazev")->text(); }
    Timer& timer() const { return *viewer->findChild<Timer*>(); }
    bool isClosed() const { return run.FormStack.top() == below; }

    Form* below = run.openAbove("frmSeznam");
    frmFotoBig* viewer = nullptr;
};

TEST_F(FotoBigTest, AFingerThatGoesSidewaysStepsWhereverItBegins) {
    open({1, 2, 3});
    const auto swipe = [this](QPoint from, QPoint to) {
        run.time.time += 500;
        QTest::mouseMove(viewer, from);
        QTest::mousePress(viewer, Qt::LeftButton, {}, from);
        QTest::mouseRelease(viewer, Qt::LeftButton, {}, to);
    };
    swipe({500, 300}, {300, 310});
    EXPECT_EQ(title(), u"Recept 002"_s);
    swipe({300, 300}, {500, 280});
    EXPECT_EQ(title(), u"Recept 001"_s);
    swipe({400, 200}, {480, 400});
    EXPECT_TRUE(isClosed()) << "downwards it is a click in the middle";
}

TEST_F(FotoBigTest, TheDoubleClickThatOpenedItIsNoClickOnItAndTheFirstClickIsTheNextPhoto) {
    open({1, 2, 3});
    QTest::mouseDClick(viewer, Qt::LeftButton, {}, {400, 300});
    EXPECT_EQ(viewer->position(), 0);
    EXPECT_FALSE(isClosed());
    QTest::mouseClick(viewer, Qt::LeftButton, {}, {400, 300});
    EXPECT_EQ(viewer->position(), 1) << "the mouse has not moved yet";
}

TEST_F(FotoBigTest, AnyPhotoFitsItsPlaceUndistorted) {
    writePhoto("foto/Recepty/r1.bmp", {40, 30}, Qt::red);
    writePhoto("foto/Recepty/r2.bmp", {1000, 100}, Qt::green);
    writePhoto("foto/Recepty/r3.bmp", {30, 900}, Qt::blue);
    const struct {
        std::int16_t id;
        QSize photo;
        QColor middle, corner;
    } cases[] = {{1, {800, 600}, Qt::red, Qt::red},
                 {2, {800, 80}, Qt::green, QColor(11, 34, 38)},
                 {3, {20, 600}, Qt::blue, QColor(11, 34, 38)}};
    for (const auto& c : cases) {
        open({c.id});
        EXPECT_EQ(viewer->photo().size(), c.photo);
        const QImage screen = viewer->grab().toImage();
        EXPECT_EQ(screen.pixelColor(400, 300), c.middle);
        EXPECT_EQ(screen.pixelColor(2, 2), c.corner);
        run.window.resize(1600, 1200);
        QApplication::processEvents();
        EXPECT_EQ(viewer->photo().size(), c.photo * 2) << "read again for the larger display";
        run.window.resize(800, 600);
        QApplication::processEvents();
        viewer->goBack();
    }
}

TEST_F(FotoBigTest, AnEmptyListOpensNothing) {
    open({});
    EXPECT_TRUE(isClosed());
    EXPECT_FALSE(viewer->isLoaded());
}

TEST_F(FotoBigTest, TheNextPhotoIsDecodedAheadAndTheSameAsWhenItIsNot) {
    for (int id = 1; id <= 4; ++id)
        writePhoto(qPrintable(u"foto/Recepty/r%1.bmp"_s.arg(id)), {640 + id, 480}, Qt::gray);
    open({1, 2, 3, 4});
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewer->isNextReady(); }));
    press(Qt::Key_Right);
    EXPECT_EQ(viewer->photo(), readPhoto(folder.filePath(u"foto/Recepty/r2.bmp"_s), viewer->size()));
    for (const Qt::Key pressed : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}) {
        press(pressed);  // faster than anything can be decoded ahead
        const QString file = u"foto/Recepty/r%1.bmp"_s.arg(viewer->position() + 1);
        EXPECT_EQ(viewer->photo(), readPhoto(folder.filePath(file), viewer->size()));
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
