#include "app/program.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTest>
#include <QTimer>

#include "app/editionwatch.h"
#include "dialogs/frmdialog.h"
#include "forms/textview.h"
#include "screens/navigation/frmhlavni.h"
#include "screens/navigation/frmmenu.h"
#include "screens/navigation/sweep.h"
#include "screens/recipe/frmrecept.h"
#include "support/fakeplatform.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

class ProgramTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"program", "disc", "data"}) QDir(folder.path()).mkpath(QLatin1String(name));
        test::writeRecipeDatabase(
            path("program/Sarne.drc"),
            {u"INSERT INTO Nastav VALUES (1,'a',1),(2,'b',0),(3,'c',1),(4,'d',0)"_s,
             u"INSERT INTO Menu VALUES ('120','@Hledání',''),('121','Napište název','F')"_s,
             u"INSERT INTO Suroviny VALUES (1,'kapie')"_s});
        platform.settings.set(u"CDPath"_s, path("disc"));
        make();
    }
    void make() {
        program = std::make_unique<Program>(platform.parts(), Folders{path("program"), path("data")});
        program->stage().resize(800, 600);
        program->stage().show();
        program->stage().activateWindow();
        QApplication::processEvents();
    }
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    /// Ends the program or asks to, and answers its question with \a key.
    void exitAnswering(Qt::Key key) {
        QTimer::singleShot(0, [key] { press(key); });
        program->ConfirmExit();
    }

    QTemporaryDir folder;
    FakePlatform platform;
    std::unique_ptr<Program> program;
};

TEST_F(ProgramTest, StartsWithItsFoldersAndSettings) {
    ASSERT_TRUE(program->Main({}));
    EXPECT_EQ(program->AppDir, LogicalPaths::fromNativeFolder(path("program")));
    EXPECT_EQ(program->MediaRoot, LogicalPaths::fromNativeFolder(path("disc")));
    EXPECT_TRUE(program->Db().isOpen());
    EXPECT_EQ(program->SoundFlags, (std::array<bool, 5>{true, false, true, false, false}))
        << "four rows are read, not five";
    EXPECT_EQ(program->FormStack.top(), program->mainScreen());
    EXPECT_TRUE(program->mainScreen()->isVisible());
    EXPECT_EQ(program->stage().forms().size(), 2u) << "main screen and menu; the splash is unloaded";
    EXPECT_TRUE(platform.music.commands.isEmpty()) << "music is switched off";
}

TEST_F(ProgramTest, FollowsABookThatIsWrittenWhileItRuns) {
    ASSERT_TRUE(program->Main({}));
    const EditionWatch watch(path("data/znacka"),
                             [&](std::int16_t id, int section) { return program->showEdition(id, section); });
    program->screens().showMusicSettings();
    EXPECT_NE(program->FormStack.top(), program->mainScreen());
    test::writeRecipeDatabase(path("data/nova.drc"),
                              {u"INSERT INTO Recepty (ID, Nazev) VALUES (7, 'Kapr')"_s});
    QFile::remove(path("program/Sarne.drc"));
    ASSERT_TRUE(QFile::rename(path("data/nova.drc"), path("program/Sarne.drc")));
    ASSERT_TRUE(test::write(path("data/znacka"), "1 7 5\n"));
    const auto shown = [&] { return qobject_cast<frmRecept*>(program->FormStack.top()); };
    ASSERT_TRUE(QTest::qWaitFor(shown, 5000));
    EXPECT_EQ(shown()->section(), 5);
    EXPECT_TRUE(program->showEdition(0, 0));
    EXPECT_EQ(program->FormStack.top(), program->mainScreen());
}

TEST_F(ProgramTest, TheShowSwitchIsTheWholeCommandLine) {
    for (const char* line : {"s", "/s", "-s"}) EXPECT_TRUE(isShowSwitch(QLatin1String(line))) << line;
    for (const char* line : {"", "S", "/S", "/s x", "--s", " s"})
        EXPECT_FALSE(isShowSwitch(QLatin1String(line))) << line;
    ASSERT_TRUE(program->Main(u"-s"_s));
    EXPECT_TRUE(program->ShowMode);
}

TEST_F(ProgramTest, AsksForTheDriveWhenTheStoreNamesNone) {
    const struct {
        const char *stored, *typed, *root;
    } cases[] = {{"", "e", "e:\\"}, {"/neni/tu", "Disk", "D:\\"}, {"Q:\\", "", ":\\"}};
    for (const auto& c : cases) {
        platform.settings.set(u"CDPath"_s, QLatin1String(c.stored));
        make();
        QTimer::singleShot(0, [&] {
            const auto* prompt =
                QApplication::focusWidget()->parentWidget()->parentWidget()->findChild<Label*>(u"Label1"_s);
            EXPECT_EQ(prompt->text(),
                      u"Nepodařilo se jednoznačně identifikovat Vaší CD-ROM "
                      "mechaniku\r\nZadejte pismeno, které ji označuje:"_s);
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(c.typed));
            press(Qt::Key_Return);
        });
        ASSERT_TRUE(program->Main({}));
        EXPECT_EQ(program->MediaRoot, QLatin1String(c.root));
        EXPECT_EQ(program->mediaFile(u"HUDBA.WAV"_s), QString());
    }
}

TEST_F(ProgramTest, TheStoreMayNameALetterOrAPathFromTheProgramsFolder) {
    platform.settings.set(u"Drives/F"_s, path("disc"));
    ASSERT_TRUE(test::write(path("disc/hudba.wav")));
    for (const char* stored : {"F:\\", "../disc"}) {
        platform.settings.set(u"CDPath"_s, QLatin1String(stored));
        make();
        ASSERT_TRUE(program->Main({}));
        EXPECT_EQ(program->mediaFile(u"HUDBA.WAV"_s), path("disc/hudba.wav")) << stored;
    }
}

TEST_F(ProgramTest, YesEndsWhateverIsOpen) {
    ASSERT_TRUE(program->Main({}));
    auto* screen = new Form(*program, u"frmSeznam"_s);
    program->PushScreen(*screen);
    screen->showForm();
    program->SavedDisplayMode = u"1024,768"_s;
    exitAnswering(Qt::Key_Return);
    EXPECT_TRUE(program->hasEnded());
    EXPECT_EQ(platform.music.commands, (QStringList{u"stop"_s, u"close"_s}));
    EXPECT_EQ(platform.music.notify, MediaNotify::Off);
    EXPECT_TRUE(program->stage().forms().empty());
    EXPECT_TRUE(program->stage().isHidden());
    EXPECT_FALSE(program->Db().isOpen());
    EXPECT_GT(platform.effects.stops, 0);
    EXPECT_EQ(platform.display.asked, QList<QSize>{QSize(1024, 768)});
    program->ConfirmExit();  // asks nothing more
}

TEST_F(ProgramTest, StartsAndEndsWithoutAnything) {
    for (const char* kind : {"missing", "garbage", "empty"}) {
        QFile::remove(path("program/Sarne.drc"));
        if (*kind != 'm') {
            for (const char* name : {"program/Sarne.drc", "program/KOp.bj", "program/Sarne.rcc"})
                ASSERT_TRUE(test::write(path(name), QByteArray(*kind == 'g' ? 5000 : 0, 'g')));
        }
        platform.settings.set(u"CDPath"_s, path("disc"));
        make();
        ASSERT_TRUE(program->Main({})) << kind;
        press(Qt::Key_PageDown);
        press(Qt::Key_Return);
        press(Qt::Key_Escape);
        exitAnswering(Qt::Key_Return);
        EXPECT_TRUE(program->hasEnded());
    }
}

TEST_F(ProgramTest, TheMainScreensHelpSaysWhatIsMissingAndWhatWasKept) {
    const QString note = u"se *1 víc\nsoli"_s;
    ASSERT_TRUE(program->notes().keep({77, u"Úhoř"_s, note}));
    for (const char* beside : {"data/Sarne.drc.2026-11-21-2", "data/Sarne.drc.origin"})
        ASSERT_TRUE(test::write(path(beside)));
    const auto help = [&](const char* form) {
        program->screens().showHelpFor(QLatin1String(form));
        auto* view = program->FormStack.top()->findChild<TextView*>(u"picText"_s);
        const QString text = view ? view->drawnText().simplified() : QString();
        press(Qt::Key_Escape);
        return text;
    };
    make();
    ASSERT_TRUE(program->Main({}));
    const QString found = help("frmHlavni");
    EXPECT_TRUE(found.contains(path("data/Sarne.drc.2026-11-21-2"))) << qPrintable(found);
    EXPECT_FALSE(found.contains(u"origin"_s));
    EXPECT_TRUE(found.contains(u"Úhoř se *1 víc soli"_s)) << "words, not links";
    EXPECT_FALSE(found.contains(u"chybí"_s, Qt::CaseInsensitive));
    EXPECT_EQ(help("frmSit"), QString()) << "no page: the list of help topics";

    QFile::resize(path("program/Sarne.drc"), 0);
    QDir(path("disc")).removeRecursively();
    for (const char* form : {"frmHlavni", "frmNastavHudbu"}) {
        EXPECT_TRUE(help(form).contains(u"Složku "_s + program->MediaRoot)) << form;
    }
    make();
    QTimer::singleShot(0, [] { press(Qt::Key_Return); });
    ASSERT_TRUE(program->Main({}));
    EXPECT_TRUE(help("frmHlavni").contains(path("program/Sarne.drc")));
    EXPECT_TRUE(help("frmHlavni").contains(u"víc soli"_s)) << "notes can be read without the book";
}

TEST_F(ProgramTest, TheWindowsCloseButtonAsksOnEveryScreen) {
    ASSERT_TRUE(program->Main({}));
    const auto close = [&](Qt::Key answer) {
        bool asked = false;
        QTimer::singleShot(0, [&asked, answer] {
            asked = true;
            press(answer);
        });
        program->stage().close();
        QApplication::processEvents();
        return asked && program->stage().modalForm() == nullptr;
    };
    EXPECT_TRUE(close(Qt::Key_N)) << "main screen";
    press(Qt::Key_F4);
    ASSERT_NE(program->FormStack.top(), program->mainScreen());
    EXPECT_TRUE(close(Qt::Key_N)) << "settings";
    EXPECT_FALSE(program->hasEnded());
    EXPECT_TRUE(close(Qt::Key_A));
    EXPECT_TRUE(program->hasEnded());
}

TEST_F(ProgramTest, AnIngredientWithoutRecipesLeavesTheKeyboardUsable) {
    ASSERT_TRUE(program->Main({}));
    frmHlavni& main = *program->mainScreen();
    const auto chooseIt = [&](bool byMouse) {
        QTest::mouseClick(child<QWidget>(main, "imgClick(12)"), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), u"kapie"_s);
        press(Qt::Key_Return);
        frmMenu* results = main.menu()->child();
        if (byMouse)
            QTest::mouseClick(child<QWidget>(*results, "lblOdkaz(1)"), Qt::LeftButton);
        else
            press(Qt::Key_Return);
        return !main.isMenuOpen() && program->FormStack.top() == &main;
    };
    for (const bool byMouse : {true, false}) {
        ASSERT_TRUE(chooseIt(byMouse));
        press(Qt::Key_Right);
        EXPECT_NE(main.currentButton(), -5) << "arrows";
        press(Qt::Key_F4);
        ASSERT_NE(program->FormStack.top(), &main);
        press(Qt::Key_Escape);
        ASSERT_EQ(program->FormStack.top(), &main);
        ASSERT_TRUE(chooseIt(byMouse));
        bool asked = false;
        QTimer::singleShot(0, [&asked] {
            asked = true;
            press(Qt::Key_N);
        });
        press(Qt::Key_X);
        EXPECT_TRUE(asked);
    }
}

TEST_F(ProgramTest, TheFirstVisitShowsTheThingsAndNoOther) {
    const auto lit = [&] {
        int running = 0;
        for (const Timer* timer : program->mainScreen()->findChildren<Timer*>())
            running += timer->isEnabled() && timer->interval() == Sweep::kInterval;
        return running;
    };
    ASSERT_TRUE(program->Main({}));
    EXPECT_EQ(lit(), 1);
    press(Qt::Key_F2);
    EXPECT_EQ(lit(), 0) << "any key ends it";
    EXPECT_EQ(program->mainScreen()->currentButton(), -5);
    make();
    ASSERT_TRUE(program->Main({}));
    EXPECT_EQ(lit(), 0);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
