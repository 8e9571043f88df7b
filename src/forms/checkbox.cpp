#include "forms/checkbox.h"

#include <QKeyEvent>
#include <QPainter>

#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"

namespace sarne {
namespace {

constexpr double kStrongDisabled = .9;  // opacity, for eyes that need contrast

constexpr int kMark = 270;  // side of the box
constexpr int kGap = 120;   // from the box to the caption
constexpr int kCaptionFlags = Qt::AlignLeft | Qt::AlignVCenter;

}  // namespace

CheckBox::CheckBox(Form& form, const QString& name) : Control(form, name), color_(colors::kInk) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &Control::clicked, this, [this] { use(); });
}

void CheckBox::addAccessibleState(QAccessible::State& state) const {
    state.checkable = true;
    state.checked = checked_;
}

void CheckBox::setMarkPictures(const Picture& on, const Picture& off) {
    on_ = on;
    off_ = off;
    update();
}

void CheckBox::setChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    Q_EMIT toggled(checked);
}

void CheckBox::setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption.trimmed());
    update();
}

void CheckBox::setFont(const TextFont& font) {
    font_ = font;
    update();
}

void CheckBox::setColor(const QColor& color) {
    color_ = color;
    update();
}

void CheckBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) return click();
    Control::keyPressEvent(event);
}

QRect CheckBox::captionRoom() const {
    return QRect({0, 0}, twips().size()).adjusted(kGap / 2 + kMark + kGap, 0, 0, 0);
}

double CheckBox::roomToGrow() const {
    return room_.of(font_, form().textScale(), caption_, captionRoom().size(), kCaptionFlags);
}

void CheckBox::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    if (!isEnabled())
        painter.setOpacity(form().eyes().hasContrast() ? kStrongDisabled : colors::kDisabledText);
    const QRect box(kGap / 2, (place.height() - kMark) / 2, kMark, kMark);
    if (markPicture().isNull())
        paintMark(painter, box);
    else
        markPicture().draw(painter, box, Fit::Inside);
    painter.setFont(larger(font_, roomToGrow()).toQFont());
    painter.setPen(color_);
    painter.drawText(captionRoom(), kCaptionFlags, caption_);
}

void CheckBox::paintMark(QPainter& painter, const QRect& place) const {
    painter.setPen(QPen(colors::kCopper.darker(140), 30));
    painter.setBrush(colors::kPaper.lighter(106));
    painter.drawRoundedRect(place, 45, 45);
    if (!isChecked()) return;
    painter.setPen(QPen(colors::kSelected, 45, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPoint tick[] = {place.topLeft() + QPoint(60, 140), place.topLeft() + QPoint(115, 205),
                           place.topLeft() + QPoint(215, 65)};
    painter.drawPolyline(tick, 3);
}

OptionButton::OptionButton(Form& form, const QString& name, int group) : CheckBox(form, name), group_(group) {
    connect(this, &CheckBox::toggled, this, [this](bool chosen) {
        if (chosen) giveUpOthers();
    });
}

void OptionButton::giveUpOthers() {
    for (auto* other : form().findChildren<OptionButton*>(Qt::FindDirectChildrenOnly)) {
        if (other != this && other->group_ == group_) other->setChecked(false);
    }
}

void OptionButton::paintMark(QPainter& painter, const QRect& place) const {
    painter.setPen(QPen(colors::kCopper.darker(140), 30));
    painter.setBrush(colors::kPaper.lighter(106));
    painter.drawEllipse(place);
    if (!isChecked()) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kSelected);
    painter.drawEllipse(place.adjusted(75, 75, -75, -75));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
