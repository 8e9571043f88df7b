#include "forms/picturebox.h"

#include <cmath>

#include "forms/colors.h"
#include "forms/largertext.h"
#include "forms/wheelsteps.h"

namespace sarne {
namespace {

constexpr int kWheelStep = 700;  // twips for one notch of the wheel

}  // namespace

PictureBox::PictureBox(Form& form, const QString& name) : Control(form, name), color_(colors::kInk) {}

void PictureBox::Cls() {
    texts_.clear();
    pictures_.clear();
    painters_.clear();
    contentHeight_ = x_ = y_ = 0;
    scrollTo(0);
    update();
    contentChanged();
}

void PictureBox::setPicture(const Picture& picture, Fit fit) {
    Cls();
    drawPicture(picture, {{0, 0}, twips().size()}, fit);
}

void PictureBox::drawPicture(const Picture& picture, const QRect& place, Fit fit) {
    pictures_.push_back({picture, place, fit});
    grow(place.bottom() + 1);
}

void PictureBox::addPainted(Painter painter, int height) {
    painters_.push_back(std::move(painter));
    grow(height);
}

QString PictureBox::drawnText() const {
    QString all;
    for (const Text& text : texts_) {
        if (!all.isEmpty()) all += u'\n';
        all += text.text;
    }
    return all;
}

ReadableText PictureBox::readableText() const {
    ReadableText all;
    for (const Text& text : texts_) {
        const int width = static_cast<int>(QFontMetricsF(text.font.toQFont()).horizontalAdvance(text.text));
        all.addLine(text.text, {text.x, text.top, width, text.bottom - text.top});
    }
    return all;
}

QAccessible::Role PictureBox::role() const {
    return texts_.empty() ? QAccessible::Graphic : QAccessible::StaticText;
}

void PictureBox::scrollTo(int y) {
    y = qBound(0, y, scrollRange());
    if (y == scrolled_) return;
    scrolled_ = y;
    update();
    Q_EMIT scrolledTo(y);
}

void PictureBox::grow(int bottom) {
    contentHeight_ = std::max(contentHeight_, bottom);
    update();
    contentChanged();
}

void PictureBox::setFont(const TextFont& font) {
    const TextFont wanted = larger(font, textScale());
    if (font_ == wanted) return;
    font_ = wanted;
    metrics_.reset();
}

const QFontMetricsF& PictureBox::metrics() const {
    if (!metrics_) metrics_.emplace(font_.toQFont());
    return *metrics_;
}

int PictureBox::textWidth(const QString& text) const {
    return static_cast<int>(std::lround(metrics().horizontalAdvance(text)));
}

int PictureBox::textHeight(const QString&) const {
    return static_cast<int>(std::lround(metrics().height()));
}

int PictureBox::textAscent() const {
    return static_cast<int>(std::lround(metrics().ascent()));
}

void PictureBox::print(const QString& text) {
    const int height = textHeight(text);
    textOut(x_, y_ + textAscent(), text);
    x_ = 0;
    y_ += height;
    grow(y_);
}

void PictureBox::textOut(int x, int baseline, const QString& text) {
    const int top = baseline - static_cast<int>(std::ceil(metrics().ascent()));
    const int bottom = baseline + static_cast<int>(std::ceil(metrics().descent()));
    texts_.push_back({x, baseline, top, bottom, text, font_, color_});
    grow(bottom);
}

void PictureBox::paint(QPainter& painter) {
    const QRect visible(0, scrolled_, twips().width(), twips().height());
    painter.translate(0, -scrolled_);
    painter.setClipRect(visible);
    for (const Placed& placed : pictures_) {
        if (placed.place.intersects(visible)) placed.picture.draw(painter, placed.place, placed.fit);
    }
    for (const Painter& content : painters_) content(painter, visible);
    for (const Text& text : texts_) {
        if (text.bottom < visible.top() || text.top > visible.bottom()) continue;
        painter.setFont(text.font.toQFont());
        painter.setPen(text.color);
        painter.drawText(QPointF(text.x, text.baseline), text.text);
    }
}

void PictureBox::wheelEvent(QWheelEvent* event) {
    if (scrollRange() == 0) return event->ignore();
    scrollBy(-event->angleDelta().y() * kWheelStep / WheelSteps::kNotch);
    event->accept();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
