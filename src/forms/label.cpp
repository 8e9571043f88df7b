#include "forms/label.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/unbreakable.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"

namespace sarne {
namespace {

constexpr double kCorner = 60;          // twips, of a ground
constexpr double kStrongDisabled = .9;  // opacity, for eyes that need contrast

constexpr QColor kLit(208, 143, 80, 70);  // under the mouse: a breath of copper

}  // namespace

Label::Label(Form& form, const QString& name) : Control(form, name), color_(colors::kInk) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Label::setText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    setAccessibleName(text.trimmed());
    update();
}

void Label::setFont(const TextFont& font) {
    if (font_ == font) return;
    font_ = font;
    update();
}

void Label::setColor(const QColor& color) {
    if (color_ == color) return;
    color_ = color;
    update();
}

void Label::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

void Label::setGround(const QColor& color) {
    ground_ = color;
    update();
}

void Label::setWordWrap(bool wraps) {
    wraps_ = wraps;
    update();
}

void Label::setClickable(bool clickable) {
    clickable_ = clickable;
    setAttribute(Qt::WA_TransparentForMouseEvents, !clickable);
    showPointer();
}

void Label::setGrows(bool grows) {
    grows_ = grows;
    update();
}

void Label::setMargins(int left, int right) {
    left_ = left;
    right_ = right;
    update();
}

void Label::showPointer() {
    // As a button: a label that does nothing shows its form's pointer.
    clickable_&& isEnabled() ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

void Label::changeEvent(QEvent* event) {
    Control::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) showPointer();
}

QSize Label::measure(const QString& text, const TextFont& font, int width) {
    const QFontMetricsF metrics(font.toQFont());
    constexpr double kEndless = 1e6;
    const int flags = width > 0 ? Qt::TextWordWrap : 0;
    const QRectF room(0, 0, width > 0 ? width : kEndless, kEndless);
    const QRectF box =
        metrics.boundingRect(room, flags | Qt::TextIncludeTrailingSpaces, width > 0 ? unbroken(text) : text);
    const int natural = static_cast<int>(std::ceil(box.width()));
    return {width > 0 ? width : natural,
            static_cast<int>(std::ceil(std::max(box.height(), metrics.height())))};
}

void Label::autoSize(int width) {
    wraps_ = width > 0;
    place({twips().topLeft(), measure(text_, grows_ ? larger(font_, form().textScale()) : font_, width)});
}

int Label::flags() const {
    return int(alignment_) | (wraps_ ? Qt::TextWordWrap : 0);
}

QRect Label::textRoom() const {
    return QRect({0, 0}, twips().size()).adjusted(left_, 0, -right_, 0);
}

bool Label::isAlike(const Label& other) const {
    return other.font_ == font_ && other.twips().size() == twips().size() && other.wraps_ == wraps_ &&
           other.isVisibleTo(&form()) == isVisibleTo(&form());
}

double Label::roomToGrow() const {
    constexpr int kAir = 60;  // around the text, so that it touches nothing
    const QString shown = wraps_ ? unbroken(text_) : text_;
    const QSize room = textRoom().size() - QSize(kAir, wraps_ ? 0 : kAir);
    return room_.of(font_, form().textScale(), shown, room, flags());
}

double Label::growth() const {
    if (!grows_ || form().textScale() <= 1) return 1;
    return growthOfAlike(*this, &Label::isAlike, &Label::roomToGrow);
}

void Label::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    if (ground_.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground_);
        painter.drawRoundedRect(place, kCorner, kCorner);
    } else if (clickable_ && isPointedAt() && isEnabled())
        painter.fillRect(place, kLit);
    painter.setFont(larger(font_, growth()).toQFont());
    painter.setPen(color_);
    if (!isEnabled())
        painter.setOpacity(form().eyes().hasContrast() ? kStrongDisabled : colors::kDisabledText);
    painter.drawText(textRoom(), flags(), wraps_ ? unbroken(text_) : text_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
