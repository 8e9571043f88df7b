#include "forms/label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "forms/colors.h"

namespace sarne {

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
    font_ = font;
    update();
}

void Label::setColor(const QColor& color) {
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
    setAttribute(Qt::WA_TransparentForMouseEvents, !clickable);
}

QSize Label::measure(const QString& text, const TextFont& font, int width) {
    const QFontMetricsF metrics(font.toQFont());
    constexpr double kEndless = 1e6;
    const int flags = width > 0 ? Qt::TextWordWrap : 0;
    const QRectF room(0, 0, width > 0 ? width : kEndless, kEndless);
    const QRectF box = metrics.boundingRect(room, flags | Qt::TextIncludeTrailingSpaces, text);
    const int natural = static_cast<int>(std::ceil(box.width()));
    return {width > 0 ? width : natural,
            static_cast<int>(std::ceil(std::max(box.height(), metrics.height())))};
}

void Label::autoSize(int width) {
    wraps_ = width > 0;
    place({twips().topLeft(), measure(text_, font_, width)});
}

void Label::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    if (ground_.alpha() > 0) painter.fillRect(place, ground_);
    painter.setFont(font_.toQFont());
    painter.setPen(color_);
    if (!isEnabled()) painter.setOpacity(colors::kDisabledText);
    painter.drawText(place, int(alignment_) | (wraps_ ? Qt::TextWordWrap : 0), text_);
}

}  // namespace sarne
