#include "screens/kitchen/frmdoma.h"

#include <QDate>
#include <QKeyEvent>
#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "core/value.h"
#include "db/userfile.h"
#include "forms/bassarne.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/screens.h"

namespace sarne {
namespace {

constexpr QRect kTyped{240, 1110, 3900, 510};
constexpr QRect kHavePaper{240, 1710, 3900, 6180};
constexpr QRect kRecipePaper{4290, 1110, 5280, 6780};
constexpr QRect kSide{9720, 1110, 2040, 6780};
constexpr QRect kFirstAction{9810, 1200, 1860, 570};
constexpr int kInside = 90, kActionStep = 735;
constexpr size_t kMostFound = 100;
constexpr int kQuick = 30;  // minutes
constexpr int kGluten = 1 << 0, kEggs = 1 << 2, kMilk = 1 << 6;
const QString kKept = QStringLiteral("Doma");

constexpr KitchenAction kActions[] = {
    {QT_TRANSLATE_NOOP("Texts", "Bez této"), QT_TRANSLATE_NOOP("Texts", "Recepty bez vybrané suroviny")},
    {QT_TRANSLATE_NOOP("Texts", "V sezoně"),
     QT_TRANSLATE_NOOP("Texts", "Jen jídla, která mají tento měsíc sezonu")},
    {QT_TRANSLATE_NOOP("Texts", "Do 30 min"), QT_TRANSLATE_NOOP("Texts", "Jen jídla do 30 minut")},
    {QT_TRANSLATE_NOOP("Texts", "Bez lepku")},
    {QT_TRANSLATE_NOOP("Texts", "Bez mléka")},
    {QT_TRANSLATE_NOOP("Texts", "Bez vajec")},
    {QT_TRANSLATE_NOOP("Texts", "Znovu"), QT_TRANSLATE_NOOP("Texts", "Zapomenout výběr a začít znovu")},
    {QT_TRANSLATE_NOOP("Texts", "Recept"), QT_TRANSLATE_NOOP("Texts", "Otevřít vybraný recept")},
    {QT_TRANSLATE_NOOP("Texts", "Na seznam"),
     QT_TRANSLATE_NOOP("Texts", "Dát vybraný recept na nákupní seznam (F3)")}};

constexpr int kRest = 800;  // milliseconds

bool contains(const std::vector<int>& ids, int id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

/// Takes \a id out of \a ids, or puts it in.
void toggle(std::vector<int>& ids, int id) {
    if (std::erase(ids, id) == 0) ids.push_back(id);
}

}  // namespace

frmDoma::frmDoma(basSarne& sarne, UserFile& file)
    : KitchenForm(sarne, QStringLiteral("frmDoma"), Place::Pantry, Texts::tr("Co mám doma"), Bar::Plain),
      file_(file),
      typed_(*this, QStringLiteral("txtHledat")),
      have_(*this, QStringLiteral("picSuroviny")),
      recipes_(*this, QStringLiteral("picRecepty")),
      tmrPocet(this) {
    typed_.place(kTyped);
    typed_.setFont({QStringLiteral("Arial"), 13});
    typed_.setMaxLength(40);
    typed_.setAccessibleName(Texts::tr("Hledat surovinu"));
    have_.place(kHavePaper.adjusted(kInside, kInside, -kInside, -kInside));
    have_.setPoints(12);
    have_.setAccessibleName(Texts::tr("Suroviny"));
    recipes_.place(kRecipePaper.adjusted(kInside, kInside, -kInside, -kInside));
    recipes_.setPoints(13);
    recipes_.setAccessibleName(Texts::tr("Recepty"));
    makeActions(kActions, kFirstAction, kActionStep);
    setStops({alone(typed_), alone(have_), alone(recipes_)});
    connect(&typed_, &Edit::textChanged, this, [this] {
        showIngredients();
        // Who types hears how many there are when the letters rest.
        tmrPocet.setEnabled(false);
        tmrPocet.setEnabled(true);
    });
    tmrPocet.setInterval(kRest);
    connect(&tmrPocet, &Timer::tick, this, [this] {
        tmrPocet.setEnabled(false);
        this->app().HookMessage(Texts::tr("Nalezeno surovin: %1").arg(shown_.size()));
    });
    connect(&have_, &TickList::used, this, [this](int row) {
        tick(row);
        ring().sayPart(have_);
    });
    connect(&recipes_, &Control::doubleClicked, this, &frmDoma::openRecipe);
}

bool frmDoma::Zobraz() {
    index_ = PantryIndex(readPantryRecipes(app().Db()));
    if (index_.isEmpty()) {
        unload();
        return false;
    }
    ingredients_ = readPantryIngredients(app().Db());
    for (const QString& id : file_.value(kKept).split(u',', Qt::SkipEmptyParts))
        query_.have.push_back(id.toInt());
    app().PushScreen(*this);
    showIngredients();
    showRecipes();
    showForm();
    ring().focus(typed_);
    sayState();
    return true;
}

void frmDoma::keep() {
    QStringList ids;
    for (const int id : query_.have) ids << QString::number(id);
    file_.setValue(kKept, ids.join(u','));
}

/// What was chosen stands first; then what the typed letters find.
void frmDoma::showIngredients() {
    const auto chosen = [this](int place) {
        const int id = ingredients_[static_cast<size_t>(place)].id;
        return contains(query_.have, id) || contains(query_.without, id);
    };
    shown_ = namesWithWord(ingredients_, typed_.text());
    if (typed_.text().trimmed().isEmpty()) std::stable_partition(shown_.begin(), shown_.end(), chosen);
    std::vector<TickRow> rows;
    for (const int place : shown_) {
        const PantryIngredient& one = ingredients_[static_cast<size_t>(place)];
        rows.push_back({TickRow::Kind::Item,
                        one.name,
                        contains(query_.without, one.id) ? Texts::tr("bez") : QString(),
                        {},
                        contains(query_.have, one.id)});
    }
    addAllergens(rows);
    have_.setRows(std::move(rows), TickList::Done::Kept);
}

/// Below the ingredients: what may be left out because somebody must not eat it.
void frmDoma::addAllergens(std::vector<TickRow>& rows) {
    allergens_.clear();
    std::vector<PantryIngredient> named;
    for (int number = 1; !allergenName(number).isEmpty(); ++number)
        if (index_.tellingAllergens() >> (number - 1) & 1) named.push_back({number, allergenName(number)});
    for (const int place : namesWithWord(named, typed_.text()))
        allergens_.push_back(named[static_cast<size_t>(place)].id);
    if (allergens_.empty()) return;
    rows.push_back({TickRow::Kind::Heading, Texts::tr("Bez alergenu"), {}, {}, false});
    for (const int number : allergens_)
        rows.push_back({TickRow::Kind::Item,
                        allergenName(number),
                        query_.withoutAllergens >> (number - 1) & 1 ? Texts::tr("bez") : QString(),
                        {},
                        bool(query_.withoutAllergens >> (number - 1) & 1)});
}

void frmDoma::tick(int row) {
    const int allergen = row - static_cast<int>(shown_.size()) - 1;
    if (allergen >= 0) {
        query_.withoutAllergens ^= 1 << (allergens_[static_cast<size_t>(allergen)] - 1);
        return search();
    }
    const int id = ingredients_[static_cast<size_t>(shown_[static_cast<size_t>(row)])].id;
    std::erase(query_.without, id);
    toggle(query_.have, id);
    search();
}

/// What is there already stays: a word typed again means that it is at home, not that it is gone.
void frmDoma::addFirst() {
    if (shown_.empty()) return app().Beep();
    if (!contains(query_.have, ingredients_[static_cast<size_t>(shown_.front())].id)) tick(0);
}

void frmDoma::exclude() {
    const int row = have_.selected();
    if (row > static_cast<int>(shown_.size())) return tick(row);
    if (row < 0 || row >= static_cast<int>(shown_.size())) return app().Beep();
    const int id = ingredients_[static_cast<size_t>(shown_[static_cast<size_t>(row)])].id;
    std::erase(query_.have, id);
    toggle(query_.without, id);
    search();
}

void frmDoma::search() {
    keep();
    showIngredients();
    showRecipes();
    app().HookMessage(state_.text());
}

void frmDoma::showRecipes() {
    found_ = index_.find(query_, kMostFound);
    QHash<int, QString> names;
    for (const PantryIngredient& one : ingredients_) names.insert(one.id, one.name);
    std::vector<TickRow> rows;
    for (const PantryMatch& match : found_) {
        QStringList missing;
        for (const int id : index_.missing(match.recipe, query_)) missing << names.value(id);
        rows.push_back({TickRow::Kind::Plain, index_.recipe(match.recipe).name,
                        match.missing == 0 ? Texts::tr("máte vše") : Texts::tr("chybí %1").arg(match.missing),
                        missing.join(QStringLiteral(", ")), false});
    }
    recipes_.setRows(std::move(rows));
    state_.setText(
        query_.have.empty()
            ? Texts::tr("Odškrtněte, co máte doma")
            : Texts::tr("Vyhovuje %1").arg(counted(double(found_.size()), recipeNoun(), app().Locale)));
    const auto latch = [this](Action action, bool on) { actions_[size_t(action)]->setLatched(on); };
    latch(Action::Season, query_.month != 0);
    latch(Action::Quick, query_.mostMinutes != 0);
    latch(Action::NoGluten, query_.withoutAllergens & kGluten);
    latch(Action::NoMilk, query_.withoutAllergens & kMilk);
    latch(Action::NoEggs, query_.withoutAllergens & kEggs);
}

void frmDoma::act(int action) {
    switch (Action(action)) {
        case Action::Without:
            return exclude();
        case Action::Season:
            query_.month = query_.month == 0 ? QDate::currentDate().month() : 0;
            return search();
        case Action::Quick:
            query_.mostMinutes = query_.mostMinutes == 0 ? kQuick : 0;
            return search();
        case Action::NoGluten:
            query_.withoutAllergens ^= kGluten;
            return search();
        case Action::NoMilk:
            query_.withoutAllergens ^= kMilk;
            return search();
        case Action::NoEggs:
            query_.withoutAllergens ^= kEggs;
            return search();
        case Action::Again:
            query_ = {};
            typed_.setText({});
            return search();
        case Action::Open:
            return openRecipe();
        case Action::Buy:
            if (const std::int16_t id = selectedRecipe()) app().screens().addToShoppingList({id}, {});
    }
}

std::int16_t frmDoma::selectedRecipe() const {
    const int row = recipes_.selected();
    if (row < 0 || row >= static_cast<int>(found_.size())) return 0;
    return toRecordId(index_.recipe(found_[static_cast<size_t>(row)].recipe).id).value_or(0);
}

void frmDoma::openRecipe() {
    if (const std::int16_t id = selectedRecipe()) return app().screens().showRecipe(id);
    app().Beep();
}

bool frmDoma::keyDown(QKeyEvent& event) {
    if (event.key() == Qt::Key_F3 && event.modifiers() == Qt::NoModifier && selectedRecipe() != 0) {
        act(int(Action::Buy));
        return true;
    }
    if (isEnter(event) && ring().isAt(&typed_)) {
        addFirst();
        typed_.focusAll();
        return true;
    }
    if (ring().isAt(&typed_) && event.key() == Qt::Key_Down) {
        ring().focus(have_);
        have_.select(0);
        return true;
    }
    return listKey(have_, event) || listKey(recipes_, event, [this] { openRecipe(); }) ||
           Form::keyDown(event);
}

void frmDoma::paint(QPainter& painter) {
    paintGround(painter);
    paintPaper(painter, kHavePaper);
    paintPaper(painter, kRecipePaper);
    paintPlate(painter, kSide);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
