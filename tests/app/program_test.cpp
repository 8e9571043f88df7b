#include "app/program.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "app/editionwatch.h"
#include "dialogs/frmdialog.h"
#include "forms/textview.h"
#include "onevent.h"
#include "screens/navigation/frmhlavni.h"
#include "screens/navigation/frmmenu.h"
#include "screens/navigation/sweep.h"
#include "screens/recipe/frmrecept.h"
#include "smallprogram.h"
#include "support/files.h"

namespace sarne {
namespace {

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
    EXPECT_FALSE(program->showEdition(7, 0)) << "there is no main screen yet";
    ASSERT_TRUE(program->Main({}));
    program->screens().showMusicSettings();
    EXPECT_NE(program->FormStack.top(), program->mainScreen());
    QTimer::singleShot(0, [&] {
        EXPECT_FALSE(program->showEdition(7, 0)) << "a question waits";
        press(Qt::Key_Escape);
    });
    program->ZobrazZpravu(u"Opravdu?"_s, 36);
    test::writeRecipeDatabase(path("data/nova.drc"),
                              {u"INSERT INTO Recepty (ID, Nazev) VALUES (7, 'Kapr')"_s});
    QFile::remove(path("program/Sarne.drc"));
    ASSERT_TRUE(QFile::rename(path("data/nova.drc"), path("program/Sarne.drc")));
    EXPECT_TRUE(program->showEdition(7, 5));
    Recordset recipes = program->Db().OpenTable(u"Recepty"_s);
    EXPECT_TRUE(RecordExists(recipes, 7) && !RecordExists(recipes, 5));
    auto* shown = qobject_cast<frmRecept*>(program->FormStack.top());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->section(), 5);
    EXPECT_EQ(program->FormStack.count(), 2);
    EXPECT_TRUE(program->showEdition(0, 0));
    EXPECT_EQ(program->FormStack.top(), program->mainScreen());
    QTest::mouseClick(child<QWidget>(*program->mainScreen(), "imgClick(12)"), Qt::LeftButton);
    EXPECT_TRUE(program->mainScreen()->isMenuOpen());
    EXPECT_TRUE(program->showEdition(0, 0));
    EXPECT_FALSE(program->mainScreen()->isMenuOpen());
    exitAnswering(Qt::Key_Return);
    EXPECT_FALSE(program->showEdition(7, 0));
}

TEST_F(ProgramTest, AMarkTellsOnceOfEveryEdition) {
    const QString mark = path("data/znacka");
    const auto leave = [&](const QByteArray& text) {
        ASSERT_TRUE(test::write(mark + u".nova"_s, text));
        QFile::remove(mark);
        ASSERT_TRUE(QFile::rename(mark + u".nova"_s, mark));
    };
    leave("3 1 1\n");
    QStringList shown;
    bool isPossible = true;
    const EditionWatch watch(mark, [&](std::int16_t recipe, int section) {
        shown << u"%1 %2"_s.arg(recipe).arg(section);
        return isPossible;
    });
    const EditionWatch none({}, [&](std::int16_t, int) { return shown << u"nothing"_s, true; });
    ASSERT_TRUE(test::write(path("data/jiny"), "9 9 9"));
    QTest::qWait(20);
    EXPECT_EQ(shown, QStringList()) << "the edition that was there at the start";
    isPossible = false;
    leave("4 7 5\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown == QStringList{u"7 5"_s, u"7 5"_s}; })) << "asked again";
    isPossible = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.size() == 3; }));
    QFile::remove(mark);
    QTest::qWait(250);
    EXPECT_EQ(shown.size(), 3);
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
    const QString odd = path("a\\b");
    for (const QString& disc : {path("disc"), odd}) ASSERT_TRUE(test::write(disc + u"/hudba.wav"_s));
    for (const QString& stored : {u"F:\\"_s, u"../disc"_s, odd}) {
        platform.settings.set(u"CDPath"_s, stored);
        make();
        ASSERT_TRUE(program->Main({}));
        EXPECT_EQ(program->mediaFile(u"HUDBA.WAV"_s), (stored == odd ? odd : path("disc")) + u"/hudba.wav"_s);
    }
}

TEST_F(ProgramTest, YesEndsWhateverIsOpen) {
    ASSERT_TRUE(program->Main({}));
    QStringList atTheEnd;
    const test::OnEvent watch(QEvent::Show, [&](const QObject* shown) {
        if (shown->objectName() != u"frmSplash") return;
        for (const Form* form : program->stage().forms()) atTheEnd << form->name();
    });
    for (const char* name : {"frmSeznam", "FrmTabulky", "frmTabulky"}) {
        auto* screen = new Form(*program, QLatin1String(name));
        program->PushScreen(*screen);
        screen->showForm();
    }
    program->SavedDisplayMode = u"1024,768"_s;
    program->keepAwake(u"film"_s);
    QTimer::singleShot(0, [&] { exitAnswering(Qt::Key_Return); });
    QTimer patience;
    QObject::connect(&patience, &QTimer::timeout, [] { QApplication::exit(1); });
    patience.start(5000);
    EXPECT_EQ(QApplication::exec(), 0) << "the process ends with the program";
    EXPECT_EQ(atTheEnd.filter(u"Tab"_s) + atTheEnd.filter(u"Seznam"_s), QStringList{u"FrmTabulky"_s});
    EXPECT_TRUE(program->hasEnded());
    EXPECT_EQ(platform.music.commands, (QStringList{u"stop"_s, u"close"_s}));
    EXPECT_EQ(platform.music.notify, MediaNotify::Off);
    EXPECT_TRUE(program->stage().forms().empty());
    EXPECT_TRUE(program->stage().isHidden());
    EXPECT_FALSE(program->Db().isOpen());
    EXPECT_FALSE(platform.sleep.inhibited);
    EXPECT_GT(platform.effects.stops, 0);
    EXPECT_EQ(platform.display.asked, QList<QSize>{QSize(1024, 768)});
    program->ConfirmExit();  // asks nothing more
    program->endAtOnce();
    EXPECT_EQ(platform.display.asked.size(), 1);
}

TEST_F(ProgramTest, TheSystemEndsItWithoutAQuestion) {
    ASSERT_TRUE(program->Main({}));
    program->SavedDisplayMode = u"1024,768"_s;
    program->endAtOnce();
    EXPECT_TRUE(program->hasEnded());
    EXPECT_FALSE(program->Db().isOpen());
    program->endAtOnce();
    EXPECT_EQ(platform.display.asked, QList<QSize>{QSize(1024, 768)});
}

TEST_F(ProgramTest, AScreenThatWantsToStayKeepsTheProgram) {
    class Staying final : public Form {
      public:
        using Form::Form;
        bool readyToEnd() override { return false; }
    };
    ASSERT_TRUE(program->Main({}));
    program->PushScreen(*new Staying(*program, u"frmZustane"_s));
    program->ConfirmExit();  // or its question would wait for ever
    EXPECT_FALSE(program->hasEnded());
}

TEST_F(ProgramTest, OneBoxAsksOneQuestionAfterAnother) {
    ASSERT_TRUE(program->Main({}));
    const auto boxes = [&] {
        return std::ranges::count_if(program->stage().forms(),
                                     [](const Form* form) { return form->name() == u"frmMessage"; });
    };
    for (int question = 0; question < 2; ++question) {
        QTimer::singleShot(0, [&] { press(Qt::Key_Return); });
        program->ZobrazZpravu(u"A?"_s, 36);
    }
    EXPECT_EQ(boxes(), 1);
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] { press(Qt::Key_N); });
        EXPECT_EQ(program->AskOrLeave(u"B?"_s, 36), 7) << "over the first";
        press(Qt::Key_Return);
    });
    EXPECT_EQ(program->ZobrazZpravu(u"A?"_s, 36), 6);
    EXPECT_EQ(boxes(), 2);
    EXPECT_EQ(platform.beeper.beeps, 4);
}

TEST_F(ProgramTest, TheDesktopsWishesHold) {
    PlatformParts parts = platform.parts();
    parts.askDesktop = [](QObject&, const std::function<void(DesktopWishes)>& hand) { hand({true, false}); };
    make(parts);
    EXPECT_TRUE(program->stage().eyes().isCalm());
    EXPECT_FALSE(program->stage().eyes().hasContrast());
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

TEST_F(ProgramTest, WithoutTheShippedBookTheUsersCopyIsRead) {
    ASSERT_TRUE(QFile::rename(path("program/Sarne.drc"), path("data/Sarne.drc")));
    ASSERT_TRUE(program->Main({}));
    EXPECT_EQ(program->Db().OpenTable(u"Recepty"_s).RecordCount(), 2);
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
    program->userFile().setValue(u"KitchenShown"_s, {});
    platform.settings.set(u"KitchenShown"_s, u"1"_s);
    make();
    ASSERT_TRUE(program->Main({}));
    EXPECT_EQ(lit(), 0) << "so say the machine's settings";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
