#include <gtest/gtest.h>
#include <QAccessible>

#include "forms/button.h"
#include "forms/entrylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/readabletext.h"
#include "forms/textview.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

QAccessibleInterface* heard(QObject& object) {
    return QAccessible::queryAccessibleInterface(&object);
}

QStringList names(QAccessibleInterface* parent) {
    QStringList all;
    for (int i = 0; i < parent->childCount(); ++i) all << parent->child(i)->text(QAccessible::Name);
    return all;
}

TEST(ReadableText, TheCaretGoesByLineWordAndCharacterAndStopsAtTheEnds) {
    using Step = ReadableText::Step;
    ReadableText text;
    text.addLine(QStringLiteral("200 g"), {0, 0, 500, 300});
    text.addLine(QStringLiteral("másla"), {1000, 0, 500, 300});  // another column of the same line
    text.addLine(QStringLiteral("Troubu rozehřejeme."), {0, 300, 3800, 300});
    EXPECT_EQ(text.text(), QStringLiteral("200 g másla\nTroubu rozehřejeme."));
    EXPECT_EQ(text.moved(0, Step::Word, 1), 4);
    EXPECT_EQ(text.moved(4, Step::Word, -1), 0);
    EXPECT_EQ(text.moved(3, Step::Line, 1), 12);
    EXPECT_EQ(text.moved(15, Step::Line, 1), 15);
    EXPECT_EQ(text.moved(0, Step::Character, -1), 0);
    EXPECT_EQ(text.moved(31, Step::Character, 1), 31);
    EXPECT_EQ(text.offsetAt({3700, 450}), 12 + 18);
    EXPECT_EQ(text.placeOf(12).topLeft(), QPoint(0, 300));
    EXPECT_EQ(ReadableText().offsetAt({0, 0}), -1);
}

TEST(Accessible, TheWindowHoldsWhatIsNotCovered) {
    FakeSarne sarne;
    sarne.window.setWindowTitle(QStringLiteral("Velisa sarn"));
    Form screen(sarne, QStringLiteral("frmSeznam"));
    Form box(sarne, QStringLiteral("frmMessage"));
    box.place({3000, 3000, 6000, 2000});
    Label text(box, QStringLiteral("Label1")), silent(box, QStringLiteral("Label2"));
    text.setText(QStringLiteral("Chcete ukončit program?  "));
    screen.showForm();
    box.showForm();
    EXPECT_EQ(heard(sarne.window)->role(), QAccessible::Window);
    EXPECT_EQ(heard(sarne.window)->text(QAccessible::Name), QStringLiteral("Velisa sarn"));
    EXPECT_EQ(heard(sarne.window)->childCount(), 2);
    EXPECT_EQ(names(heard(box)), QStringList{QStringLiteral("Chcete ukončit program?")})
        << "no control names";
    Form above(sarne, QStringLiteral("frmRecept"));
    above.showForm();
    EXPECT_EQ(heard(sarne.window)->childCount(), 1) << "what is covered is not heard";
}

TEST(Accessible, AListTellsPlaceAndStateOfEveryEntryAndOpensIt) {
    FakeSarne sarne;
    Form form(sarne, QStringLiteral("frmSeznam"));
    EntryList list(form, QStringLiteral("lstSeznam"), QAccessible::List);
    int used = -1;
    list.setEntries(
        17, [](int index) { return AccessiblePart{QStringLiteral("Recept %1").arg(index + 1)}; },
        [&](int index) { used = index; });
    form.showForm();
    list.setCurrent(2);
    QAccessibleInterface* entry = heard(list)->child(2);
    ASSERT_EQ(heard(list)->childCount(), 17);
    EXPECT_EQ(entry->role(), QAccessible::ListItem);
    EXPECT_EQ(entry->text(QAccessible::Name), QStringLiteral("Recept 3"));
    EXPECT_EQ(entry->text(QAccessible::Description), QStringLiteral("3 z 17"));
    EXPECT_TRUE(entry->state().selected);
    EXPECT_FALSE(heard(list)->child(3)->state().selected);
    EXPECT_EQ(entry->parent(), heard(list));
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(used, -1) << "a reader is not kept waiting";
    QApplication::processEvents();
    EXPECT_EQ(used, 2);
    list.setEntries(1, [](int) { return AccessiblePart{QStringLiteral("Jediný")}; }, {});
    EXPECT_FALSE(entry->isValid()) << "an entry that is gone";
    form.ring().sayPart(list, 0);
    EXPECT_EQ(sarne.announced, QStringList{QStringLiteral("Jediný")}) << "where no screen reader listens";
}

TEST(Accessible, ATextIsReadByCaretAndItsLinksAreFound) {
    FakeSarne sarne;
    Form form(sarne, QStringLiteral("frmStranka"));
    TextView view(form, QStringLiteral("picText"));
    view.place({100, 100, 8000, 3000});
    view.drawRichText(
        QStringLiteral("{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset238 Arial;}}\\plain\\par\\pard\\plain "
                       "Kapr se peče: pusť @7video s rybou@ a *12kapra* nech být.}"));
    form.showForm();
    QAccessibleTextInterface* text = heard(view)->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), view.readable().text().size());
    int start = 0, end = 0;
    EXPECT_EQ(
        text->textAtOffset(view.readable().text().indexOf(u'K') + 1, QAccessible::WordBoundary, &start, &end),
        QStringLiteral("Kapr"));
    EXPECT_EQ(names(heard(view)), (QStringList{QStringLiteral("video s rybou"), QStringLiteral("kapra")}));
    EXPECT_EQ(heard(view)->child(1)->role(), QAccessible::Link);
    QList<LinkKey> opened;
    QObject::connect(&view, &TextView::linkActivated, [&](LinkKey key) { opened << key; });
    heard(view)->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    EXPECT_EQ(opened.size(), 1);
    text->setCursorPosition(5);
    EXPECT_EQ(view.caret(), 5);
    EXPECT_GT(text->characterRect(9).left(), text->characterRect(5).left());
    view.Cls();
    EXPECT_EQ(text->characterCount(), 0);
    EXPECT_EQ(text->cursorPosition(), 0);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
