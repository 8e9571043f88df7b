#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <QMetaMethod>
#include <QPainter>
#include <csignal>
#include <cstdlib>
#include <optional>

#include "app/displayquestions.h"
#include "app/lastwords.h"
#include "app/rooms.h"
#include "smallprogram.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/screenrecord.h"

namespace sarne {
namespace {

class SplashTest : public ProgramTest {
  protected:
    void addIntro() { ASSERT_TRUE(test::write(path("disc/video/UVOD.AVI"))); }
    /// A program whose player is handed to \a prepare.
    void makeWithPlayer(const std::function<void(FakeMultimedia&)>& prepare) {
        PlatformParts withPlayer = parts();
        withPlayer.makePlayer = [prepare] {
            auto made = std::make_unique<FakeMultimedia>();
            prepare(*made);
            return made;
        };
        make(withPlayer);
    }
    void end() {
        does(u"the end"_s, [&] { program->ConfirmExit(); }, {Qt::Key_Return});
    }
};

TEST_F(SplashTest, AsksWhereTheDisplayIsNotTheDesigns) {
    const QSize other{1024, 768}, design{800, 600}, unknown;
    const QSize small{15, 15}, large{12, 12};
    const struct {
        const char* stored;
        QSize size, twips;
        bool isSwitchable;
        QList<Qt::Key> keys;
    } cases[] = {{"800,600", other, small, true, {}},
                 {"kdovíco", other, small, true, {Qt::Key_N, Qt::Key_A}},
                 {"640,480", unknown, small, true, {}},
                 {"640,480", other, small, true, {Qt::Key_A}},
                 {"", other, small, true, {Qt::Key_A}},
                 {"", other, small, false, {Qt::Key_A}},
                 {"", other, small, true, {Qt::Key_N, Qt::Key_N}},
                 {"", other, small, true, {Qt::Key_F4}},
                 {"", other, small, true, {Qt::Key_N, Qt::Key_F4}},
                 {"", design, large, true, {Qt::Key_A}},
                 {"", design, large, true, {Qt::Key_N}},
                 {"", design, large, true, {Qt::Key_F4}}};
    for (const auto& c : cases) {
        platform.settings.set(kStoredResolution, QString::fromUtf8(c.stored));
        platform.display.size = c.size;
        platform.display.twips = c.twips;
        platform.display.switchable = c.isSwitchable;
        make();
        does(
            u"stored '%1'"_s.arg(QString::fromUtf8(c.stored)), [&] { start(); }, c.keys);
        if (!program->SavedDisplayMode.isEmpty()) end();
    }
    expectAsKept("obrazovka");
}

TEST_F(SplashTest, TheIntroPlaysUntilItEndsOrSomebodyHasSeenEnough) {
    addIntro();
    QPointer<FakeMultimedia> player;
    const auto told = [&](const char* when) {
        note(u"player, %1: %2; waits %3, tells %4"_s.arg(QLatin1String(when), player->commands.join(u' '))
                 .arg(player->wait == MediaWait::Wait)
                 .arg(player->notify == MediaNotify::On));
        for (const Control* control : program->stage().findChildren<Control*>())
            if (control->form().name() == u"frmSplash") note(u"there is "_s + control->objectName());
    };
    const test::OnEvent watch(QEvent::Show, [&](const QObject* shown) {
        if (shown->objectName() == u"frmHlavni" && player) told("at the main screen");
    });
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"a key", [] { press(Qt::Key_Q); }},
        {"the mouse", [&] { QTest::mouseClick(program->stage().childAt(100, 100), Qt::LeftButton); }},
        {"its end", [&] { player->end(); }},
        {"the window's close button", [&] { program->stage().close(); }},
        {"the system", [&] { program->endAtOnce(); }},
        {"not opened", {}},
        {"not played", {}}};
    for (const auto& [what, act] : ends) {
        makeWithPlayer([&](FakeMultimedia& made) {
            player = &made;
            made.wait = MediaWait::DontWait;
            if (!act) made.failing[QLatin1String(what).mid(4, 4)] = MediaError::InvalidFile;
        });
        platform.display.size = {1024, 768};
        QTimer film;
        QObject::connect(&film, &QTimer::timeout, [&] {
            if (!player || !player->playing()) return;
            film.stop();
            told("then");
            act();
        });
        film.start(10);
        does(QLatin1String(what), [&] { start(); }, {Qt::Key_A});
    }
    PlatformParts none = parts();
    none.makePlayer = {};
    make(none);
    does(u"without a player"_s, [&] { start(); });
    expectAsKept("film");
}

TEST_F(SplashTest, OnAWideDisplayTheFilmFadesIntoTheRoom) {
    addIntro();
    ASSERT_TRUE(test::write(path("program/siroke/uvod.jpg"), test::plain({1280, 600}, Qt::red)));
    makeWithPlayer([](FakeMultimedia& made) { made.video = {640, 480}; });
    program->stage().resize(1280, 600);
    QImage shown;
    QTimer::singleShot(0, [&] {
        for (const QString& line : test::record(program->stage())) note(line);
        shown = program->stage().grab().toImage();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    start();
    expectAsKept("uvodni-film");
    const auto red = [&](int x) { return shown.pixelColor(x, 300).red(); };
    EXPECT_GT(red(100), 250) << "the room";
    const std::pair<int, int> fade[] = {{241, 240}, {245, 190}, {250, 125}, {255, 60}, {259, 10}, {263, 0}};
    for (const auto& [x, expected] : fade) {
        EXPECT_NEAR(red(x), expected, 12) << x;
        EXPECT_NEAR(red(1279 - x), expected, 12) << "the right edge, " << x;
    }
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
        make();
        const LastWords words(*program);
        const QString kept = folder.filePath(u"slova%1"_s.arg(way));
        new Typed(*program, kept);
        ends[way]();
        QApplication::processEvents();
        EXPECT_TRUE(QFile::exists(kept)) << way;
    }
    make();
    new Typed(*program, folder.filePath(u"slova"_s));
    ends[2]();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"slova"_s))) << "nobody has asked for that";
}

TEST_F(SplashTest, ThePicturesAreToldApartByTheirOrder) {
    {
        SQLite::Database file(path("program/KOp.bj").toStdString(),
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        for (const QString& statement : pictureSchema()) file.exec(statement.toStdString());
        for (const auto colour : {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow}) {
            ASSERT_TRUE(test::write(path("obr.bmp"), test::plain({8, 6}, colour)));
            const QByteArray bytes = test::bytesOf(path("obr.bmp"));
            SQLite::Statement insert(file, "INSERT INTO TabObr VALUES (?)");
            insert.bind(1, bytes.constData(), int(bytes.size()));
            insert.exec();
        }
    }
    const auto addWide = [&](const char* name, const QColor& colour) {
        ASSERT_TRUE(test::write(path("program/siroke/") + QLatin1String(name) + u".jpg"_s,
                                test::plain({160, 60}, colour), "png"));
    };
    int red = 0;
    for (const char* name : {"hlavni", "konec", "video", "seznam", "recept", "Sit"})
        addWide(name, {red += 40, 0, 0});
    const auto look = [&] {
        make();
        does(u"start"_s, [&] { start(); });
        const ScreenPictures& rooms = program->Pictures;
        const std::pair<const char*, const Room*> all[] = {
            {"hlavni", &rooms.hlavni}, {"konec", &rooms.konec},   {"video", &rooms.video},
            {"seznam", &rooms.seznam}, {"recept", &rooms.recept}, {"stranka", &rooms.stranka},
            {"Sit", &rooms.Sit}};
        for (const auto& [name, room] : all) {
            QImage wide(160, 60, QImage::Format_RGB32);
            QPainter painter(&wide);
            painter.scale(.02 / 3, .02 / 3);
            painter.translate(6000, 0);
            room->compose(painter, {-6000, 0, 24000, 9000});
            note(u"%1: %2, wide %3"_s.arg(QLatin1String(name), room->design().image().pixelColor(3, 3).name(),
                                          wide.pixelColor(80, 30).name()));
        }
    };
    look();
    std::optional<test::OnEvent> watch(std::in_place, QEvent::Show, [&](const QObject* shown) {
        if (shown->objectName() != u"frmSplash") return;
        for (const QString& line : test::record(program->stage()).filter(u"frmSplash|"_s)) note(line);
    });
    end();
    watch.reset();
    addWide("stranka", Qt::white);
    look();
    for (const bool contrast : {false, true})
        for (const QSize size : {QSize(1280, 600), QSize(1024, 768)}) {
            make();
            program->stage().eyes().setContrast(contrast);
            program->stage().resize(size);
            beginKitchen(*program);
            EXPECT_EQ(!program->Pictures.hlavni.isNull(), !contrast && size.height() == 600)
                << "begun with where its wide picture shows";
        }
    expectAsKept("pokoje");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
