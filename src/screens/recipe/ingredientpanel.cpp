#include "screens/recipe/ingredientpanel.h"

#include "core/numbertext.h"
#include "dialogs/frmdialog.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/resources.h"
#include "screens/recipe/ingredientcolumns.h"
#include "screens/recipe/recipelayout.h"

namespace sarne {
namespace {

constexpr int kCutleryStep = 2;
const TextFont kListFont{QStringLiteral("Times New Roman"), 12};

int cutleryIndex(size_t position) {
    return (static_cast<int>(position) + 1) * kCutleryStep;
}

/// What stands on a picture that is missing.
QString cutleryCaption(int index) {
    return index == Portions::kAnyNumber ? QStringLiteral("?") : QString::number(index);
}

}  // namespace

IngredientPanel::IngredientPanel(Form& form, basSarne& app, TextView& view, AskNumber ask)
    : form_(form), app_(app), view_(view), ask_(std::move(ask)) {
    if (!ask_) ask_ = [&app](const QString& prompt) { return askNumber(app, prompt); };
    for (size_t at = 0; cutleryIndex(at) <= Portions::kAnyNumber; ++at) {
        const int index = cutleryIndex(at);
        Button& button = addButton(QStringLiteral("imgPrepocet(%1)").arg(index),
                                   recipelayout::cutlery(static_cast<int>(at)));
        button.setTip(PanelPosition::hint(index, units_));
        QObject::connect(&button, &Button::clicked, &form, [this, index] { portionClick(index); });
        cutlery_.push_back(&button);
    }
    toggle_ = &addButton(QStringLiteral("imgKgLzice"), recipelayout::kUnitToggle);
    toggle_->setFrame(Button::Frame::Raised);
    QObject::connect(toggle_, &Button::clicked, &form, [this] { unitToggle(); });
    symbol_ = new PictureBox(form, QStringLiteral("picZavazi"));
    symbol_->place(recipelayout::kUnitSymbol);
    portionText_ = new Label(form, QStringLiteral("lblPorce"));
    portionText_->place(recipelayout::kPortionText);
    portionText_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    portionText_->setFont({QStringLiteral("Arial"), 12, true});
    setVisible(false);
}

Button& IngredientPanel::addButton(const QString& name, const QRect& place) {
    const Resources& pictures = app_.resources();
    auto* button = new Button(form_, name);
    button->place(place);
    button->setGround(colors::kTeal);
    button->setFramePictures(pictures.picture(QStringLiteral("RamVen")),
                             pictures.picture(QStringLiteral("RamDovnitr")));
    return *button;
}

void IngredientPanel::setRecipe(int recipe, int base) {
    recipe_ = recipe;
    portions_ = Portions(base);
    units_ = UnitSystem::Weights;
    position_.reset();
    for (size_t at = 0; at < cutlery_.size(); ++at)
        showCutlery(cutleryIndex(at),
                    cutleryIndex(at) == portions_.choice() ? Button::Frame::Pressed : Button::Frame::Raised);
    showUnits();
    showPortions();
}

void IngredientPanel::setVisible(bool visible) {
    for (Control* control : stops()) control->setVisible(visible);
    symbol_->setVisible(visible);
    portionText_->setVisible(visible);
}

std::vector<Control*> IngredientPanel::stops() const {
    std::vector<Control*> all(cutlery_.begin(), cutlery_.end());
    all.push_back(toggle_);
    return all;
}

Quantities IngredientPanel::quantities() const {
    return portions_.quantities(app_.Locale);
}

void IngredientPanel::draw() {
    view_.Cls();
    view_.setFont(kListFont);
    const auto lines = ingredientLines(readIngredients(app_.Db(), recipe_), units_, quantities());
    const ListArea area{view_.scaleWidth(), view_.scaleHeight(), view_.textHeight(QStringLiteral("T"))};
    const int ascent = view_.textAscent();
    const auto measure = [this](const QString& text) { return lineWidth(text); };
    for (const PlacedLine& line : placeInColumns(lines, area, measure))
        view_.textOut(line.x, line.y + ascent, line.text);
    view_.setAccessibleDescription(view_.drawnText());
}

/// The width of \a line in twips, by its words: between one number of portions and the next most of them stay
/// the same, and the metrics remember those.
int IngredientPanel::lineWidth(const QString& line) {
    const int blank = metrics_.textWidth(kListFont, u" ");
    int width = 0;
    for (QStringView word : QStringView(line).split(u' '))
        width += metrics_.textWidth(kListFont, word) + blank;
    return width - blank;
}

void IngredientPanel::showCutlery(int index, Button::Frame frame) {
    Button& button = *cutlery_[size_t(index / kCutleryStep - 1)];
    const Picture face = app_.resources().picture(QStringLiteral("Pribor%1").arg(index));
    button.setFace(face);
    if (face.isNull()) button.setCaption(cutleryCaption(index));
    button.setTip(PanelPosition::hint(index, units_));
    button.setFrame(frame);
}

void IngredientPanel::showUnits() {
    const bool weights = units_ == UnitSystem::Weights;
    const Picture spoon = app_.resources().picture(QStringLiteral("lzice"));
    const Picture weight = app_.resources().picture(QStringLiteral("zavazi"));
    const Picture& other = weights ? spoon : weight;
    toggle_->setFace(other);
    if (other.isNull()) toggle_->setCaption(weights ? QStringLiteral("lžíce") : QStringLiteral("g"));
    toggle_->setTip(PanelPosition::hint(PanelPosition::kToggle, units_));
    symbol_->setPicture(weights ? weight : spoon);
    app_.lastWeights = weights;
}

void IngredientPanel::showPortions() {
    const double number = portions_.number();
    const QString units =
        units_ == UnitSystem::Weights ? QStringLiteral("v gramech") : QStringLiteral("na lžíce");
    portionText_->setText(numberText(number, app_.Locale) + u' ' + portionWord(number) + u'\n' + units);
    app_.lastPortions = number;
}

void IngredientPanel::portionClick(int index) {
    if (!portions_.changes(index)) return;
    form_.setPointer(Pointer::Hourglass);
    if (index == Portions::kAnyNumber) {
        const QPointer<Form> alive(&form_);
        const double number = ask_(QStringLiteral("Zadejte počet porcí:"));
        if (!alive) return;
        portions_.setCustom(number);
    }
    showCutlery(portions_.choice(), Button::Frame::Raised);
    showCutlery(index, Button::Frame::Pressed);
    portions_.choose(index);
    position_.set(index);
    showPortions();
    draw();
    form_.setPointer(Pointer::Normal);
}

void IngredientPanel::unitToggle() {
    units_ = units_ == UnitSystem::Weights ? UnitSystem::Spoons : UnitSystem::Weights;
    position_.set(PanelPosition::kToggle);
    showUnits();
    showPortions();
    draw();
    app_.HookMessage(units_ == UnitSystem::Weights ? QStringLiteral("Přepočteno na gramy")
                                                   : QStringLiteral("Přepočteno na lžíce"));
}

void IngredientPanel::step(int direction) {
    const int position = position_.step(direction);
    stops()[size_t(position / kCutleryStep - 1)]->setFocus(Qt::TabFocusReason);
    app_.HookMessage(PanelPosition::hint(position, units_));
}

}  // namespace sarne
