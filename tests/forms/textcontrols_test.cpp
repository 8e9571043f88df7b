#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include "forms/edit.h"
#include "forms/entrysign.h"
#include "forms/fingers.h"
#include "forms/holdrepeat.h"
#include "forms/letterboard.h"
#include "forms/noteedit.h"
#include "forms/textview.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

class TextControls : public testing::Test {
  protected:
    TextControls() { screen->showForm(); }
    FakeSarne run;
    Form* screen = new Form(run, u"frmA"_s);
};

TEST_F(TextControls, AHeldButtonRepeatsUntilItIsLetGo) {
    Button arrow(*screen, u"imgSipky(0)"_s);
    arrow.place({0, 0, 600, 600});
    int steps = 0;
    HoldRepeat held(arrow, [&] { ++steps; });
    QTest::mousePress(&arrow, Qt::LeftButton);
    EXPECT_EQ(steps, 0) << "the click steps, not the press";
    EXPECT_EQ(held.timer().interval(), HoldRepeat::kDelay);
    held.timer().fire();
    held.timer().fire();
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(held.timer().interval(), HoldRepeat::kInterval);
    QTest::mouseRelease(&arrow, Qt::LeftButton);
    EXPECT_FALSE(held.isHeld());
    EXPECT_EQ(steps, 3);
    arrow.click();
    EXPECT_EQ(steps, 4) << "pressed by a screen reader";

    QTest::mousePress(&arrow, Qt::LeftButton);
    QTest::mouseRelease(&arrow, Qt::LeftButton, {}, {500, 500});
    EXPECT_EQ(steps, 4) << "let go elsewhere";
    QTest::mousePress(&arrow, Qt::LeftButton);
    arrow.setEnabled(false);
    EXPECT_FALSE(held.isHeld());
}

TEST_F(TextControls, AShortTextIsSetLargerAndAlwaysWhole) {
    TextView view(*screen, u"picText"_s);
    view.place({1500, 1500, 6000, 3000});
    const auto heightOf = [&](int lines) {
        view.drawFilling([&] {
            for (int line = 0; line < lines; ++line) view.drawRichText(u"řádek"_s);
        });
        return view.contentHeight();
    };
    const int large = heightOf(1), some = heightOf(7), many = heightOf(10);
    EXPECT_GT(large, some / 7);
    EXPECT_GT(some / 7, many / 10);
    for (int lines = 1; lines <= 10; ++lines) EXPECT_LE(heightOf(lines), 3000) << lines;
    EXPECT_GT(heightOf(40), 3000) << "scrolls";
    EXPECT_EQ(view.contentHeight() / 40, many / 10) << "in the designed size";
    EXPECT_EQ(view.drawnText().count(u'\n'), 39) << "drawn once";
}

TEST_F(TextControls, LinkPhrasesAreLetGo) {
    TextView view(*screen, u"picRecept"_s);
    view.place({1500, 1500, 6000, 900});
    const QString head = u"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset238 Arial;}}\\plain\\par\\pard\\plain "_s;
    view.drawRichText(head + u"Vezmi *12kapra* a nic.}"_s);
    view.drawRichText(head + u"\\par\\par\\par\\par\\par Pusť @7video s rybou@ \\par #x# }"_s);
    ASSERT_EQ(view.pieces().linkCount(), 3);
    QList<LinkKey> opened;
    QObject::connect(&view, &TextView::linkActivated, [&](LinkKey key) { opened << key; });

    const QPoint onFirst = view.toPixels(view.pieces().linkRect(0).center());
    QTest::mouseMove(&view, onFirst);
    QTest::mousePress(&view, Qt::LeftButton, {}, onFirst);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {1, 1});
    EXPECT_TRUE(opened.empty()) << "let go beside the phrase";
    QTest::mousePress(&view, Qt::LeftButton, {}, onFirst);
    view.Cls();
    view.drawRichText(head + u"Vezmi *12kapra* a nic.}"_s);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, onFirst);
    EXPECT_TRUE(opened.empty()) << "what was pressed is no more";
    QTest::mouseMove(&view, {1, 1});
    EXPECT_FALSE(view.pieces().hovered());
}

class NoteEditing : public TextControls {
  protected:
    NoteEditing() {
        note.place({1500, 1500, 6000, 3000});
        note.focusAtEnd();
    }
    void press(int key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(&note.editor(), static_cast<Qt::Key>(key), with);
    }
    NoteEdit note{*screen, u"RtfPozn"_s};
};

TEST_F(NoteEditing, AParagraphThatGrowsLongIsShownInPiecesAndStaysOne) {
    QString words = u"slovo "_s.repeated(LongParagraphs::kLongest / 3);
    note.setText(words);
    const auto longest = [this] {
        int most = 0;
        for (QTextBlock block = note.editor().document()->begin(); block.isValid(); block = block.next())
            most = std::max(most, block.length());
        return most;
    };
    EXPECT_EQ(note.text(), words);
    EXPECT_LE(longest(), LongParagraphs::kLongest + 8);
    EXPECT_TRUE(note.editor().document()->begin().next().text().startsWith(u"slovo"_s))
        << "no word is broken";
    EXPECT_FALSE(note.editor().document()->isUndoAvailable());
    note.editor().moveCursor(QTextCursor::Start);
    note.editor().insertPlainText(u"abc "_s.repeated(LongParagraphs::kLongest * 3 / 8));
    words.prepend(u"abc "_s.repeated(LongParagraphs::kLongest * 3 / 8));
    EXPECT_EQ(note.text(), words);
    EXPECT_LE(longest(), 2 * LongParagraphs::kLongest + 2);
    const QTextBlock first = note.editor().document()->begin();
    EXPECT_LE(first.length(), LongParagraphs::kLongest + 2) << "broken where it begins";
    EXPECT_TRUE(first.text().contains(u"abc abc "_s));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), words);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(note.text(), words);
    EXPECT_LE(longest(), LongParagraphs::kLongest + 8);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(note.text(), words);
}

TEST_F(NoteEditing, TakesCzechLettersThatAreComposed) {
    QInputMethodEvent composing(u"ˇ"_s, {});
    QApplication::sendEvent(QApplication::focusWidget(), &composing);
    EXPECT_EQ(QApplication::focusWidget(), &note.editor());
    EXPECT_EQ(note.text(), QString());
    QInputMethodEvent done;
    done.setCommitString(u"ř"_s);
    QApplication::sendEvent(QApplication::focusWidget(), &done);
    EXPECT_EQ(note.text(), u"ř"_s);
    // AltGr arrives as Ctrl and Alt held together, or alone; the letter counts.
    QKeyEvent altGr(QEvent::KeyPress, Qt::Key_Q, Qt::GroupSwitchModifier, u"@"_s);
    QApplication::sendEvent(&note.editor(), &altGr);
    EXPECT_EQ(note.text(), u"ř@"_s);
}

TEST(LetterKeys, HoldTheAlphabetApartAndFormsOfALetterGoRound) {
    const LetterKeys keys;
    QString typed;
    for (const LetterKey& key : keys.keys()) {
        typed += key.text;
        EXPECT_TRUE(QRect({0, 0}, keys.size()).contains(key.place));
        EXPECT_GE(key.place.width(), kFingerTwips);
        EXPECT_EQ(keys.keyAt(key.place.center()), &key - keys.keys().data()) << "no other lies over it";
    }
    for (char letter = 'a'; letter <= 'z'; ++letter)
        EXPECT_TRUE(typed.contains(QLatin1Char(letter))) << letter;
    EXPECT_EQ(withNextAccent(withNextAccent(u'E')), QChar(u'Ě'));
    EXPECT_EQ(withNextAccent(u'ě'), QChar(u'e'));
    EXPECT_EQ(withNextAccent(u'k'), QChar(u'k'));
    for (const QRect& entry :
         {QRect(0, 0, 900, 400), QRect(9000, 8500, 2900, 400), QRect(0, 100, 12000, 8800)})
        EXPECT_TRUE(QRect(0, 0, 12000, 9000).contains(letterKeysPlace(keys.size(), entry)));
}

TEST_F(NoteEditing, IsTypedByMouseAloneOnTheKeyboardOnTheScreen) {
    auto& sign = *note.findChild<EntrySign*>();
    QTest::mouseClick(&sign, Qt::LeftButton);
    LetterBoard& board = *sign.board();
    QMouseEvent beside(QEvent::MouseButtonPress, {1, 1}, board.mapToGlobal(QPointF(1, 1)), Qt::LeftButton,
                       Qt::LeftButton, {});
    beside.ignore();
    QCoreApplication::sendEvent(&board, &beside);
    EXPECT_TRUE(beside.isAccepted()) << "what lies below does not get it";
    const auto use = [&board](const QString& caption) {
        int key = 0;
        while (board.keys().caption(key) != caption) ++key;
        QTest::mouseClick(&board, Qt::LeftButton, {},
                          board.toPixels(board.keys().keys()[size_t(key)].place.center()));
    };
    for (const char* key : {"Aa", "R", "y", "b", "a", "a", "◄", "é ě", "mezera", "5", "Enter", "x"})
        use(QString::fromUtf8(key));
    EXPECT_EQ(note.text(), QStringLiteral("Rybá 5\nx"));
    EXPECT_TRUE(note.hasInput());
    note.editor().selectAll();
    use(QStringLiteral("◄"));
    EXPECT_EQ(note.text(), QString());
    screen->setFocus();
    EXPECT_FALSE(board.isVisible()) << "nothing is typed any more";
}

TEST_F(NoteEditing, OffersWhatCanBeDoneNow) {
    test::expectCases(u"nabidka"_s, [this](const QString& words) {
        QApplication::clipboard()->clear();
        run.window.eyes().setTextPercent(100);
        run.window.resize(800, 600);
        Edit line(*screen, u"txt"_s);
        line.place({8000, 1500, 3000, 450});
        auto* entry = line.findChild<QLineEdit*>();
        entry->show();
        note.setText({});
        const bool isNote = words.startsWith(u"note");
        isNote ? note.focusAtEnd() : line.focusAll();
        for (const QString& word : words.split(u' ')) {
            if (word == u"typed") QTest::keyClicks(run.window.focusWidget(), u"ab"_s);
            if (word == u"selected")
                QTest::keyClick(run.window.focusWidget(), Qt::Key_A, Qt::ControlModifier);
            if (word == u"undone") QTest::keyClick(run.window.focusWidget(), Qt::Key_Z, Qt::ControlModifier);
            if (word == u"copied") QApplication::clipboard()->setText(u"ryba"_s);
            if (word == u"wide") run.window.resize(1600, 1200);
            if (word == u"large") run.window.eyes().setTextPercent(150);
            QApplication::processEvents();
        }
        QStringList shown;
        QTimer::singleShot(0, [&shown] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) return;
            for (const QAction* action : menu->actions())
                if (action->isEnabled()) shown << action->text();
            shown << menu->styleSheet().section(u"font-size:"_s, 1).section(u'}', 0, 0);
            menu->actions().last()->trigger();
            menu->close();
        });
        QWidget& at = isNote ? *note.editor().viewport() : *run.window.focusWidget();
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, {5, 5}, at.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&at, &ask);
        return (shown << (isNote ? note.editor().textCursor().selectedText() : entry->selectedText()))
            .join(u'|');
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
