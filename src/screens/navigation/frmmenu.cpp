#include "screens/navigation/frmmenu.h"

#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/stage.h"
#include "screens/navigation/ingredientsearch.h"
#include "screens/navigation/menutargets.h"

namespace sarne {
namespace {

const TextFont kItemFont{QStringLiteral("Arial"), 11};
const TextFont kHeadingFont{QStringLiteral("Times New Roman"), 14, true, true};
const QString kSpacing = QStringLiteral("   ");  // follows every caption
constexpr int kSubmenuDelay = 400;               // milliseconds
constexpr QColor kDimmed(150, 170, 165);
const TextFont kHintFont{QStringLiteral("Arial"), 10, false, true};
constexpr QRect kScreen(0, 0, Stage::kWidth, Stage::kHeight);

/// A line that leads nowhere is told by its slant, beside its colour.
TextFont fontOf(const MenuItem& item) {
    TextFont font = kItemFont;
    font.italic = !item.isSelectable();
    return font;
}

}  // namespace

frmMenu::frmMenu(basSarne& sarne, std::function<void()> closed)
    : Form(sarne, QStringLiteral("frmMenu")),
      closed_(std::move(closed)),
      lblNadpis(*this, QStringLiteral("lblNadpis")),
      Text1(*this, QStringLiteral("Text1")),
      imgHledat(*this, QStringLiteral("imgHledat")),
      items_(*this, QStringLiteral("polozky"), QAccessible::PopupMenu),
      tmrPodmenu(this) {
    setUp();
}

frmMenu::frmMenu(frmMenu& parent) : frmMenu(parent.app(), {}) {
    parent_ = &parent;
    depth_ = parent.depth_ + 1;
}

void frmMenu::setUp() {
    setMouseTracking(true);
    lblNadpis.setFont(kHeadingFont);
    lblNadpis.setColor(colors::kCopper.lighter(125));
    lblNadpis.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Text1.setFont(kItemFont);
    Text1.setAccessibleName(Texts::tr("Začátek názvu suroviny"));
    Text1.hide();
    imgHledat.setTip(Texts::tr("Hledat"));
    imgHledat.hide();
    connect(&imgHledat, &Control::clicked, this, &frmMenu::search);
    connect(&tmrPodmenu, &Timer::tick, this, [this] {
        tmrPodmenu.setEnabled(false);
        openSelectedSubmenu();
    });
}

void frmMenu::Zobraz() {
    showForm();
    if (hasEntry()) Text1.focusAll();
}

void frmMenu::unfold(const QString& code, const QRect& beside) {
    if (child_) child_->fold();
    tmrPodmenu.setEnabled(false);
    level_ = MenuLevel::build(app().Db(), code);
    selected_ = 0;
    buildLabels();
    applyGeometry(beside);
    hearItems();
    Zobraz();
}

MenuLabel* frmMenu::newLabel() {
    const int k = int(lblOdkaz.size()) + 1;
    auto* label = new MenuLabel(*this, QStringLiteral("lblOdkaz(%1)").arg(k));
    label->setUnheard(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(label, &Label::hovered, this, [this, k] { hoverItem(k); });
    connect(label, &Label::clicked, this, [this, k] { choose(k); });
    return label;
}

void frmMenu::dressLabel(int k) {
    MenuLabel& label = *lblOdkaz[size_t(k - 1)];
    label.setText(item(k).label + kSpacing);
    label.setClickable(isSelectable(k));
    label.setFont(fontOf(item(k)));
    const bool found = level_.isSearchResult() && isSelectable(k);
    const int recipes = found ? int(recipesWithIngredient(app().Db(), item(k).target).size()) : 0;
    label.setNote(found ? QString::number(recipes) : QString());
    label.setAccessibleDescription(found ? recipeCountText(recipes) : QString());
    mark(k, false);
}

void frmMenu::buildLabels() {
    lblNadpis.setText(level_.heading);
    lblNadpis.setVisible(!level_.heading.isEmpty());
    hint_ = searchHint(level_);
    while (lblOdkaz.size() < level_.items.size()) lblOdkaz.push_back(newLabel());
    for (size_t i = 0; i < lblOdkaz.size(); ++i) {
        lblOdkaz[i]->setVisible(i < level_.items.size());
        if (i < level_.items.size()) dressLabel(int(i) + 1);
    }
}

AccessiblePart frmMenu::heard(int k) const {
    const QString more = lblOdkaz[size_t(k - 1)]->accessibleDescription();
    AccessiblePart part;
    part.role = QAccessible::MenuItem;
    part.name = more.isEmpty() ? item(k).label : item(k).label + QStringLiteral(", ") + more;
    part.place = lblOdkaz[size_t(k - 1)]->twips();
    part.isUsable = isSelectable(k);
    return part;
}

void frmMenu::hearItems() {
    const Noun items{Texts::tr("položka"), Texts::tr("položky"), Texts::tr("položek"), Texts::tr("položky")};
    const QString name = level_.heading.isEmpty() ? Texts::tr("Nabídka") : level_.heading;
    setAccessibleName(name + QStringLiteral(", ") + counted(int(level_.items.size()), items, app().Locale));
    items_.setAccessibleName(Texts::tr("Položky"));  // the level says what they are of
    items_.place({{0, 0}, twips().size()});
    items_.setEntries(
        int(level_.items.size()), [this](int index) { return heard(index + 1); },
        [this](int index) { choose(index + 1); });
}

/// Room for what is drawn beside the texts of \a level.
int frmMenu::besideTexts(const MenuLevel& level) const {
    if (level.isSearchResult()) return static_cast<int>(MenuLabel::kArrowRoom * textScale());
    return std::ranges::any_of(level.items, &MenuItem::opensSubmenu) ? MenuLabel::kArrowRoom : 0;
}

MenuContent frmMenu::contentOf(const MenuLevel& level) const {
    MenuContent content;
    content.scale = textScale();
    const int room = besideTexts(level);
    for (const MenuItem& item : level.items)
        content.itemWidths.push_back(
            Label::measure(item.label + kSpacing, larger(fontOf(item), content.scale)).width() + room);
    if (!level.heading.isEmpty())
        content.headingWidth = Label::measure(level.heading, larger(kHeadingFont, content.scale)).width();
    if (const QString hint = searchHint(level); !hint.isEmpty())
        content.hintWidth = Label::measure(hint, larger(kHintFont, content.scale)).width();
    content.hasEntry = level.code == u"12";
    return content;
}

/// The levels are laid out anew, each beside the item that opened it.
void frmMenu::eyesChanged() {
    if (parent_ || level_.items.empty()) return;
    for (frmMenu* level = this; level; level = level->child_) {
        frmMenu* above = level->parent_;
        level->applyGeometry(above ? above->besideChild() : level->beside_);
        if (above && above->hasEntry()) above->makeRoomForResults();
        level->hearItems();
        for (int k = 1; k <= int(level->level_.items.size()); ++k) level->mark(k, k == level->selected_);
    }
}

void frmMenu::applyGeometry(const QRect& beside) {
    beside_ = beside;
    geometry_ = layOutMenu(contentOf(level_), beside, maxHeight_);
    place(geometry_.level);
    placeLabels();
    lblNadpis.place(geometry_.heading);
    Text1.setVisible(hasEntry());
    imgHledat.setVisible(hasEntry());
    if (!hasEntry()) return;
    const int side = geometry_.entry.height();
    Text1.place(geometry_.entry.adjusted(0, 0, -side, 0));
    imgHledat.place({geometry_.entry.right() + 1 - side, geometry_.entry.top(), side, side});
}

void frmMenu::placeLabels() {
    for (size_t i = 0; i < level_.items.size(); ++i) lblOdkaz[i]->place(geometry_.items[i]);
    // To know where a level opens it has to be read, so it is asked once.
    std::vector<MenuLabel::Arrow> arrows;
    for (int k = 1; k <= int(level_.items.size()); ++k) arrows.push_back(arrowOf(k));
    const bool left = std::ranges::find(arrows, MenuLabel::Arrow::Left) != arrows.end();
    const int room = besideTexts(level_) + kMenuItemMargin;
    for (size_t i = 0; i < arrows.size(); ++i) {
        lblOdkaz[i]->setMargins(left ? room : kMenuItemMargin, left ? kMenuItemMargin : room);
        lblOdkaz[i]->setArrow(arrows[i]);
    }
}

MenuLabel::Arrow frmMenu::arrowOf(int k) const {
    if (!item(k).opensSubmenu()) return MenuLabel::Arrow::None;
    const MenuContent content = contentOf(MenuLevel::build(app().Db(), level_.childCode(k)));
    return layOutMenu(content, labelOnScreen(k)).level.left() < twips().left() ? MenuLabel::Arrow::Left
                                                                               : MenuLabel::Arrow::Right;
}

void frmMenu::fold() {
    if (child_) child_->fold();
    tmrPodmenu.setEnabled(false);
    if (!parent_) return hideForm();
    parent_->child_ = nullptr;
    unload();
}

frmMenu& frmMenu::root() {
    frmMenu* level = this;
    while (level->parent_) level = level->parent_;
    return *level;
}

void frmMenu::closeTree() {
    frmMenu& first = root();
    first.fold();
    if (first.closed_) first.closed_();
}

void frmMenu::setAside() {
    tmrPodmenu.setEnabled(false);
    hideForm();
    if (child_) child_->setAside();
}

void frmMenu::comeBack() {
    Zobraz();
    if (child_) child_->comeBack();
}

void frmMenu::openAbove(const std::function<void()>& open) {
    const int below = app().FormStack.count();
    frmMenu& first = root();
    first.setAside();
    open();
    if (app().FormStack.count() == below) first.comeBack();
}

void frmMenu::help() {
    openAbove([this] { Form::help(); });
}

void frmMenu::musicSettings() {
    openAbove([this] { Form::musicSettings(); });
}

void frmMenu::eyeSettings() {
    openAbove([this] { Form::eyeSettings(); });
}

void frmMenu::goBack() {
    if (!parent_) return closeTree();
    frmMenu* parent = parent_;
    fold();
    parent->bringToFront();
    if (!parent->hasEntry()) return;
    parent->place(parent->geometry_.level);  // results may have pushed it up
    parent->Text1.focusAll();
}

QRect frmMenu::labelOnScreen(int k) const {
    // The next level stands beside this one, its first line at the height of the item that it belongs to.
    const QRect label = lblOdkaz[size_t(k - 1)]->twips();
    return {twips().left(), twips().top() + label.top(), twips().width(), label.height()};
}

bool frmMenu::isSelectable(int k) const {
    return k >= 1 && size_t(k) <= level_.items.size() && item(k).isSelectable();
}

void frmMenu::mark(int k, bool marked) {
    MenuLabel& label = *lblOdkaz[size_t(k - 1)];
    const bool leadsOn = isSelectable(k) && label.note() != u"0";
    label.setMarked(marked);
    label.setGround(marked ? eyes().selected() : QColor(Qt::transparent));
    label.setColor(marked                 ? colors::kPaper
                   : leadsOn              ? colors::kTitle
                   : eyes().hasContrast() ? colors::kPaper
                                          : kDimmed);
}

void frmMenu::select(int k) {
    if (k == selected_) return;
    if (selected_ > 0) mark(selected_, false);
    selected_ = k;
    if (k == 0) return;
    mark(k, true);
    items_.setCurrent(k - 1);
    ring().sayPart(items_);
}

void frmMenu::hoverItem(int k) {
    if (!isSelectable(k)) return;
    const bool rests = k == selected_ && tmrPodmenu.isEnabled();
    select(k);
    if (rests) return;
    tmrPodmenu.setInterval(kSubmenuDelay);
    tmrPodmenu.setEnabled(true);
}

void frmMenu::mouseMoveEvent(QMouseEvent*) {
    tmrPodmenu.setEnabled(false);
}

void frmMenu::choose(int k) {
    if (!isSelectable(k)) return;
    tmrPodmenu.setEnabled(false);
    select(k);
    const MenuItem chosen = item(k);
    if (chosen.opensSubmenu()) return openChild(level_.childCode(k), labelOnScreen(k));
    OpenMenuTarget(app(), static_cast<std::int16_t>(k), static_cast<std::int16_t>(level_.number()),
                   chosen.target);
}

void frmMenu::openSelectedSubmenu() {
    if (selected_ > 0 && item(selected_).opensSubmenu() &&
        !(child_ && childCode_ == level_.childCode(selected_)))
        openChild(level_.childCode(selected_), labelOnScreen(selected_));
}

void frmMenu::openChild(const QString& code, const QRect& beside, int maxHeight) {
    if (child_) child_->fold();
    child_ = new frmMenu(*this);
    childCode_ = code;
    child_->maxHeight_ = maxHeight;
    child_->unfold(code, beside);
}

/// The results drop down below the entry, so that what was typed stays in sight: where they are many the
/// entry moves up for them.
void frmMenu::openResults() {
    place(geometry_.level);
    openChild(QStringLiteral("0"), besideChild(), kScreen.height() - twips().height());
    makeRoomForResults();
}

QRect frmMenu::besideChild() const {
    return hasEntry() ? QRect(twips().left() - 1, twips().bottom() + 1, 1, 1) : labelOnScreen(selected_);
}

void frmMenu::makeRoomForResults() {
    const int above = child_->twips().top() - twips().height();
    if (above < twips().top()) moveTo({twips().left(), above});
}

void frmMenu::search() {
    if (!searchIngredients(app().Db(), Text1.text())) return;
    openResults();
    if (child_->hint_.isEmpty()) {
        app().HookMessage(Texts::tr("Nalezeno surovin: %1").arg(child_->level_.items.size()));
        return child_->moveSelection(1);
    }
    app().HookMessage(child_->level_.items[0].label + QStringLiteral(". ") + child_->hint_);
    Text1.focusAll();  // nothing to choose there: the next try is typed at once
}

void frmMenu::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("menu")));
    if (hint_.isEmpty()) return;
    painter.setFont(larger(kHintFont, textScale()).toQFont());
    painter.setPen(colors::kPaper);
    painter.drawText(geometry_.hint.adjusted(kMenuItemMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     hint_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
