#include "screens/recipe/ingredientpanel.h"

#include <algorithm>

#include "core/czech.h"
#include "core/numbertext.h"
#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/largertext.h"
#include "forms/messagebox.h"
#include "forms/resources.h"
#include "kitchen/fishamount.h"
#include "screens/recipe/ingredientcolumns.h"

namespace sarne {
namespace {

constexpr int kCutleryStep = 2;
constexpr QColor kLit(154, 92, 46);  // the ground of what is in use: brass instead of teal
const TextFont kListFont{QStringLiteral("Times New Roman"), 12};

int cutleryIndex(size_t position) {
    return (static_cast<int>(position) + 1) * kCutleryStep;
}

/// What stands on a picture that is missing.
QString cutleryCaption(int index) {
    return index == Portions::kAnyNumber ? QStringLiteral("?") : QString::number(index);
}

}  // namespace

IngredientPanel::IngredientPanel(const SectionRoom& room) : RecipeSection(room) {
    for (size_t at = 0; cutleryIndex(at) <= Portions::kAnyNumber; ++at) {
        const int index = cutleryIndex(at);
        Button& button = addButton(QStringLiteral("imgPrepocet(%1)").arg(index),
                                   recipelayout::cutlery(static_cast<int>(at)));
        QObject::connect(&button, &Button::clicked, &room_.form, [this, index] { portionClick(index); });
        cutlery_.push_back(&button);
    }
    toggle_ = &addButton(QStringLiteral("imgKgLzice"), {});
    toggle_->setFrame(Button::Frame::Raised);
    QObject::connect(toggle_, &Button::clicked, &room_.form, [this] { unitToggle(); });
    current_ = &addButton(QStringLiteral("picZavazi"), {});
    current_->setFrame(Button::Frame::Pressed);
    current_->setFocusPolicy(Qt::NoFocus);
    current_->setGround(kLit);
    current_->unsetCursor();
    portionText_ = new Label(room_.form, QStringLiteral("lblPorce"));
    portionText_->place(recipelayout::kPortionText);
    portionText_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    portionText_->setFont({QStringLiteral("Arial"), 12, true});
    fish_ = new Button(room_.form, QStringLiteral("cmdRyba"));
    fish_->place(recipelayout::kFishButton);
    fish_->dressAsText(Texts::tr("Mám rybu"), Texts::tr("Kolik porcí bude z ryby, kterou mám"));
    QObject::connect(fish_, &Button::clicked, &room_.form, [this] { askFish(); });
    setVisible(false);
}

Button& IngredientPanel::addButton(const QString& name, const QRect& place) {
    auto* button = new Button(room_.form, name);
    button->place(place);
    button->setGround(colors::kTeal);
    return *button;
}

void IngredientPanel::recipeChanged() {
    position_.reset();
    knowsFish_ = mainFish(room_.sarne.Db(), room_.recipe.id).has_value();
    for (size_t at = 0; at < cutlery_.size(); ++at) showCutlery(cutleryIndex(at));
    showUnits();
    showPortions();
}

void IngredientPanel::setVisible(bool visible) {
    for (Control* control : pictures()) control->setVisible(visible);
    current_->setVisible(visible);
    portionText_->setVisible(visible);
    fish_->setVisible(visible && knowsFish_);
}

/// The pictures in the order in which the keyboard steps over them.
std::vector<Control*> IngredientPanel::pictures() const {
    std::vector<Control*> all(cutlery_.begin(), cutlery_.end());
    all.push_back(toggle_);
    return all;
}

void IngredientPanel::draw() {
    const ShownRecipe& recipe = room_.recipe;
    room_.lookedAt = recipe.serving();
    TextView& view = room_.view;
    view.setFont(kListFont);
    const auto lines = ingredientLines(readIngredients(room_.sarne.Db(), recipe.id), recipe.units,
                                       recipe.portions.quantities(room_.sarne.Locale));
    const ListArea area{view.scaleWidth(), view.scaleHeight(), view.textHeight(QStringLiteral("T"))};
    const auto measure = [this](QStringView text) { return lineWidth(text); };
    const auto placed = placeInColumns(lines, area, measure);
    for (const PlacedLine& line : placed) view.textOut(line.x, line.y + view.textAscent(), line.text);
    const int half = recipelayout::kHalfView.width();
    room_.picture.setVisible(false);
    int widest = 0;
    for (const PlacedLine& line : placed) widest = std::max(widest, line.x + lineWidth(line.text));
    if (widest > 0 && widest <= half) showBeside(recipe.photo, widest);
}

void IngredientPanel::redraw() {
    room_.view.Cls();
    draw();
}

/// The width of \a line in twips, by its words: between one number of portions and the next most of them stay
/// the same, and the metrics remember those.
int IngredientPanel::lineWidth(QStringView line) {
    const TextFont font = larger(kListFont, room_.form.textScale());
    const int blank = metrics_.textWidth(font, u" ");
    int width = 0;
    for (QStringView word : line.split(u' ')) width += metrics_.textWidth(font, word) + blank;
    return width - blank;
}

void IngredientPanel::showCutlery(int index) {
    Button& button = *cutlery_[size_t(index / kCutleryStep - 1)];
    const Picture face = room_.sarne.resources().picture(QStringLiteral("Pribor%1").arg(index));
    button.setFace(face);
    if (face.isNull()) button.setCaption(cutleryCaption(index));
    button.setTip(PanelPosition::hint(index, room_.recipe.units));
    const bool chosen = index == room_.recipe.portions.choice();
    button.setFrame(chosen ? Button::Frame::Pressed : Button::Frame::Raised);
    button.setGround(chosen ? kLit : colors::kTeal);
}

void IngredientPanel::showUnits() {
    const bool weights = room_.recipe.units == UnitSystem::Weights;
    const auto show = [this](Button& button, bool weight) {
        const Picture face =
            room_.sarne.resources().picture(weight ? QStringLiteral("zavazi") : QStringLiteral("lzice"));
        button.place(weight ? recipelayout::kWeights : recipelayout::kSpoons);
        button.setFace(face);
        if (face.isNull()) button.setCaption(weight ? QStringLiteral("g") : Texts::tr("lžíce"));
    };
    show(*toggle_, !weights);
    show(*current_, weights);
    toggle_->setTip(PanelPosition::hint(PanelPosition::kToggle, room_.recipe.units));
    current_->setTip(weights ? Texts::tr("Množství v gramech") : Texts::tr("Množství na lžíce"));
}

void IngredientPanel::showPortions() {
    const Serving serving = room_.recipe.serving();
    const QString units =
        serving.units == UnitSystem::Weights ? Texts::tr("v gramech") : Texts::tr("na lžíce");
    portionText_->setText(numberText(serving.portions, room_.sarne.Locale) + u' ' +
                          portionNoun().behind(serving.portions) + u'\n' + units);
}

/// False when the user gives no number; then everything stays as it was.
bool IngredientPanel::askPortions() {
    const QPointer<Form> alive(&room_.form);
    const double number = room_.askNumber(Texts::tr("Zadejte počet porcí:"));
    if (!alive || number <= 0) return false;
    room_.recipe.portions.setCustom(number);
    return true;
}

void IngredientPanel::portionClick(int index) {
    Portions& portions = room_.recipe.portions;
    if (!portions.changes(index)) return;
    const QPointer<Form> alive(&room_.form);
    alive->setPointer(Pointer::Hourglass);
    const bool answered = index != Portions::kAnyNumber || askPortions();
    if (!alive) return;
    if (answered) usePortions(index);
    position_.set(index);
    alive->setPointer(Pointer::Normal);
}

void IngredientPanel::usePortions(int index) {
    const int previous = room_.recipe.portions.choice();
    room_.recipe.portions.choose(index);
    showCutlery(previous);
    showCutlery(index);
    showPortions();
    redraw();
    room_.sarne.HookMessage(QString(portionText_->text()).replace(u'\n', QStringLiteral(", ")));
}

void IngredientPanel::askFish() {
    const auto fish = mainFish(room_.sarne.Db(), room_.recipe.id);
    if (!fish) return;
    const QPointer<Form> alive(&room_.form);
    const QString amount = numberText(fish->grams, room_.sarne.Locale);
    const double grams = room_.askNumber(
        Texts::tr("Kolik gramů ryby máte?\r\n%1: recept počítá %2 g na %3 %4.")
            .arg(fish->name, amount, QString::number(fish->portions), portionNoun().behind(fish->portions)));
    if (!alive || grams <= 0) return;
    const QString question = Texts::tr(
                                 "Je to váha celé nekuchané ryby?\r\n"
                                 "Z celé ryby zbude na tento recept asi %1 %.")
                                 .arg(qRound(fish->wholeShare * 100));
    const bool whole = fish->isCut() && room_.sarne.ZobrazZpravu(question, kQuestionBox) == kAnswerYes;
    if (!alive) return;
    const double portions =
        fish->portionsFor(grams, whole ? MainFish::Bought::Whole : MainFish::Bought::AsInTheList);
    if (portions <= 0) return room_.sarne.Beep();
    room_.recipe.portions.setCustom(portions);
    usePortions(Portions::kAnyNumber);
}

void IngredientPanel::unitToggle() {
    UnitSystem& units = room_.recipe.units;
    units = units == UnitSystem::Weights ? UnitSystem::Spoons : UnitSystem::Weights;
    position_.set(PanelPosition::kToggle);
    showUnits();
    showPortions();
    redraw();
    room_.sarne.HookMessage(units == UnitSystem::Weights ? Texts::tr("Přepočteno na gramy")
                                                         : Texts::tr("Přepočteno na lžíce"));
}

bool IngredientPanel::step(bool sideways, int direction) {
    if (!sideways) return false;
    const std::vector<Control*> all = pictures();
    const auto at = std::ranges::find(all, room_.form.ring().current());
    if (at != all.end()) position_.set(cutleryIndex(size_t(at - all.begin())));  // Tab leads here, too
    room_.form.ring().goTo(*all[size_t(position_.step(direction) / kCutleryStep - 1)]);
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
