#include "screens/kitchen/frmnakup.h"

#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "core/czech.h"
#include "core/texts.h"
#include "db/userfile.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/keys.h"
#include "forms/messagebox.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "kitchen/shoppingstore.h"
#include "platform/wholefile.h"
#include "richtext/rtfdocument.h"
#include "richtext/wordwrap.h"

namespace sarne {
namespace {

constexpr QRect kPaper{240, 1110, 7620, 6780};
constexpr QRect kRows{360, 1230, 7380, 6540};
constexpr QRect kSide{8040, 1110, 3720, 6780};
constexpr QRect kRecipes{8190, 1200, 3420, 1350};
constexpr QRect kHint{8190, 2560, 3420, 330};
constexpr QRect kOwn{8190, 2910, 3420, 480};
constexpr QRect kFirstAction{8190, 3480, 3420, 510};
constexpr int kActionStep = 546;
constexpr double kRowPoints = 14;
constexpr int kSlipLetters = 34;

constexpr KitchenAction kActions[] = {
    {QT_TRANSLATE_NOOP("Texts", "Připsat"),
     QT_TRANSLATE_NOOP("Texts", "Připsat, co je napsáno nad tlačítkem")},
    {QT_TRANSLATE_NOOP("Texts", "Množství"), QT_TRANSLATE_NOOP("Texts", "Změnit množství vybrané věci")},
    {QT_TRANSLATE_NOOP("Texts", "Odebrat"), QT_TRANSLATE_NOOP("Texts", "Odebrat vybranou věc ze seznamu")},
    {QT_TRANSLATE_NOOP("Texts", "Vrátit zpět"), QT_TRANSLATE_NOOP("Texts", "Vzít poslední změnu zpět")},
    {QT_TRANSLATE_NOOP("Texts", "Smazat koupené"),
     QT_TRANSLATE_NOOP("Texts", "Smazat ze seznamu, co je koupeno")},
    {QT_TRANSLATE_NOOP("Texts", "Kopírovat"), QT_TRANSLATE_NOOP("Texts", "Zkopírovat seznam jako text")},
    {QT_TRANSLATE_NOOP("Texts", "Uložit jako text"),
     QT_TRANSLATE_NOOP("Texts", "Uložit seznam jako textový soubor mezi dokumenty")},
    {QT_TRANSLATE_NOOP("Texts", "Mám doma"), QT_TRANSLATE_NOOP("Texts", "Vybraná věc je doma, nebo není")}};

/// The native path of a text file called \a name in \a folder, numbered where there is one already.
QString freeTextFile(const QString& folder, const QString& name) {
    QString file = folder + u'/' + name + QStringLiteral(".txt");
    for (int number = 2; QFile::exists(file); ++number)
        file = folder + QStringLiteral("/%1 (%2).txt").arg(name).arg(number);
    return file;
}

bool writeTextFile(const QString& file, const QString& text) {
    QDir().mkpath(QFileInfo(file).absolutePath());
    WholeFile out(file);
    const QByteArray bytes = text.toUtf8();
    return out.isOpen() && out.write(bytes) == bytes.size() && out.commit();
}

/// The list as a slip to take along: short lines, so that the printed sheet can be folded to a third.
QString slipOf(const QString& title, const QString& list) {
    RtfDocument slip;
    slip.heading(title);
    for (const QString& line : list.split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'☐')) {
            slip.paragraph(line, {});
            continue;
        }
        const QStringList parts = wrapAtBlanks(
            line.mid(2), kSlipLetters, [](QStringView text) { return static_cast<int>(text.size()); });
        slip.paragraph(QStringLiteral("[  ] ") + parts.join(QStringLiteral("\n      ")));
    }
    return slip.text();
}

}  // namespace

frmNakup::frmNakup(basSarne& sarne, UserFile& file, AskNumber askNumber)
    : KitchenForm(sarne, QStringLiteral("frmNakup"), Place::Shopping, Texts::tr("Nákupní seznam"),
                  Bar::WithPrint),
      file_(file),
      askNumber_(std::move(askNumber)),
      recipes_(*this, QStringLiteral("lblRecepty")),
      hint_(*this, QStringLiteral("lblPripsat")),
      rows_(*this, QStringLiteral("picSeznam")),
      own_(*this, QStringLiteral("txtVlastni")) {
    dress(recipes_, kRecipes, 11, false, Qt::AlignLeft | Qt::AlignTop);
    recipes_.setWordWrap(true);
    dress(hint_, kHint, 11, true);
    hint_.setText(Texts::tr("Koupit ještě:"));
    rows_.place(kRows);
    rows_.setPoints(kRowPoints);
    rows_.setAccessibleName(title_.text());
    own_.place(kOwn);
    own_.setFont({QStringLiteral("Arial"), 13});
    own_.setMaxLength(80);
    own_.setAccessibleName(hint_.text());
    makeActions(kActions, kFirstAction, kActionStep);
    setStops({alone(rows_), alone(own_)});
    connect(&rows_, &TickList::used, this, &frmNakup::use);
    connect(&rows_, &TickList::moved, this, &frmNakup::showState);
}

void frmNakup::Zobraz() {
    list_ = readShoppingList(file_);
    app().PushScreen(*this);
    showList();
    showForm();
    rows_.select(0);
    ring().focus(list_.isEmpty() ? static_cast<TwipWidget&>(own_) : rows_);
    sayState();
}

/// Another screen may have put something on the list meanwhile.
void frmNakup::restored() {
    ShoppingList kept = readShoppingList(file_);
    if (!storeFailed_ && kept.items() != list_.items()) list_ = std::move(kept);
    showList();
    Form::restored();
}

void frmNakup::act(int action) {
    switch (Action(action)) {
        case Action::Add:
            return addOwn();
        case Action::Amount:
            return changeAmount();
        case Action::Remove:
            list_.remove(selectedItem());
            return changed();
        case Action::Undo:
            list_.undo();
            return changed();
        case Action::DropBought:
            list_.removeBought();
            return changed();
        case Action::Copy:
            return copy();
        case Action::Save:
            return save();
        case Action::Home:
            return toggleHome();
    }
}

int frmNakup::selectedItem() const {
    const int row = rows_.selected();
    return row >= 0 && row < static_cast<int>(itemOfRow_.size()) ? itemOfRow_[static_cast<size_t>(row)] : -1;
}

void frmNakup::use(int row) {
    const int item = itemOfRow_[static_cast<size_t>(row)];
    if (item < 0) {
        showsHome_ = !showsHome_;
        return showList();
    }
    list_.setBought(item, !list_.items()[static_cast<size_t>(item)].bought);
    changed();
    ring().sayPart(rows_);
}

void frmNakup::changed() {
    if (!storeShoppingList(file_, list_) && !storeFailed_) {
        storeFailed_ = true;
        app().ZobrazZpravu(Texts::tr("Nákupní seznam se nepodařilo uložit na disk.\r\n"
                                     "Do konce programu zůstane na obrazovce."),
                           kInformationBox);
    }
    showList();
}

void frmNakup::addOwn() {
    list_.addOwn(own_.text());
    own_.setText({});
    changed();
    ring().focus(own_);
}

void frmNakup::changeAmount() {
    const int item = selectedItem();
    if (item < 0) return app().Beep();
    const ShoppingItem& thing = list_.items()[static_cast<size_t>(item)];
    const QString known = thing.amounts(app().Locale);
    if (known.isEmpty()) return app().Beep();
    const QString unit = thing.parts.front().unit == u"ml" ? Texts::tr("mililitrů") : Texts::tr("gramů");
    const bool metric = known.contains(u"g") || known.endsWith(u'l');
    const double amount = askNumber_(Texts::tr("%1: na seznamu je %2.\r\nKolik%3 koupit?")
                                         .arg(thing.name, known, metric ? u' ' + unit : QString()));
    if (amount <= 0) return;
    list_.setAmount(item, amount);
    changed();
}

void frmNakup::toggleHome() {
    const int item = selectedItem();
    if (item < 0) return app().Beep();
    list_.setAtHome(item, !list_.items()[static_cast<size_t>(item)].atHome);
    changed();
}

void frmNakup::copy() {
    QGuiApplication::clipboard()->setText(list_.text(app().Locale));
    app().HookMessage(Texts::tr("Seznam je zkopírován"));
    state_.setText(Texts::tr("Zkopírováno"));
}

/// The file is new each time: an older list stays what it was.
void frmNakup::save() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = Texts::tr("Nákupní seznam %1").arg(QDate::currentDate().toString(Qt::ISODate));
    const QString file = freeTextFile(folder, name);
    const bool saved = writeTextFile(file, list_.text(app().Locale));
    app().ZobrazZpravu(saved ? Texts::tr("Nákupní seznam je uložen jako\r\n%1").arg(file)
                             : Texts::tr("Nákupní seznam se nepodařilo uložit jako\r\n%1").arg(file),
                       kInformationBox);
}

void frmNakup::print() {
    app().screens().printText(title_.text(), slipOf(title_.text(), list_.text(app().Locale)));
}

/// The row above the items of a department, or above all that is at home.
TickRow frmNakup::headOf(const ShoppingItem& item) const {
    if (item.atHome) {
        const auto atHome = std::ranges::count_if(list_.items(), &ShoppingItem::atHome);
        return {TickRow::Kind::Fold, Texts::tr("Nejspíš už doma (%1)").arg(atHome), {}, {}, showsHome_};
    }
    const QString name = QStringLiteral("Oddeleni%1").arg(static_cast<int>(item.department));
    const Picture picture = app().resources().picture(name);
    return {TickRow::Kind::Heading, departmentName(item.department), {}, {}, false, picture};
}

TickRow frmNakup::rowOf(const ShoppingItem& item) const {
    QStringList below = item.recipes();
    if (!item.alternative.isEmpty()) below.prepend(Texts::tr("nebo %1").arg(item.alternative));
    return {TickRow::Kind::Item, item.name, item.amounts(app().Locale), below.join(QStringLiteral(" · ")),
            item.bought};
}

void frmNakup::showList() {
    std::vector<TickRow> rows;
    itemOfRow_.clear();
    const auto add = [&](TickRow row, int item) {
        rows.push_back(std::move(row));
        itemOfRow_.push_back(item);
    };
    int group = -1, index = 0;
    for (const ShoppingItem& item : list_.items()) {
        const int own = item.atHome ? kDepartments : static_cast<int>(item.department);
        if (std::exchange(group, own) != own) add(headOf(item), -1);
        if (!item.atHome || showsHome_) add(rowOf(item), index);
        ++index;
    }
    rows_.setRows(std::move(rows));
    showRecipes();
    showState();
}

void frmNakup::showRecipes() {
    QStringList lines;
    const auto recipes = list_.recipes();
    for (const ShoppingRecipe& recipe : recipes)
        lines << recipe.name + QStringLiteral(" – ") + counted(recipe.portions, portionNoun(), app().Locale);
    constexpr qsizetype kShown = 5;
    if (lines.size() > kShown)
        lines = lines.mid(0, kShown) << Texts::tr("a další: %1").arg(recipes.size() - kShown);
    recipes_.setText(
        lines.isEmpty()
            ? Texts::tr("Klávesa F3 u receptu, v seznamu receptů nebo ve fotkách sem dá jeho suroviny.")
            : lines.join(u'\n'));
}

void frmNakup::showState() {
    const auto& items = list_.items();
    const auto left = std::count_if(items.begin(), items.end(),
                                    [](const ShoppingItem& item) { return !item.bought && !item.atHome; });
    const Noun things{Texts::tr("věc"), Texts::tr("věci"), Texts::tr("věcí"), Texts::tr("věci")};
    state_.setText(items.empty() ? Texts::tr("seznam je prázdný")
                   : left == 0   ? Texts::tr("všechno je koupeno")
                                 : Texts::tr("zbývá %1").arg(counted(double(left), things, app().Locale)));
    const bool chosen = selectedItem() >= 0;
    actions_[size_t(Action::Amount)]->setEnabled(chosen);
    actions_[size_t(Action::Remove)]->setEnabled(chosen);
    actions_[size_t(Action::Home)]->setEnabled(chosen);
    actions_[size_t(Action::Undo)]->setEnabled(list_.canUndo());
}

bool frmNakup::keyDown(QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    if (event.matches(QKeySequence::Undo)) {
        act(int(Action::Undo));
        return true;
    }
    if (isEnter(event) && ring().isAt(&own_)) {
        addOwn();
        return true;
    }
    if (event.key() == Qt::Key_Delete) {
        act(int(Action::Remove));
        return true;
    }
    return listKey(rows_, event) || Form::keyDown(event);
}

void frmNakup::paint(QPainter& painter) {
    paintGround(painter);
    paintPaper(painter, kPaper);
    paintPlate(painter, kSide);
    if (!list_.isEmpty()) return;
    painter.setFont(larger({QStringLiteral("Times New Roman"), 18}, textScale()).toQFont());
    painter.setPen(colors::kInk);
    painter.drawText(
        kRows.adjusted(600, 600, -600, -600), Qt::AlignCenter | Qt::TextWordWrap,
        Texts::tr("Na seznamu zatím nic není.\n\nOtevřete recept a stiskněte F3 nebo obrázek nákupu, "
                  "anebo napište vpravo, co koupit."));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
