#include "app/program.h"

#include "app/editionwatch.h"
#include "forms/textview.h"
#include "screens/navigation/frmmenu.h"
#include "screens/recipe/frmrecept.h"
#include "smallprogram.h"
#include "support/files.h"

namespace sarne {
namespace {

TEST_F(ProgramTest, StartsOverWhateverIsThere) {
    does(u"the first start"_s, [&] { start(); });
    note(u"in "_s + program->AppDir + u": "_s + formNames().join(u' '));
    for (const bool on : program->SoundFlags) asks(u"a sound is on, of four"_s, on);
    does(u"a key"_s, [&] { press(Qt::Key_F2); });
    make();
    does(u"the second start"_s, [&] { start(u"-s"_s); });
    for (const char* line : {"s", "/s", "-s", "", "S", "/S", "/s x", "--s", " s"})
        asks(u"'%1' is for a show"_s.arg(QLatin1String(line)), isShowSwitch(QLatin1String(line)));
    EXPECT_TRUE(program->ShowMode);
    program->userFile().setValue(u"KitchenShown"_s, {});
    platform.settings.set(u"KitchenShown"_s, u"1"_s);
    PlatformParts wished = parts();
    wished.askDesktop = [](QObject&, const std::function<void(DesktopWishes)>& hand) { hand({true, false}); };
    make(wished);
    does(u"where the machine's settings say it was shown"_s, [&] { start(); });
    EXPECT_TRUE(program->stage().eyes().isCalm() && !program->stage().eyes().hasContrast())
        << "as was wished";
    ASSERT_TRUE(QFile::rename(path("program/Sarne.drc"), path("data/Sarne.drc")));
    make();
    does(u"without the shipped book"_s, [&] { start(); });
    EXPECT_EQ(program->Db().OpenTable(u"Recepty"_s).RecordCount(), 2) << "the user's copy is read";
    QFile::remove(path("data/Sarne.drc"));
    for (const char* kind : {"missing", "garbage", "empty"}) {
        QFile::remove(path("program/Sarne.drc"));
        if (*kind != 'm') {
            for (const char* name : {"program/Sarne.drc", "program/KOp.bj", "program/Sarne.rcc"})
                ASSERT_TRUE(test::write(path(name), QByteArray(*kind == 'g' ? 5000 : 0, 'g')));
        }
        make();
        does(u"its files are "_s + QLatin1String(kind), [&] {
            start();
            for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Escape}) press(key);
        });
        does(u"the end"_s, [&] { program->ConfirmExit(); }, {Qt::Key_Return});
    }
    expectAsKept("zacatek");
}

TEST_F(ProgramTest, FollowsABookThatIsWrittenWhileItRuns) {
    const auto edition = [this](std::int16_t recipe, int section) {
        return [=, this] { asks(u"shown"_s, program->showEdition(recipe, section)); };
    };
    does(u"before the main screen"_s, edition(7, 0));
    start();
    does(u"while a question waits, over settings"_s, [&] {
        program->screens().showMusicSettings();
        QTimer::singleShot(0, edition(7, 0));
        program->ZobrazZpravu(u"Opravdu?"_s, 36);
    });
    test::writeRecipeDatabase(path("data/nova.drc"),
                              {u"INSERT INTO Recepty (ID, Nazev) VALUES (7, 'Kapr')"_s});
    QFile::remove(path("program/Sarne.drc"));
    ASSERT_TRUE(QFile::rename(path("data/nova.drc"), path("program/Sarne.drc")));
    does(u"a recipe of the new book"_s, edition(7, 5));
    Recordset recipes = program->Db().OpenTable(u"Recepty"_s);
    EXPECT_TRUE(RecordExists(recipes, 7) && !RecordExists(recipes, 5));
    auto* shown = qobject_cast<frmRecept*>(program->FormStack.top());
    EXPECT_EQ(shown ? shown->section() : 0, 5);
    does(u"no recipe"_s, edition(0, 0));
    does(u"a menu"_s,
         [&] { QTest::mouseClick(child<QWidget>(*program->mainScreen(), "imgClick(12)"), Qt::LeftButton); });
    does(u"no recipe"_s, edition(0, 0));
    does(u"the end"_s, [&] { program->ConfirmExit(); }, {Qt::Key_Return});
    does(u"after it"_s, edition(7, 0));
    expectAsKept("vydani");
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

TEST_F(ProgramTest, FindsItsDiscOrAsksForTheDrive) {
    const QString odd = path("a\\b");
    for (const QString& disc : {path("disc"), odd}) ASSERT_TRUE(test::write(disc + u"/hudba.wav"_s));
    platform.settings.set(u"Drives/F"_s, path("disc"));
    const std::pair<QString, QList<Qt::Key>> cases[] = {
        {{}, {Qt::Key_E, Qt::Key_Return}},
        {u"/neni/tu"_s, {Qt::Key_D, Qt::Key_I, Qt::Key_Return}},
        {u"Q:\\"_s, {Qt::Key_Return}},
        {u"F:\\"_s, {}},
        {u"../disc"_s, {}},
        {odd, {}}};
    for (const auto& [stored, typed] : cases) {
        platform.settings.set(u"CDPath"_s, stored);
        make();
        does(
            u"the store says "_s + stored, [&] { start(); }, typed);
        asks(u"the music"_s, program->mediaFile(u"HUDBA.WAV"_s));
    }
    expectAsKept("mechanika");
}

TEST_F(ProgramTest, AsksAndEnds) {
    class Staying final : public Form {
      public:
        using Form::Form;
        bool readyToEnd() override { return false; }
    };
    start();
    does(u"one question after another"_s, [&] {
        for (int question = 0; question < 2; ++question) program->ZobrazZpravu(u"A?"_s, 36);
    });
    note(u"one box asks both: "_s + formNames().join(u' '));
    const auto askOver = [&] { asks(u"over it"_s, program->AskOrLeave(u"B?"_s, 36)); };
    does(u"one over another"_s,
         [&] {
             QTimer::singleShot(0, askOver);
             asks(u"the first"_s, program->ZobrazZpravu(u"A?"_s, 36));
         },
         {Qt::Key_N, Qt::Key_Return});
    note(u"two ask: "_s + formNames().join(u' '));
    does(u"the window's close button"_s, [&] { program->stage().close(); }, {Qt::Key_N});
    does(u"and over the settings"_s,
         [&] {
             press(Qt::Key_F4);
             program->stage().close();
         },
         {Qt::Key_N});
    auto* staying = new Staying(*program, u"frmZustane"_s);
    does(u"a screen that wants to stay"_s, [&] {
        program->PushScreen(*staying);
        program->ConfirmExit();
    });
    program->PopScreen(*staying);
    for (const char* name : {"frmSeznam", "FrmTabulky", "frmTabulky"}) {
        auto* screen = new Form(*program, QLatin1String(name));
        program->PushScreen(*screen);
        screen->showForm();
    }
    program->SavedDisplayMode = u"1024,768"_s;
    program->keepAwake(u"film"_s);
    platform.music.notify = MediaNotify::On;
    does(u"the end"_s,
         [&] {
             QTimer::singleShot(0, [&] { program->stage().close(); });
             QTimer patience;
             QObject::connect(&patience, &QTimer::timeout, [] { QApplication::exit(1); });
             patience.start(5000);
             asks(u"the process ends with"_s, QApplication::exec());
         },
         {Qt::Key_A});
    EXPECT_EQ(platform.music.notify, MediaNotify::Off);
    EXPECT_TRUE(program->stage().forms().empty());
    EXPECT_EQ(platform.display.current(), QSize(1024, 768));
    does(u"after it"_s, [&] {
        program->ConfirmExit();
        program->endAtOnce();
    });
    platform.display.size = {800, 600};
    make();
    start();
    program->SavedDisplayMode = u"1024,768"_s;
    for (const char* time : {"at once", "once more"})
        does(u"the system ends it "_s + QLatin1String(time), [&] { program->endAtOnce(); });
    expectAsKept("konec");
}

TEST_F(ProgramTest, TheHelpSaysWhatIsMissingAndWhatWasKept) {
    ASSERT_TRUE(program->notes().keep({77, u"Úhoř"_s, u"se *1 víc\nsoli"_s}));
    for (const char* beside : {"data/Sarne.drc.2026-11-21-2", "data/Sarne.drc.origin"})
        ASSERT_TRUE(test::write(path(beside)));
    const auto help = [&](const char* form) {
        program->screens().showHelpFor(QLatin1String(form));
        auto* view = program->FormStack.top()->findChild<TextView*>(u"picText"_s);
        asks(u"help of "_s + QLatin1String(form), view ? view->drawnText().simplified() : u"the topics"_s);
        press(Qt::Key_Escape);
    };
    make();
    start();
    for (const char* form : {"frmHlavni", "frmSit"}) help(form);
    QFile::resize(path("program/Sarne.drc"), 0);
    QDir(path("disc")).removeRecursively();
    for (const char* form : {"frmHlavni", "frmNastavHudbu"}) help(form);
    make();
    does(u"without a book and a disc"_s, [&] { start(); }, {Qt::Key_Return});
    for (const char* form : {"frmHlavni", "frmNastavHudbu", "frmSit"}) help(form);
    expectAsKept("stav");
}

TEST_F(ProgramTest, AnIngredientWithoutRecipesLeavesTheKeyboardUsable) {
    start();
    frmHlavni& main = *program->mainScreen();
    for (const bool byMouse : {true, false, true, false}) {
        does(byMouse ? u"by mouse"_s : u"by key"_s, [&] {
            QTest::mouseClick(child<QWidget>(main, "imgClick(12)"), Qt::LeftButton);
            QTest::keyClicks(QApplication::focusWidget(), u"kapie"_s);
            press(Qt::Key_Return);
            byMouse ? QTest::mouseClick(child<QWidget>(*main.menu()->child(), "lblOdkaz(1)"), Qt::LeftButton)
                    : press(Qt::Key_Return);
        });
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_F4, Qt::Key_Escape, Qt::Key_X})
            does(QVariant::fromValue(key).toString(), [&] { press(key); }, {Qt::Key_N});
    }
    expectAsKept("surovina");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
