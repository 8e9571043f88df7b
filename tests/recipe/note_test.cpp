#include <QElapsedTimer>
#include <QPlainTextEdit>

#include "db/ownnote.h"
#include "forms/noteedit.h"
#include "recipe/recipefixture.h"

namespace sarne {
namespace {

class NoteTest : public RecipeTest {
  protected:
    NoteTest() { click("imgBtn(7)"); }
    NoteEdit& note() { return at<NoteEdit>("RtfPozn"); }
};

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
    EXPECT_EQ(ending.messages.size(), 1);
    EXPECT_TRUE(storedNote().isNull());
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
        click("cmdUloz(0)");
        EXPECT_EQ(storedNote().toString(), text + u'!');
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
