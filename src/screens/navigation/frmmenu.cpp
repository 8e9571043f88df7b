#include "screens/navigation/frmmenu.h"

#include <QKeyEvent>

#include "forms/bassarne.h"
#include "forms/colors.h"
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
constexpr int kArrowRoom = 240;

}  // namespace

frmMenu::frmMenu(basSarne& sarne, std::function<void()> closed)
    : Form(sarne, QStringLiteral("frmMenu")),
      closed_(std::move(closed)),
      lblNadpis(*this, QStringLiteral("lblNadpis")),
      Text1(*this, QStringLiteral("Text1")),
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
    Text1.setAccessibleName(QStringLiteral("Začátek názvu suroviny"));
    Text1.hide();
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
    Zobraz();
}

void frmMenu::buildLabels() {
    lblNadpis.setText(level_.heading);
    lblNadpis.setVisible(!level_.heading.isEmpty());
    while (lblOdkaz.size() < level_.items.size()) {
        const int k = int(lblOdkaz.size()) + 1;
        auto* label = new Label(*this, QStringLiteral("lblOdkaz(%1)").arg(k));
        label->setFont(kItemFont);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->setClickable(true);
        connect(label, &Label::hovered, this, [this, k] { hoverItem(k); });
        connect(label, &Label::clicked, this, [this, k] { choose(k); });
        lblOdkaz.push_back(label);
    }
    for (size_t i = 0; i < lblOdkaz.size(); ++i) {
        lblOdkaz[i]->setVisible(i < level_.items.size());
        if (i >= level_.items.size()) continue;
        const MenuItem& item = level_.items[i];
        lblOdkaz[i]->setText(u' ' + item.label + kSpacing);
        lblOdkaz[i]->setColor(item.isSelectable() ? colors::kTitle : kDimmed);
        lblOdkaz[i]->setGround(Qt::transparent);
    }
}

void frmMenu::applyGeometry(const QRect& beside) {
    MenuContent content;
    for (const MenuItem& item : level_.items)
        content.itemWidths.push_back(Label::measure(u' ' + item.label + kSpacing, kItemFont).width() +
                                     (item.opensSubmenu() ? kArrowRoom : 0));
    if (!level_.heading.isEmpty())
        content.headingWidth = Label::measure(level_.heading, kHeadingFont).width();
    content.hasEntry = hasEntry();
    geometry_ = layOutMenu(content, beside);
    place(geometry_.level);
    lblNadpis.place(geometry_.heading);
    for (size_t i = 0; i < level_.items.size(); ++i) {
        // The arrow of a submenu stands beside its label, where the mark of the selected one does not hide
        // it.
        const int arrow = level_.items[i].opensSubmenu() ? kArrowRoom : 0;
        lblOdkaz[i]->place(geometry_.items[i].adjusted(0, 0, -arrow, 0));
    }
    Text1.setVisible(hasEntry());
    if (hasEntry()) Text1.place(geometry_.entry);
}

void frmMenu::fold() {
    if (child_) child_->fold();
    tmrPodmenu.setEnabled(false);
    if (!parent_) return hideForm();
    parent_->child_ = nullptr;
    unload();
}

void frmMenu::closeTree() {
    frmMenu* root = this;
    while (root->parent_) root = root->parent_;
    root->fold();
    if (root->closed_) root->closed_();
}

void frmMenu::goBack() {
    if (!parent_) return closeTree();
    frmMenu* parent = parent_;
    fold();
    parent->bringToFront();
    if (parent->hasEntry()) parent->Text1.focusAll();
}

QRect frmMenu::labelOnScreen(int k) const {
    // The next level stands beside this one, its first line at the height of the item that it belongs to.
    const QRect label = lblOdkaz[size_t(k - 1)]->twips();
    return {twips().left(), twips().top() + label.top(), std::max(label.right(), twips().width() - 1),
            label.height()};
}

void frmMenu::select(int k) {
    if (k == selected_) return;
    if (selected_ > 0) lblOdkaz[size_t(selected_ - 1)]->setGround(Qt::transparent);
    if (selected_ > 0) lblOdkaz[size_t(selected_ - 1)]->setColor(colors::kTitle);
    selected_ = k;
    if (k == 0) return;
    lblOdkaz[size_t(k - 1)]->setGround(colors::kSelected);
    lblOdkaz[size_t(k - 1)]->setColor(colors::kPaper);
    app().HookMessage(level_.items[size_t(k - 1)].label);
}

void frmMenu::hoverItem(int k) {
    if (size_t(k) > level_.items.size() || !level_.items[size_t(k - 1)].isSelectable() || k == selected_)
        return;
    select(k);
    tmrPodmenu.setEnabled(false);
    tmrPodmenu.setInterval(kSubmenuDelay);
    tmrPodmenu.setEnabled(true);
}

void frmMenu::mouseMoveEvent(QMouseEvent*) {
    tmrPodmenu.setEnabled(false);
}

void frmMenu::choose(int k) {
    if (k < 1 || size_t(k) > level_.items.size() || !level_.items[size_t(k - 1)].isSelectable()) return;
    tmrPodmenu.setEnabled(false);
    select(k);
    const MenuItem item = level_.items[size_t(k - 1)];
    if (item.opensSubmenu()) return openChild(level_.childCode(k), labelOnScreen(k));
    OpenMenuTarget(app(), static_cast<std::int16_t>(k), static_cast<std::int16_t>(level_.number()),
                   item.target);
}

void frmMenu::openSelectedSubmenu() {
    if (selected_ > 0 && level_.items[size_t(selected_ - 1)].opensSubmenu() &&
        !(child_ && childCode_ == level_.childCode(selected_)))
        openChild(level_.childCode(selected_), labelOnScreen(selected_));
}

void frmMenu::openChild(const QString& code, const QRect& beside) {
    if (child_) child_->fold();
    child_ = new frmMenu(*this);
    childCode_ = code;
    child_->unfold(code, beside);
}

void frmMenu::search() {
    if (!searchIngredients(app().Db(), Text1.text())) return;
    // The results drop down below the entry, so that what was typed stays in sight.
    openChild(QStringLiteral("0"), QRect(twips().left() - 1, twips().bottom() + 1, 1, 1));
    if (child_->level_.items.size() == 1 && !child_->level_.items[0].isSelectable()) {
        app().HookMessage(child_->level_.items[0].label);
        Text1.focusAll();  // nothing to choose there: the next try is typed at once
    } else {
        child_->moveSelection(1);
    }
}

void frmMenu::moveSelection(int step) {
    const int count = int(level_.items.size());
    for (int i = 1; i <= count; ++i) {
        const int k = ((selected_ == 0 && step < 0 ? 1 : selected_) - 1 + step * i + 2 * count) % count + 1;
        if (!level_.items[size_t(k - 1)].isSelectable()) continue;
        return select(k);
    }
}

void frmMenu::jumpTo(const QString& letter) {
    const int count = int(level_.items.size());
    for (int i = 0; i < count && !letter.trimmed().isEmpty(); ++i) {
        const int k = (selected_ + i) % count + 1;
        const MenuItem& item = level_.items[size_t(k - 1)];
        if (item.isSelectable() && item.label.startsWith(letter, Qt::CaseInsensitive)) return select(k);
    }
}

bool frmMenu::keyDown(QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && Text1.hasInput()) {
        search();
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Up:
            moveSelection(-1);
            return true;
        case Qt::Key_Down:
            moveSelection(1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: {
            const int before = depth_;
            choose(selected_);
            if (child_ && child_->depth_ > before && child_->selected_ == 0) child_->moveSelection(1);
            return true;
        }
        case Qt::Key_Left:
        case Qt::Key_Escape:
            goBack();
            return true;
        default:
            break;
    }
    const bool letter = !event.text().isEmpty() && event.text()[0].isLetterOrNumber() &&
                        !(event.modifiers() & (Qt::AltModifier | Qt::ControlModifier));
    if (!letter || event.key() == Qt::Key_C || event.key() == Qt::Key_X) return false;
    jumpTo(event.text());
    return true;
}

void frmMenu::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("menu")));
    painter.setPen(Qt::NoPen);
    for (size_t i = 0; i < level_.items.size(); ++i) {
        if (!level_.items[i].opensSubmenu()) continue;
        const QRect item = geometry_.items[i];
        const QPointF tip(item.right() - 60, item.center().y());
        painter.setBrush(colors::kCopper);
        painter.drawPolygon(QPolygonF{tip, tip + QPointF(-90, -75), tip + QPointF(-90, 75)});
    }
}

}  // namespace sarne
