#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <QMetaMethod>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdlib>

#include "app/displayquestions.h"
#include "app/frmsplash.h"
#include "app/lastwords.h"
#include "app/program.h"
#include "app/rooms.h"
#include "dialogs/frmmessage.h"
#include "onevent.h"
#include "screens/navigation/frmhlavni.h"
#include "smallprogram.h"
#include "support/explore.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/screenrecord.h"

namespace sarne {
namespace {

class SplashTest : public testing::Test {
  protected:
    void SetUp() override {
        platform.settings.set(u"CDPath"_s, folder.path());
        make(platform.parts());
    }
    void TearDown() override { test::outliveTheProgram(); }
    void addIntro() { ASSERT_TRUE(test::write(intro)); }
    void make(const PlatformParts& parts) {
        program = std::make_unique<Program>(parts, Folders{folder.path(), folder.path()});
        program->stage().show();
        program->stage().activateWindow();
        QApplication::processEvents();
    }
    /// A program whose player is handed to \a prepare.
    void makeWithPlayer(const std::function<void(FakeMultimedia&)>& prepare) {
        PlatformParts parts = platform.parts();
        parts.makePlayer = [prepare] {
            auto made = std::make_unique<FakeMultimedia>();
            prepare(*made);
            return made;
        };
        make(parts);
    }
    /// Answers the questions that come up with \a keys, one each, and keeps what they said. Key_F4 closes the
    /// box.
    void answer(const QList<Qt::Key>& keys) {
        if (keys.isEmpty()) return;
        QTimer::singleShot(0, [=, this] {
            auto* box = qobject_cast<frmMessage*>(program->stage().modalForm());
            ASSERT_NE(box, nullptr);
            asked << child<Label>(*box, "Label1")->text();
            const bool closes = keys.first() == Qt::Key_F4;
            answer(keys.mid(1));
            QTest::keyClick(QApplication::focusWidget(), keys.first(),
                            closes ? Qt::AltModifier : Qt::NoModifier);
        });
    }
    bool start(const QList<Qt::Key>& keys) {
        answer(keys);
        return program->Main({});
    }
    void end() {
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
        program->ConfirmExit();
    }

    QTemporaryDir folder;
    const QString intro = folder.filePath(u"video/UVOD.AVI"_s);
    FakePlatform platform;
    std::unique_ptr<Program> program;
    QStringList asked;
};

const QString kQuestion =
    u"Program je koncipován pro spouštění v rozlišení 800 x 600, Váš počítač má nastaveno rozlišení "
    "1024 x 768\r\nChcete dočasně změnit rozlišení na 800 x 600?"_s;
const QString kWarning =
    u"Pokud program spustíte pod současným rozlišením, mohou být obrazovky deformovány. \r\n\r\n"
    "Chcete přesto pokračovat?\r\n\r\n"_s;

TEST_F(SplashTest, AResolutionInTheStoreCountsInsteadOfTheDisplays) {
    platform.display.size = {1024, 768};
    platform.settings.set(kStoredResolution, u"800,600"_s);
    EXPECT_TRUE(start({}));
    EXPECT_TRUE(asked.isEmpty());
    platform.settings.set(kStoredResolution, u"kdovíco"_s);
    make(platform.parts());
    EXPECT_TRUE(start({Qt::Key_N, Qt::Key_A}));
    EXPECT_EQ(asked, (QStringList{kQuestion, kWarning}));

    platform.display.size = {};  // a display whose modes nobody can change
    make(platform.parts());
    platform.settings.set(kStoredResolution, u"640,480"_s);
    asked.clear();
    EXPECT_TRUE(start({}));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(SplashTest, YesSwitchesTheDisplayAndTheExitRestoresIt) {
    platform.display.size = {1024, 768};
    EXPECT_TRUE(start({Qt::Key_A}));
    EXPECT_EQ(asked, QStringList{kQuestion});
    EXPECT_EQ(platform.display.current(), QSize(800, 600));
    EXPECT_EQ(program->SavedDisplayMode, u"1024,768"_s);
    end();
    EXPECT_EQ(platform.display.current(), QSize(1024, 768));
}

TEST_F(SplashTest, YesWhereModesCannotBeSwitchedJustGoesOn) {
    platform.display.size = {1024, 768};
    platform.display.switchable = false;
    EXPECT_TRUE(start({Qt::Key_A}));
    EXPECT_EQ(program->SavedDisplayMode, QString());
}

TEST_F(SplashTest, NoAndYesGoesOnNoAndNoEnds) {
    platform.display.size = {1024, 768};
    EXPECT_TRUE(start({Qt::Key_N, Qt::Key_A}));
    EXPECT_EQ(asked, (QStringList{kQuestion, kWarning}));
    make(platform.parts());
    EXPECT_FALSE(start({Qt::Key_N, Qt::Key_N}));
    EXPECT_EQ(program->mainScreen(), nullptr);
    make(platform.parts());
    EXPECT_TRUE(start({Qt::Key_F4})) << "a closed box changes nothing and goes on";
    make(platform.parts());
    EXPECT_TRUE(start({Qt::Key_N, Qt::Key_F4}));
    EXPECT_TRUE(platform.display.asked.isEmpty());
}

TEST_F(SplashTest, LargeFontsAreAskedAbout) {
    platform.display.twips = {12, 12};
    EXPECT_TRUE(start({Qt::Key_A}));
    EXPECT_TRUE(asked.first().startsWith(
        u"Pro správnou funkci programu je třeba, aby byl spuštěn s nastavením malá písma."_s));
    make(platform.parts());
    EXPECT_FALSE(start({Qt::Key_N}));
    make(platform.parts());
    EXPECT_TRUE(start({Qt::Key_F4}));
}

TEST_F(SplashTest, TheIntroPlaysUntilItEndsOrSomebodyHasSeenEnough) {
    addIntro();
    for (const char* end : {"key", "mouse", "end"}) {
        FakeMultimedia* player = nullptr;
        QStringList commands;
        makeWithPlayer([&](FakeMultimedia& made) {
            player = &made;
            made.wait = MediaWait::DontWait;
        });
        const auto parts = [&] {
            QStringList names;
            for (const Control* control : program->stage().focusForm()->findChildren<Control*>())
                names << control->objectName();
            return names;
        };
        const test::OnEvent watch(QEvent::Show, [&](const QObject* shown) {
            if (shown->objectName() != u"frmHlavni") return;
            EXPECT_EQ(player->commands.mid(2), QStringList{u"close"_s});
            EXPECT_EQ(player->notify, MediaNotify::Off);
            EXPECT_EQ(program->stage().findChild<Control*>(u"Picture1"_s), nullptr);
        });
        QTimer::singleShot(0, [&] {
            commands = player->commands;
            EXPECT_EQ(player->wait, MediaWait::Wait);
            EXPECT_EQ(parts(), (QStringList{u"Picture1"_s, u"lblPreskocit"_s}))
                << "no edges at the design's shape";
            if (*end == 'k') QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q);
            if (*end == 'm') QTest::mouseClick(program->stage().childAt(100, 100), Qt::LeftButton);
            if (*end == 'e') player->end();
        });
        ASSERT_TRUE(start({}));
        EXPECT_EQ(commands, (QStringList{u"open "_s + intro, u"play"_s})) << end;
        EXPECT_TRUE(program->mainScreen()->isVisible());
    }
}

TEST_F(SplashTest, OnAWideDisplayTheFilmFadesIntoTheRoom) {
    addIntro();
    ASSERT_TRUE(test::write(folder.filePath(u"siroke/uvod.jpg"_s), test::plain({1280, 600}, Qt::red)));
    makeWithPlayer([](FakeMultimedia& made) { made.video = {640, 480}; });
    program->stage().resize(1280, 600);
    QImage shown;
    QStringList looks;
    QTimer::singleShot(0, [&] {
        looks = test::record(program->stage());
        shown = program->stage().grab().toImage();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    ASSERT_TRUE(start({}));
    test::expectAsKept(u"uvodni-film"_s, looks);
    const auto red = [&](int x) { return shown.pixelColor(x, 300).red(); };
    EXPECT_GT(red(100), 250) << "the room";
    const std::pair<int, int> fade[] = {{241, 240}, {245, 190}, {250, 125}, {255, 60}, {259, 10}, {263, 0}};
    for (const auto& [x, expected] : fade) {
        EXPECT_NEAR(red(x), expected, 12) << x;
        EXPECT_NEAR(red(1279 - x), expected, 12) << "the right edge, " << x;
    }
}

TEST_F(SplashTest, WhenTheSystemEndsTheProgramTheStartEndsToo) {
    addIntro();
    QTimer::singleShot(0, [&] { program->endAtOnce(); });
    EXPECT_FALSE(start({})) << "the film no longer holds it";
    EXPECT_EQ(program->mainScreen(), nullptr);
}

/// A screen with words that are not stored.
class Typed final : public Form {
  public:
    Typed(basSarne& sarne, QString file) : Form(sarne, u"frmPsano"_s), file_(std::move(file)) {}
    void keepUnsaved() override { (void)test::write(file_, "slova"); }

  private:
    QString file_;
};

TEST_F(SplashTest, WordsAreKeptHoweverTheSystemEndsTheProgram) {
    const std::function<void()> ends[] = {
        [] { std::raise(SIGTERM); },
        [] {  // the session ends: nobody asks its manager anything
            const auto ended = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest);
            void* arguments[] = {nullptr, nullptr};
            QMetaObject::activate(qApp, ended.methodIndex(), arguments);
        },
        [] {  // the display is lost
            if (const pid_t child = fork(); child == 0)
                std::exit(0);
            else
                waitpid(child, nullptr, 0);
        }};
    for (int way = 0; way < 3; ++way) {
        make(platform.parts());
        const LastWords words(*program);
        const QString kept = folder.filePath(u"slova%1"_s.arg(way));
        new Typed(*program, kept);
        ends[way]();
        QApplication::processEvents();
        EXPECT_TRUE(QFile::exists(kept)) << way;
    }
    make(platform.parts());
    new Typed(*program, folder.filePath(u"slova"_s));
    ends[2]();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"slova"_s))) << "nobody has asked for that";
}

TEST_F(SplashTest, AnIntroThatCannotBePlayedIsSkipped) {
    addIntro();
    for (const char* command : {"open", "play"}) {
        makeWithPlayer(
            [&](FakeMultimedia& made) { made.failing[QLatin1String(command)] = MediaError::InvalidFile; });
        EXPECT_TRUE(start({}));
    }
    PlatformParts parts = platform.parts();
    parts.makePlayer = {};
    make(parts);
    EXPECT_TRUE(start({})) << "there is no player at all";
}

TEST_F(SplashTest, ThePicturesAreToldApartByTheirOrder) {
    const QColor colours[] = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow};
    {
        SQLite::Database file(folder.filePath(u"KOp.bj"_s).toStdString(),
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        for (const QString& statement : pictureSchema()) file.exec(statement.toStdString());
        for (const QColor& colour : colours) {
            ASSERT_TRUE(test::write(folder.filePath(u"obr.bmp"_s), test::plain({8, 6}, colour)));
            const QByteArray bytes = test::bytesOf(folder.filePath(u"obr.bmp"_s));
            SQLite::Statement insert(file, "INSERT INTO TabObr VALUES (?)");
            insert.bind(1, bytes.constData(), int(bytes.size()));
            insert.exec();
        }
    }
    const QStringList names{u"hlavni"_s, u"konec"_s, u"video"_s, u"seznam"_s, u"recept"_s, u"Sit"_s};
    for (int i = 0; i < names.size(); ++i)
        ASSERT_TRUE(test::write(folder.filePath(u"siroke/%1.jpg"_s.arg(names[i])),
                                test::plain({160, 60}, QColor(40 * i, 255 - 40 * i, 90))));
    ASSERT_TRUE(start({}));
    const ScreenPictures& rooms = program->Pictures;
    const Room* const inOrder[] = {&rooms.hlavni, &rooms.konec,  &rooms.video,
                                   &rooms.seznam, &rooms.recept, &rooms.Sit};
    const auto wide = [](const Room& room) {
        QImage image(160, 60, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(.02 / 3, .02 / 3);
        painter.translate(6000, 0);
        room.compose(painter, {-6000, 0, 24000, 9000});
        return image.pixelColor(80, 30);
    };
    for (int i = 0; i < names.size(); ++i) {
        ASSERT_FALSE(inOrder[i]->isNull()) << i;
        EXPECT_EQ(inOrder[i]->design().image().pixelColor(3, 3), colours[i]) << i;
        EXPECT_NEAR(wide(*inOrder[i]).red(), 40 * i, 6) << i;
    }
    EXPECT_EQ(wide(rooms.stranka), wide(rooms.seznam)) << "where pages have none of their own";
    QString ground;
    const test::OnEvent watch(QEvent::Show, [&](const QObject* shown) {
        if (qobject_cast<const frmSplash*>(shown))
            ground = test::record(program->stage()).filter(u"frmSplash| picture"_s).value(0);
    });
    end();
    EXPECT_TRUE(ground.contains(colours[1].name())) << "the last picture: " << ground.toStdString();
    ASSERT_TRUE(test::write(folder.filePath(u"siroke/stranka.jpg"_s), test::plain({160, 60}, Qt::white)));
    make(platform.parts());
    ASSERT_TRUE(start({}));
    EXPECT_GT(wide(program->Pictures.stranka).red(), 250);
}

TEST_F(SplashTest, ItIsPaintedAtOnceHoweverLongTheNextStepTakes) {
    int painted = 0;
    const test::OnEvent watch(QEvent::Paint, [&](const QObject* shown) {
        painted += qobject_cast<const frmSplash*>(shown) != nullptr;
    });
    ASSERT_TRUE(start({}));
    EXPECT_GT(painted, 0);
    painted = 0;
    end();
    EXPECT_GT(painted, 0);
}

TEST_F(SplashTest, TheKitchenIsBegunWithWhereItsWidePictureShows) {
    ASSERT_TRUE(test::write(folder.filePath(u"siroke/hlavni.jpg"_s), test::plain({160, 60}, Qt::red)));
    const auto isBegun = [&](QSize size, bool contrast) {
        make(platform.parts());
        program->stage().eyes().setContrast(contrast);
        program->stage().resize(size);
        beginKitchen(*program);
        return !program->Pictures.hlavni.isNull();
    };
    EXPECT_TRUE(isBegun({1280, 600}, false));
    EXPECT_FALSE(isBegun({1280, 600}, true));
    EXPECT_FALSE(isBegun({1024, 768}, false)) << "the design's own shape";
}

TEST_F(SplashTest, ItSaysTheTitleAtTheStartAndTheEndAtTheEnd) {
    QStringList said, looks;
    const test::OnEvent watch(QEvent::Show, [&](const QObject* shown) {
        const auto* splash = qobject_cast<const frmSplash*>(shown);
        if (!splash || said.contains(splash->accessibleName())) return;
        said << splash->accessibleName();
        // The ground is a picture where an earlier test of this run has left one registered.
        static const QRegularExpression own(u"^frmSplash(?!.* 0,0 800x600$)"_s);
        looks << u"> "_s + said.last() << test::record(program->stage()).filter(own);
    });
    ASSERT_TRUE(start({}));
    end();
    EXPECT_EQ(said, (QStringList{u"Velisa sarn - Lumora"_s, u"Ukončení progamu"_s}));
    test::expectAsKept(u"uvod-a-zaver"_s, looks);
}

TEST_F(SplashTest, TheWindowsCloseButtonEndsTheStart) {
    addIntro();
    platform.display.size = {1024, 768};
    make(platform.parts());
    QString hint;
    QTimer::singleShot(300, [&] {
        hint = child<Label>(program->stage(), "lblPreskocit")->text();
        program->stage().close();
    });
    EXPECT_FALSE(start({Qt::Key_A}));
    EXPECT_EQ(hint, u"Esc přeskočí film"_s);
    EXPECT_EQ(platform.display.current(), QSize(1024, 768)) << "the display is as it was";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
