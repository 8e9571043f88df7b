// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/kitchen/frmkucharka.h"

#include <QKeyEvent>
#include <QPainter>

#include "core/czech.h"
#include "core/texts.h"
#include "core/value.h"
#include "db/recipemarks.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "kitchen/cooked.h"

namespace sarne {
namespace {

constexpr QRect kShelfPlate{240, 1110, 2340, 6780};
constexpr QRect kFirstShelf{330, 1230, 2160, 750};
constexpr int kShelfStep = 900;
constexpr QRect kPaper{2730, 1110, 5670, 6780};
constexpr QRect kRows{2820, 1200, 5490, 6600};
constexpr QRect kSide{8550, 1110, 3210, 6780};
constexpr QRect kPhoto{8700, 1260, 2910, 2190};
constexpr QRect kName{8700, 3510, 2910, 600};
constexpr QRect kStarPlace{8700, 4170, 2910, 510};
constexpr QRect kDetails{8700, 4740, 2910, 1140};
constexpr QRect kFirstAction{8700, 5940, 2910, 570};
// An empty shelf: the sheet goes on over the side, with the book and a word on how it is filled.
constexpr QRect kEmptyPaper{2730, 1110, 9030, 6780};
constexpr QRect kBook{5895, 1650, 2700, 2700};
constexpr QRect kNothingPlace{3630, 4500, 7230, 2400};
constexpr int kActionStep = 645;
constexpr int kDaysShown = 4, kNoteLetters = 90;

const char* const kShelfNames[kShelves] = {
    QT_TRANSLATE_NOOP("Texts", "S hvězdičkami"), QT_TRANSLATE_NOOP("Texts", "Uvařeno"),
    QT_TRANSLATE_NOOP("Texts", "S poznámkou"), QT_TRANSLATE_NOOP("Texts", "Naposledy"),
    QT_TRANSLATE_NOOP("Texts", "Na tento měsíc")};
/// What an empty shelf says of how something comes onto it.
const char* const kNothing[kShelves] = {
    QT_TRANSLATE_NOOP("Texts", "Zatím žádný recept nemá hvězdičky.\n\nDávají se v záhlaví receptu."),
    QT_TRANSLATE_NOOP("Texts", "Zatím nic.\n\nPo vaření se hrncem „Uvařeno!“ zapíše, že je jídlo hotové."),
    QT_TRANSLATE_NOOP("Texts", "Zatím žádná poznámka.\n\nPíše se u receptu, v oddílu Vlastní poznámka."),
    QT_TRANSLATE_NOOP("Texts", "Zatím nebyl otevřen žádný recept."),
    QT_TRANSLATE_NOOP("Texts", "Na tento měsíc kuchařka nic neví.")};

constexpr KitchenAction kActions[] = {
    {QT_TRANSLATE_NOOP("Texts", "Recept"), QT_TRANSLATE_NOOP("Texts", "Otevřít vybraný recept")},
    {QT_TRANSLATE_NOOP("Texts", "Vaříme"), QT_TRANSLATE_NOOP("Texts", "Vařit krok za krokem (F2)")},
    {QT_TRANSLATE_NOOP("Texts", "Na seznam"),
     QT_TRANSLATE_NOOP("Texts", "Dát vybraný recept na nákupní seznam (F3)")}};

}  // namespace

frmKucharka::frmKucharka(basSarne& sarne, UserFile& file, QDate today)
    : KitchenForm(sarne, QStringLiteral("frmKucharka"), Place::OwnBook, Texts::tr("Moje kuchařka"),
                  Bar::Plain),
      file_(file),
      today_(today),
      rows_(*this, QStringLiteral("picRecepty")),
      photo_(*this, QStringLiteral("picFoto")),
      name_(*this, QStringLiteral("lblNazev")),
      details_(*this, QStringLiteral("lblPodrobnosti")),
      nothing_(*this, QStringLiteral("lblNic")),
      stars_(*this, QStringLiteral("picHvezdy")) {
    makeShelves();
    rows_.place(kRows);
    rows_.setPoints(13);
    rows_.setAccessibleName(Texts::tr("Recepty"));
    photo_.place(kPhoto);
    photo_.setAttribute(Qt::WA_TransparentForMouseEvents);
    dress(name_, kName, 13, true, Qt::AlignCenter);
    name_.setWordWrap(true);
    dress(details_, kDetails, 10.5, false, Qt::AlignLeft | Qt::AlignTop);
    details_.setWordWrap(true);
    dress(nothing_, kNothingPlace, 18, false, Qt::AlignHCenter | Qt::AlignTop);
    nothing_.setWordWrap(true);
    nothing_.setColor(colors::kInk);
    stars_.place(kStarPlace);
    makeActions(kActions, kFirstAction, kActionStep);
    setStops({alone(rows_), FocusGroup(shelves_), alone(stars_)});
    connect(&rows_, &TickList::moved, this, &frmKucharka::showChosen);
    connect(&rows_, &Control::doubleClicked, this, &frmKucharka::openRecipe);
    connect(&stars_, &StarRow::given, this, &frmKucharka::give);
}

void frmKucharka::makeShelves() {
    for (int i = 0; i < kShelves; ++i) {
        auto* button = new Button(*this, QStringLiteral("cmdPolice(%1)").arg(i));
        button->dressAsText(Texts::tr(kShelfNames[i]));
        button->setFont({QStringLiteral("Arial"), 11, true});
        button->place(kFirstShelf.translated(0, i * kShelfStep));
        connect(button, &Button::clicked, this, [this, i] { openShelf(Shelf(i)); });
        shelves_.push_back(button);
    }
}

void frmKucharka::Zobraz() {
    shelf_ = Shelf::ThisMonth;
    read();
    for (int i = kShelves; i-- > 0;)
        if (!onShelf(all_, Shelf(i), today_).empty()) shelf_ = Shelf(i);
    open();
    showRecipes();
    rows_.select(0);
    ring().focus(rows_);
    sayState();
}

void frmKucharka::restored() {
    read();
    showRecipes();
    Form::restored();
}

void frmKucharka::read() {
    all_ = readOwnRecipes(app().Db(), file_);
    // A book without dates offers no shelf of them.
    const bool dated =
        std::any_of(all_.begin(), all_.end(), [](const OwnRecipe& one) { return !one.occasions.isEmpty(); });
    shelves_[size_t(Shelf::ThisMonth)]->setVisible(dated);
    if (!dated && shelf_ == Shelf::ThisMonth) shelf_ = Shelf::Starred;
}

void frmKucharka::openShelf(Shelf shelf) {
    shelf_ = shelf;
    showRecipes();
    rows_.select(0);
    ring().focus(rows_);
    app().HookMessage(Texts::tr(kShelfNames[size_t(shelf_)]) + QStringLiteral(", ") + state_.text());
}

QString frmKucharka::rightOf(const OwnRecipe& recipe) const {
    switch (shelf_) {
        case Shelf::Starred:
            return starText(recipe.stars);
        case Shelf::Cooked:
            return dayText(recipe.cooked.front());
        case Shelf::Opened:
            return dayText(recipe.opened.date());
        case Shelf::ThisMonth:
            return reasonThisMonth(recipe, today_);
        case Shelf::Noted:
            break;
    }
    return {};
}

QString frmKucharka::belowOf(const OwnRecipe& recipe) const {
    QStringList parts;
    if (shelf_ == Shelf::Noted) return recipe.note.left(kNoteLetters);
    if (shelf_ != Shelf::Starred && recipe.stars > 0) parts << starText(recipe.stars);
    if (!recipe.cooked.empty()) parts << Texts::tr("uvařeno %1×").arg(recipe.cooked.size());
    if (!recipe.note.isEmpty()) parts << recipe.note.left(kNoteLetters);
    return parts.join(QStringLiteral(" · "));
}

void frmKucharka::showRecipes() {
    shown_ = onShelf(all_, shelf_, today_);
    std::vector<TickRow> rows;
    for (const OwnRecipe& recipe : shown_)
        rows.push_back({TickRow::Kind::Plain, recipe.name, rightOf(recipe), belowOf(recipe), false});
    rows_.setRows(std::move(rows));
    nothing_.setText(shown_.empty() ? Texts::tr(kNothing[size_t(shelf_)]) : QString());
    nothing_.setVisible(shown_.empty());
    update();
    for (int i = 0; i < kShelves; ++i) shelves_[size_t(i)]->setLatched(i == static_cast<int>(shelf_));
    state_.setText(counted(double(shown_.size()), recipeNoun(), app().Locale));
    showChosen();
}

const OwnRecipe* frmKucharka::chosen() const {
    const int row = rows_.selected();
    return row >= 0 && row < static_cast<int>(shown_.size()) ? &shown_[static_cast<size_t>(row)] : nullptr;
}

void frmKucharka::showChosen() {
    const OwnRecipe* recipe = chosen();
    for (Button* button : actions_) button->setVisible(recipe);
    stars_.setVisible(recipe);
    photo_.setPicture(recipe ? app().mediaPicture(QStringLiteral("foto\\Male\\r%1.bmp").arg(recipe->id))
                             : Picture());
    name_.setText(recipe ? recipe->name : QString());
    photo_.setAccessibleName(recipe ? Texts::tr("Fotografie: %1").arg(recipe->name) : QString());
    photo_.setUnheard(!recipe);
    details_.setText({});
    if (!recipe) return;
    stars_.setStars(recipe->stars);
    actions_[size_t(Action::Cook)]->setVisible(app().screens().canCook(toRecordId(recipe->id).value_or(0)));
    actions_[size_t(Action::Buy)]->setVisible(app().screens().knowsGoods());
    QStringList lines, days;
    for (size_t i = 0; i < recipe->cooked.size() && i < kDaysShown; ++i) days << dayText(recipe->cooked[i]);
    if (!days.isEmpty()) lines << Texts::tr("Uvařeno: %1").arg(days.join(QStringLiteral(", ")));
    if (!recipe->note.isEmpty())
        lines << Texts::tr("Poznámka: %1")
                     .arg(recipe->note.size() > kNoteLetters ? recipe->note.left(kNoteLetters) + u'…'
                                                             : recipe->note);
    details_.setText(lines.join(u'\n'));
}

void frmKucharka::give(int stars) {
    const OwnRecipe* recipe = chosen();
    if (!recipe) return;
    const int id = recipe->id;
    if (!RecipeMarks(file_).setStars(id, recipe->name, stars)) app().Beep();
    // It stays where it is until the shelf is opened again: what jumps away cannot be corrected.
    for (std::vector<OwnRecipe>* list : {&all_, &shown_})
        for (OwnRecipe& one : *list)
            if (one.id == id) one.stars = stars;
    std::vector<TickRow> rows = rows_.rows();
    TickRow& row = rows[static_cast<size_t>(rows_.selected())];
    row.right = rightOf(*chosen());
    row.below = belowOf(*chosen());
    rows_.setRows(std::move(rows));
    app().HookMessage(stars_.accessibleValue());
}

void frmKucharka::openRecipe() {
    if (const OwnRecipe* recipe = chosen())
        if (const auto id = toRecordId(recipe->id)) return app().screens().showRecipe(*id);
    app().Beep();
}

void frmKucharka::act(int action) {
    const OwnRecipe* recipe = chosen();
    const std::int16_t id = recipe ? toRecordId(recipe->id).value_or(0) : std::int16_t(0);
    if (id == 0) return app().Beep();
    switch (Action(action)) {
        case Action::Open:
            return openRecipe();
        case Action::Cook:
            return app().screens().cookRecipe(id, {});
        case Action::Buy:
            return app().screens().addToShoppingList({id}, {});
    }
}

bool frmKucharka::keyDown(QKeyEvent& event) {
    const bool plain = event.modifiers() == Qt::NoModifier;
    if (plain && event.key() == Qt::Key_F2 && chosen()) {
        act(int(Action::Cook));
        return true;
    }
    if (plain && event.key() == Qt::Key_F3 && chosen() && app().screens().knowsGoods()) {
        act(int(Action::Buy));
        return true;
    }
    if (ring().isAt(&stars_) && stars_.keyDown(event)) return true;
    // The digits give stars where the recipe is selected, too.
    const bool digit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_5;
    if (digit && ring().isAt(&rows_) && chosen() && stars_.keyDown(event)) return true;
    if (event.key() == Qt::Key_Space && ring().isAt(&rows_)) {
        openRecipe();
        return true;
    }
    return listKey(rows_, event, [this] { openRecipe(); }) || Form::keyDown(event);
}

void frmKucharka::paint(QPainter& painter) {
    paintGround(painter);
    paintPlate(painter, kShelfPlate);
    if (shown_.empty()) {
        paintPaper(painter, kEmptyPaper);
        app().resources().picture(QStringLiteral("Kucharka")).draw(painter, kBook, Fit::Inside);
        return;
    }
    paintPaper(painter, kPaper);
    paintPlate(painter, kSide);
}

}  // namespace sarne
