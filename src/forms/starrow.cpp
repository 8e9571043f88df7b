// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/starrow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/czech.h"
#include "core/texts.h"
#include "forms/colors.h"

namespace sarne {
namespace {

constexpr double kInner = .42;  // a star's inner radius, of its outer one
constexpr double kFill = .46;   // its outer radius, of its room's side
constexpr QColor kGold(235, 190, 70);

QPainterPath starPath(QPointF middle, double radius) {
    QPainterPath path;
    for (int corner = 0; corner < 10; ++corner) {
        const double angle = corner * std::numbers::pi / 5, r = corner % 2 == 0 ? radius : radius * kInner;
        const QPointF at = middle + QPointF(r * std::sin(angle), -r * std::cos(angle));
        corner == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    path.closeSubpath();
    return path;
}

}  // namespace

StarRow::StarRow(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setTip(Texts::tr("Moje hodnocení"));
}

QString StarRow::accessibleValue() const {
    const Noun stars{Texts::tr("hvězdička"), Texts::tr("hvězdičky"), Texts::tr("hvězdiček"),
                     Texts::tr("hvězdičky")};
    return stars_ == 0 ? Texts::tr("bez hodnocení") : counted(stars_, stars, QLocale::c());
}

void StarRow::setStars(int stars) {
    stars_ = std::clamp(stars, 0, kStars);
    update();
}

void StarRow::give(int stars) {
    setStars(stars);
    Q_EMIT given(stars_);
}

bool StarRow::keyDown(const QKeyEvent& event) {
    if (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) return false;
    const int key = event.key();
    if (key >= Qt::Key_0 && key <= Qt::Key_0 + kStars) {
        give(key - Qt::Key_0);
        return true;
    }
    const bool press = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (press) give((stars_ + 1) % (kStars + 1));
    return press;
}

void StarRow::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasDown = isDown();
    Control::mouseReleaseEvent(event);
    const QPoint at = toTwips(event->position());
    if (!wasDown || event->button() != Qt::LeftButton || !QRect({0, 0}, twips().size()).contains(at)) return;
    const int star = std::clamp(at.x() * kStars / std::max(1, twips().width()), 0, kStars - 1) + 1;
    give(star == stars_ ? 0 : star);
}

void StarRow::paint(QPainter& painter) {
    const double side = twips().width() / double(kStars);
    const double radius = kFill * std::min<double>(side, twips().height());
    painter.setPen(QPen(colors::kCopper, 22));
    for (int star = 0; star < kStars; ++star) {
        painter.setBrush(star < stars_ ? QBrush(kGold) : QBrush(colors::kNight));
        painter.drawPath(starPath({(star + .5) * side, twips().height() / 2.}, radius));
    }
}

QString starText(int stars) {
    if (stars <= 0) return {};
    return QString(std::min(stars, StarRow::kStars), QChar(0x2605)) +
           QString(std::max(0, StarRow::kStars - stars), QChar(0x2606));
}

}  // namespace sarne
