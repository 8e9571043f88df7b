#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <QMetaMethod>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <cstdlib>

#include "app/displayquestions.h"
#include "app/frmsplash.h"
#include "app/lastwords.h"
#include "app/program.h"
#include "dialogs/frmmessage.h"
#include "screens/navigation/frmhlavni.h"
#include "support/explore.h"
#include "support/fakeplatform.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/recipedatabase.h"
#include "support/screenrecord.h"

namespace sarne {
namespace test {

/// Tells \a seen of every widget that is shown while it lives.
class OnShow final : public QObject {
  public:
    explicit OnShow(std::function<void(const QObject*)> seen) : seen_(std::move(seen)) {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Show) seen_(object);
        return false;
    }

  private:
    std::function<void(const QObject*)> seen_;
};

}  // namespace test

namespace {

class SplashTest : public testing::Test {
  protected:
    void SetUp() override {
        platform.settings.set(u"CDPath"_s, folder.path());
        make(platform.parts());
    }
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
    EXPECT_TRUE(start({}));
}

TEST_F(SplashTest, YesSwitchesTheDisplayAndTheExitRestoresIt) {
    platform.display.size = {1024, 768};
    EXPECT_TRUE(start({Qt::Key_A}));
    EXPECT_EQ(asked, QStringList{kQuestion});
    EXPECT_EQ(platform.display.current(), QSize(800, 600));
    EXPECT_EQ(program->SavedDisplayMode, u"1024,768"_s);
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    program->ConfirmExit();
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
    EXPECT_TRUE(platform.display.asked.isEmpty());
}

TEST_F(SplashTest, LargeFontsAreAskedAbout) {
    platform.display.twips = {12, 12};
    EXPECT_TRUE(start({Qt::Key_A}));
    EXPECT_TRUE(asked.first().startsWith(
        u"Pro správnou funkci programu je třeba, aby byl spuštěn s nastavením malá písma."_s));
    make(platform.parts());
    EXPECT_FALSE(start({Qt::Key_N}));
}

TEST_F(SplashTest, TheIntroPlaysUntilItEndsOrSomebodyHasSeenEnough) {
    addIntro();
    for (const bool byKey : {true, false}) {
        FakeMultimedia* player = nullptr;
        QStringList commands;
        makeWithPlayer([&](FakeMultimedia& made) { player = &made; });
        QTimer::singleShot(0, [&] {
            commands = player->commands;
            byKey ? QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q) : player->end();
        });
        ASSERT_TRUE(start({}));
        EXPECT_EQ(commands, (QStringList{u"open "_s + intro, u"play"_s}));
        EXPECT_TRUE(program->mainScreen()->isVisible());
    }
}

TEST_F(SplashTest, WhenTheSystemEndsTheProgramTheStartEndsToo) {
    addIntro();
    QTimer::singleShot(0, [&] { program->endAtOnce(); });
    EXPECT_FALSE(start({})) << "the film no longer holds it";
    EXPECT_EQ(program->mainScreen(), nullptr);
    QTimer::singleShot(0, [] { QApplication::exit(); });  // this process goes on
    QApplication::exec();
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
    QTimer::singleShot(0, [] { QApplication::exit(); });  // this process goes on
    QApplication::exec();
}

TEST_F(SplashTest, AnIntroThatCannotBePlayedIsSkipped) {
    addIntro();
    makeWithPlayer([](FakeMultimedia& made) { made.failing[u"open"_s] = MediaError::InvalidFile; });
    EXPECT_TRUE(start({}));
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
    ASSERT_TRUE(start({}));
    const ScreenPictures& rooms = program->Pictures;
    const Room* const inOrder[] = {&rooms.hlavni, &rooms.konec,  &rooms.video,
                                   &rooms.seznam, &rooms.recept, &rooms.Sit};
    for (size_t i = 0; i < std::size(colours); ++i) {
        ASSERT_FALSE(inOrder[i]->isNull()) << i;
        EXPECT_EQ(inOrder[i]->design().image().pixelColor(3, 3), colours[i]) << i;
    }
}

TEST_F(SplashTest, ItSaysTheTitleAtTheStartAndTheEndAtTheEnd) {
    QStringList said, looks;
    const test::OnShow watch([&](const QObject* shown) {
        const auto* splash = qobject_cast<const frmSplash*>(shown);
        if (!splash || said.contains(splash->accessibleName())) return;
        said << splash->accessibleName();
        // The ground is a picture where an earlier test of this run has left one registered.
        static const QRegularExpression own(u"^frmSplash(?!.* 0,0 800x600$)"_s);
        looks << u"> "_s + said.last() << test::record(program->stage()).filter(own);
    });
    ASSERT_TRUE(start({}));
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
    program->ConfirmExit();
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
