#include <gtest/gtest.h>
#include <QAccessible>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/entrylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/progressbar.h"
#include "forms/readabletext.h"
#include "forms/starrow.h"
#include "forms/textview.h"
#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

QAccessibleInterface* heard(QObject& object) {
    return QAccessible::queryAccessibleInterface(&object);
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
    EXPECT_EQ(text.moved(19, Step::Word, 1), 31);
    EXPECT_EQ(text.moved(31, Step::Word, 1), 31);
    EXPECT_EQ(text.moved(0, Step::Character, -1), 0);
    EXPECT_EQ(text.moved(31, Step::Character, 1), 31);
    EXPECT_EQ(text.offsetAt({3700, 450}), 12 + 18);
    EXPECT_EQ(text.placeOf(12).topLeft(), QPoint(0, 300));
    EXPECT_EQ(ReadableText().offsetAt({0, 0}), -1);
}

TEST(Accessible, AnEntryIsUsedLaterAndGoesWithItsList) {
    FakeSarne sarne;
    Form form(sarne, u"frmSeznam"_s);
    EntryList list(form, u"lstSeznam"_s, QAccessible::List);
    int used = -1;
    list.setEntries(
        17, [](int index) { return AccessiblePart{u"Recept %1"_s.arg(index + 1)}; },
        [&](int index) { used = index; });
    QAccessibleInterface* entry = heard(list)->child(2);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(used, -1) << "a reader is not kept waiting";
    QApplication::processEvents();
    EXPECT_EQ(used, 2);
    list.setCurrent(17);
    EXPECT_EQ(list.currentPart(), -1);
    list.setCurrent(16);
    list.setEntries(1, [](int) { return AccessiblePart{u"Jediný"_s}; }, {});
    EXPECT_EQ(list.currentPart(), -1);
    list.usePart(0);
    EXPECT_FALSE(entry->isValid()) << "an entry that is gone";
    form.ring().sayPart(list, 0);
    EXPECT_EQ(sarne.announced, QStringList{u"Jediný"_s}) << "where no screen reader listens";
}

QString placeText(const QRect& place) {
    return u" %1,%2 %3x%4"_s.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

QString stateText(const QAccessible::State& is) {
    QString text;
    for (const auto& [holds, word] : {std::pair(is.disabled, "disabled"),
                                      {is.selected, "selected"},
                                      {is.selectable, "selectable"},
                                      {is.focusable, "focusable"},
                                      {is.focused, "focused"},
                                      {is.checkable, "checkable"},
                                      {is.checked, "checked"},
                                      {is.offscreen, "offscreen"},
                                      {is.linked, "linked"},
                                      {is.readOnly, "read-only"},
                                      {is.multiLine, "multi-line"},
                                      {is.invalid, "invalid"}})
        if (holds) text += u' ' + QLatin1String(word);
    return text;
}

/// What else than its name is told of \a what: how much, which rows, which lines.
QStringList detailsOf(QAccessibleInterface& what) {
    QStringList all;
    if (const auto* value = what.valueInterface())
        all << u"%1 of %2 from %3"_s.arg(value->currentValue().toDouble())
                   .arg(value->maximumValue().toDouble())
                   .arg(value->minimumValue().toDouble());
    if (auto* table = what.tableInterface()) {
        QStringList cells;
        for (QAccessibleInterface* cell : table->selectedCells()) cells << cell->text(QAccessible::Name);
        all << u"%1 x %2, column 1 '%3', at 0,1 '%4', selected %5 rows %6 cells %7 first %8"_s
                   .arg(table->rowCount())
                   .arg(table->columnCount())
                   .arg(table->columnDescription(1),
                        table->rowCount() ? table->cellAt(0, 1)->text(QAccessible::Name) : QString())
                   .arg(table->selectedRowCount())
                   .arg(table->selectedCellCount())
                   .arg(cells.join(u'+'))
                   .arg(table->isRowSelected(0) || table->isColumnSelected(1) || table->selectColumn(1) ||
                        table->unselectRow(1) || table->unselectColumn(1));
    }
    if (auto* cell = what.tableCellInterface())
        all << u"row %1 column %2 below '%3'"_s.arg(cell->rowIndex())
                   .arg(cell->columnIndex())
                   .arg(cell->columnHeaderCells().value(0)->text(QAccessible::Name));
    if (auto* text = what.textInterface())
        for (int at = 0, start = 0, end = 0; at < text->characterCount(); at = end + 1) {
            const QString looks = text->attributes(at, &start, &end);
            const QRect first = text->characterRect(start);
            all << u"%1-%2%3 '%4'%5"_s.arg(start).arg(end).arg(
                placeText(first), text->text(start, end),
                looks + (text->offsetAtPoint(first.center()) == start ? QString() : u" lost"_s));
        }
    return all;
}

void addHeard(QStringList& lines, QAccessibleInterface& what, const QString& indent) {
    const QStringList said{what.text(QAccessible::Name), what.text(QAccessible::Value),
                           what.text(QAccessible::Description)};
    auto* action = what.actionInterface();
    lines << indent + u"%1 '%2'%3%4 %5"_s.arg(what.role())
                          .arg(said.join(u"' '"_s), placeText(what.rect()), stateText(what.state()),
                               action ? action->actionNames().join(u' ') : QString());
    for (const QString& detail : detailsOf(what)) lines << indent + u"  | "_s + detail;
    for (int i = 0; i < what.childCount(); ++i) {
        QAccessibleInterface* child = what.child(i);
        if (child->object() && !qobject_cast<TwipWidget*>(child->object())) continue;
        addHeard(lines, *child, indent + u"  "_s);
        if (child->parent() != &what || what.indexOfChild(child) != i) lines << indent + u"  lost"_s;
    }
    if (what.child(what.childCount()) || what.child(-1)) lines << indent + u"more than all"_s;
}

/// Two columns and two rows below their headings; the user is in the second row.
class Rows final : public Control {
  public:
    using Control::Control;
    QAccessible::Role role() const override { return QAccessible::Table; }
    int partCount() const override { return 6; }
    int partColumns() const override { return 2; }
    int currentPart() const override { return 4; }
    void usePart(int index) override { used = index; }
    AccessiblePart part(int index) const override {
        const char* names[] = {"Ryba", "Gramů", "Kapr", "300", "Lín", "250"};
        AccessiblePart part{QString::fromUtf8(names[index]),
                            index < 2 ? QAccessible::ColumnHeader : QAccessible::Cell,
                            {index % 2 * 600, index / 2 * 300, 600, 300}};
        if (index == 3) part.place = {};
        part.isCurrent = index >= 4;
        part.isUsable = index >= 2;
        part.isCheckable = index % 2 == 0 && index > 1;
        part.isChecked = index == 2;
        return part;
    }
    int used = -1;
};

TEST(Accessible, EverythingIsHeardWithItsPlaceAndState) {
    FakeSarne sarne;
    sarne.window.setWindowTitle(u"Velisa sarn"_s);
    sarne.openAbove("frmZakryta");
    Form form(sarne, u"frmUkazka"_s);
    Button button(form, u"cmdTisk"_s), off(form, u"cmdNejde"_s);
    button.place({6000, 300, 900, 900});
    button.setTip(u"Vytiskne"_s);
    off.place({7500, 300, 900, 900});
    off.setTip(u"Nejde"_s);
    off.setEnabled(false);
    CheckBox box(form, u"chk"_s);
    box.place({300, 300, 3000, 450});
    box.setCaption(u"Klid"_s);
    box.setChecked(true);
    Label empty(form, u"lbl"_s);
    Control unheard(form, u"obr"_s);
    unheard.setUnheard(true);
    StarRow stars(form, u"hvezdy"_s);
    stars.place({300, 1200, 1500, 300});
    stars.setStars(2);
    ProgressBar bar(form, u"prg"_s);
    bar.place({3000, 1200, 1500, 300});
    bar.setValue(40);
    Rows rows(form, u"tab"_s);
    rows.place({300, 2100, 1200, 900});
    EntryList list(form, u"lst"_s, QAccessible::List);
    list.place({3000, 2100, 1200, 900});
    list.setEntries(2, [](int row) { return AccessiblePart{row ? u"Lín"_s : u"Kapr"_s}; }, {});
    list.setCurrent(1);
    TextView view(form, u"picText"_s);
    view.place({300, 4500, 3000, 900});
    view.drawRichText(
        u"{\\rtf1\\plain\\b Postup\\b0\\par Kapra *12osolit* a @7upéct@ zvolna.\\par\\par Dál.}"_s);
    view.scrollTo(150);
    Form dialog(sarne, u"frmDotaz"_s);
    dialog.place({6000, 4500, 3000, 3000});
    Label title(dialog, u"lblA"_s), text(dialog, u"lblB"_s);
    title.place({0, 0, 3000, 300});
    title.setText(u"Konec"_s);
    text.place({0, 600, 3000, 300});
    text.setText(u"Opravdu?"_s);
    form.showForm();
    dialog.showForm();
    rows.setFocusPolicy(Qt::StrongFocus);
    rows.setFocus();
    QStringList lines;
    addHeard(lines, *heard(sarne.window), {});
    lines << u"at: "_s + heard(rows)->focusChild()->text(QAccessible::Name);
    dialog.setAccessibleName(u"Konec"_s);
    lines << u"named: "_s + heard(dialog)->text(QAccessible::Description);
    // What a screen reader does with it.
    heard(stars)->valueInterface()->setCurrentValue(9);
    heard(rows)->tableInterface()->selectRow(1);
    lines << u"used: %1 stars, row %2"_s.arg(stars.stars()).arg(rows.used);
    stars.setEnabled(false);
    heard(stars)->valueInterface()->setCurrentValue(1);
    heard(off)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    heard(rows)->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    heard(view)->textInterface()->scrollToSubstring(30, 31);
    QObject::connect(&view, &TextView::linkActivated,
                     [&](LinkKey key) { lines << u"opened "_s + key.text(); });
    heard(view)->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QApplication::processEvents();
    lines << u"then: %1 stars, part %2, caret %3, scrolled %4"_s.arg(stars.stars())
                 .arg(rows.used)
                 .arg(view.caret())
                 .arg(view.scrolled());
    lines << u"strange: %1"_s.arg(heard(form)->indexOfChild(heard(title))) << u"read: "_s + form.textToRead();
    test::expectText(u"slyset"_s, lines.join(u'\n'));
}

/// A screen reader: what it learns without asking.
class Listener {
  public:
    Listener() { QAccessible::installUpdateHandler(&hear); }
    ~Listener() {
        QAccessible::installUpdateHandler(nullptr);
        test::setReader(false);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    static inline QStringList told;

  private:
    static void hear(QAccessibleEvent* event) {
        const QAccessibleInterface* about = event->accessibleInterface();
        if (event->type() < QAccessible::ObjectCreated || event->type() > QAccessible::ObjectReorder)
            told << u"%1 %2 '%3'%4"_s.arg(event->type(), 0, 16)
                        .arg(about->role())
                        .arg(about->text(QAccessible::Name), stateText(about->state()));
    }
};

TEST(Accessible, AReaderIsToldWhatChangesAndWhereTheUserIs) {
    FakeSarne sarne;
    Form form(sarne, u"frmUkazka"_s);
    Button button(form, u"cmdTisk"_s);
    button.setTip(u"Vytiskne"_s);
    CheckBox box(form, u"chk"_s);
    box.setCaption(u"Klid"_s);
    ProgressBar bar(form, u"prg"_s);
    bar.setTip(u"Hotovo"_s);
    Rows rows(form, u"tab"_s);
    TextView view(form, u"picText"_s);
    view.setTip(u"Postup"_s);
    view.place({300, 300, 6000, 900});
    view.drawRichText(u"{\\rtf1\\plain Kapra *12osolit*}"_s);
    form.showForm();
    Listener reader;
    test::setReader(true);
    Listener::told.clear();
    const auto after = [](const char* what) { Listener::told << QLatin1String(what); };
    box.setChecked(true);
    bar.setValue(7);
    after("changed");
    form.ring().say(button);
    form.ring().sayPart(rows);
    form.ring().sayPart(rows, 6);
    form.ring().sayPart(rows, -1);
    form.ring().sayWithoutReader(u"ticho"_s);
    after("said");
    view.setCaret(7);
    view.stepInside(1);
    test::expectText(u"ctecce-receno"_s, Listener::told.join(u'\n'));
    EXPECT_TRUE(sarne.announced.isEmpty());
}

/// What the keys of a text do, in sight and with a screen reader.
TEST(Accessible, KeysGoThroughATextByLineWordAndPhrase) {
    test::expectCases(u"klavesy-textu"_s, [](const QString& keys) {
        FakeSarne sarne;
        Form form(sarne, u"frmStranka"_s);
        TextView view(form, u"picText"_s);
        view.place({300, 300, 6000, 1500});
        QString body;
        for (int line = 0; line < 14; ++line) body += u"Kapr *%1osolit* zvolna\\par "_s.arg(line + 10);
        view.drawRichText(u"{\\rtf1\\plain "_s + body + u'}');
        form.showForm();
        view.setFocus();
        QStringList done;
        QObject::connect(&view, &TextView::linkActivated, [&](LinkKey key) { done << key.text(); });
        const Listener reader;
        for (const QString& word : keys.split(u' ')) {
            const bool isHeard = word.startsWith(u'!');
            const QKeyCombination key = QKeySequence(isHeard ? word.sliced(1) : word)[0];
            test::setReader(isHeard);
            if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab)
                done << (view.stepInside(key.key() == Qt::Key_Tab ? 1 : -1) ? u"step"_s : u"out"_s);
            else if (!view.keyDown(QKeyEvent(QEvent::KeyPress, key.key(), key.keyboardModifiers())))
                done << u"no"_s;
            done << u"%1/%2/%3"_s.arg(view.scrolled())
                        .arg(view.caret())
                        .arg(view.pieces().focused().value_or(-1));
        }
        return done.join(u' ');
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
