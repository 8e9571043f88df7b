#include <QClipboard>
#include <QElapsedTimer>
#include <QPlainTextEdit>

#include "db/ownnote.h"
#include "forms/noteedit.h"
#include "recipe/recipefixture.h"

namespace sarne {
namespace {

const QString kQuestion = u"36: Poznámka byla změněna. Chcete tyto změny uložit?"_s;

class NoteTest : public RecipeTest {
  protected:
    NoteTest() { click("imgBtn(7)"); }
    NoteEdit& note() { return at<NoteEdit>("RtfPozn"); }
};

TEST_F(NoteTest, AChangedNoteAsksBeforeAnotherSectionIsDrawn) {
    type(u"x"_s);
    run.answers = {7};
    run.whileAsking = [&] { EXPECT_EQ(form->section(), 7); };
    click("imgBtn(1)");
    EXPECT_EQ(run.messages, QStringList{kQuestion});
    EXPECT_TRUE(storedNote().isNull());
    EXPECT_EQ(form->section(), 1);

    click("imgBtn(7)");
    EXPECT_EQ(note().text(), QString());
    type(u"Sůl c X\n"_s);
    run.answers = {6};
    click("imgBtn(7)");
    EXPECT_EQ(storedNote().toString(), u"Sůl c X\n"_s);
    EXPECT_EQ(note().text(), u"Sůl c X\n"_s) << "its own button opens it again";
    run.messages.clear();
    click("imgBtn(2)");
    EXPECT_TRUE(run.messages.isEmpty());
}

TEST_F(NoteTest, ALineThatAScreenAboveHasAddedIsThereAndNotWrittenOver) {
    type(u"jedna"_s);
    click("imgBtnHlavni(0)");
    Form* above = run.openAbove("frmNad");
    EXPECT_TRUE(appendToNote(run.database, run.keptNotes, 5, u"Uvařeno: dvě"_s));
    run.PopScreen(*above);
    EXPECT_EQ(note().text(), u"jedna\nUvařeno: dvě"_s);
    note().focusAtEnd();
    type(u"!"_s);
    click("cmdUloz(0)");
    EXPECT_EQ(storedNote().toString(), u"jedna\nUvařeno: dvě!"_s);
}

TEST_F(NoteTest, ItsButtonsSaveOrDiscardWithoutAsking) {
    type(u"jedna"_s);
    click("cmdUloz(1)");
    EXPECT_TRUE(storedNote().isNull());
    EXPECT_FALSE(note().isVisible());
    click("imgBtn(7)");
    type(u"dvě *12 {"_s);
    click("cmdUloz(0)");
    EXPECT_EQ(storedNote().toString(), u"dvě *12 {"_s);
    EXPECT_EQ(shown(), u"dvě *12 {"_s) << "the note is still there to be read";
    click("imgBtn(7)");
    note().editor().selectAll();
    press(Qt::Key_Delete);
    click("cmdUloz(0)");
    EXPECT_FALSE(storedNote().isNull()) << "an emptied note is an empty text";
    EXPECT_EQ(storedNote().toString(), QString());
    EXPECT_TRUE(run.messages.isEmpty());
}

TEST_F(NoteTest, TheEndOfTheProgramAsksAndTheNoteStaysOpen) {
    type(u"ryba"_s);
    run.answers = {6};
    click("imgBtnHlavni(3)");
    EXPECT_EQ(run.messages, QStringList{kQuestion});
    EXPECT_EQ(run.exits, 1);
    EXPECT_EQ(storedNote().toString(), u"ryba"_s);
    EXPECT_TRUE(note().isVisible());
    EXPECT_EQ(note().text(), u"ryba"_s);
    click("imgBtnHlavni(3)");
    EXPECT_EQ(run.messages.size(), 1) << "it is stored, nothing has changed";
    note().focusAtEnd();
    type(u"!"_s);
    run.answers = {7};
    press(Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(run.messages.size(), 2);
    EXPECT_EQ(storedNote().toString(), u"ryba"_s);
    EXPECT_EQ(note().text(), u"ryba!"_s) << "not saved, not lost";
    run.answers = {6};
    click("imgBtn(0)");
    EXPECT_EQ(storedNote().toString(), u"ryba!"_s);
}

TEST_F(NoteTest, EveryWayOfClosingAsksOnce) {
    const struct {
        const char* way;
        std::function<void()> close;
    } ways[] = {{"escape", [&] { press(Qt::Key_Escape); }},
                {"back", [&] { click("imgBtnHlavni(2)"); }},
                {"Skryj", [&] { form->Skryj(); }},
                {"unloaded by others", [&] { run.PopScreen(*form); }}};
    int number = 0;
    for (const auto& way : ways) {
        type(QString::number(++number));
        run.messages.clear();
        run.answers = {6};
        way.close();
        EXPECT_EQ(run.messages, QStringList{kQuestion}) << way.way;
        EXPECT_EQ(storedNote().toString(), u"1234"_s.left(number)) << way.way;
        open(5);
        click("imgBtn(7)");
    }
}

TEST_F(NoteTest, WhoDeclinedOnTheWayOutIsNotAskedAgain) {
    struct EndingRun : FakeSarne {
        void ConfirmExit() override {
            Ending = ReadyToEnd();
            for (Form* loaded : window.forms()) loaded->unload();
        }
    } ending;
    ending.database.Open(file());
    form = new frmRecept(ending, lookedAt);
    form->Zobraz(5);
    click("imgBtn(7)");
    QTest::keyClicks(&note().editor(), u"x"_s);
    ending.answers = {7};
    click("imgBtnHlavni(3)");
    EXPECT_EQ(ending.messages, QStringList{kQuestion});
    EXPECT_TRUE(storedNote().isNull());
}

TEST_F(NoteTest, WhoLeavesTheQuestionStaysWithTheNote) {
    type(u"ryba"_s);
    const struct {
        const char* way;
        std::function<void()> leave;
    } ways[] = {{"two Escapes",
                 [&] {
                     press(Qt::Key_Escape);
                     press(Qt::Key_Escape);
                 }},
                {"another section", [&] { click("imgBtn(1)"); }},
                {"its name", [&] { click("lblIkona(2)"); }},
                {"the program's end", [&] { click("imgBtnHlavni(3)"); }}};
    for (const auto& way : ways) {
        run.answers = {0, 0};
        run.messages.clear();
        way.leave();
        EXPECT_FALSE(run.messages.isEmpty()) << way.way;
        EXPECT_EQ(run.FormStack.top(), form) << way.way;
        EXPECT_EQ(note().text(), u"ryba"_s) << way.way;
        EXPECT_EQ(form->section(), 7) << way.way;
    }
    EXPECT_EQ(run.exits, 0);
    EXPECT_TRUE(storedNote().isNull());
    run.answers = {0};
    run.PopScreen(*form);
    EXPECT_EQ(storedNote().toString(), u"ryba"_s) << "a screen that has to go takes no note along";
}

TEST_F(NoteTest, AnEndBelowAnotherScreenAsksAboutTheNoteFirst) {
    type(u"ryba"_s);
    Form* help = run.openAbove("frmStranka");
    run.answers = {0};
    help->endProgram();
    EXPECT_EQ(run.messages, QStringList{kQuestion});
    EXPECT_EQ(run.exits, 0);
    run.answers = {6};
    help->endProgram();
    EXPECT_EQ(run.exits, 1);
    EXPECT_EQ(storedNote().toString(), u"ryba"_s);
}

TEST_F(NoteTest, ANoteReadsAsItWasTyped) {
    const QString text = u"{\\rtf1 *12 sůl* @7 a {\\b } #"_s;
    type(text);
    click("cmdUloz(0)");
    EXPECT_EQ(shown(), text);
    EXPECT_EQ(view().pieces().linkCount(), 0);
    EXPECT_TRUE(form->collectedText().contains(u"Vlastní poznámka: "_s + text));
}

TEST_F(NoteTest, PrintingStoresTheNoteWithABlankBehindIt) {
    type(u"ryba"_s);
    click("imgBtnHlavni(0)");
    EXPECT_EQ(storedNote().toString(), u"ryba "_s);
    EXPECT_TRUE(run.messages.isEmpty());
    EXPECT_EQ(run.recorded.calls, QStringList{u"printRecipes 1"_s});
    EXPECT_TRUE(note().isVisible());
    click("imgBtn(1)");
    EXPECT_TRUE(run.messages.isEmpty()) << "it counts as unchanged";
    EXPECT_EQ(storedNote().toString(), u"ryba "_s);
    click("imgBtnHlavni(0)");
    EXPECT_EQ(storedNote().toString(), u"ryba "_s) << "an unchanged note is left alone";
}

TEST_F(NoteTest, AParagraphOfAnyLengthIsQuickToTypeInAndComesBackWhole) {
    const QString piece = u"rohlík\u00a0😀\u2063 "_s;
    const QString strange = u"'; DROP TABLE Recepty; -- \"ž\"\t€ 😀 "_s.repeated(10000);
    for (const QString& text : {piece.repeated(100000), QString(1000000, u'x'), strange}) {
        run.database.Execute(
            u"UPDATE Recepty SET Vlastni = '%1' WHERE ID = 5"_s.arg(QString(text).replace(u'\'', u"''"_s)));
        form->Skryj();
        open(5);
        QElapsedTimer opening;
        opening.start();
        click("imgBtn(7)");
        EXPECT_LT(opening.elapsed(), 20000) << "it used to be minutes";
        EXPECT_EQ(note().text(), text);
        type(u"!"_s);
        EXPECT_GT(note().editor().blockCount(), 100) << "the editor lays out no paragraph of that length";
        note().editor().selectAll();
        note().editor().copy();
        EXPECT_EQ(QApplication::clipboard()->text(), QString(text + u'!').replace(QChar::Nbsp, u' '));
        click("cmdUloz(0)");
        EXPECT_EQ(storedNote().toString(), text + u'!');
    }
}

TEST_F(NoteTest, TypingBreaksAParagraphThatHasBecomeLong) {
    type(u"a b"_s.repeated(2000));
    EXPECT_GT(note().editor().blockCount(), 1);
    type(u"\nkonec"_s);
    EXPECT_EQ(note().text(), u"a b"_s.repeated(2000) + u"\nkonec"_s);
    note().editor().undo();
    EXPECT_TRUE(note().text().startsWith(u"a ba b"_s));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
