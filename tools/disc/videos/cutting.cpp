#include "cutting.h"

#include <algorithm>

namespace sarne::disc {
namespace {

constexpr double kSliceGap = 0.45;

QString sliceName(const QString& stem, int number) {
    return QStringLiteral("%1 %2").arg(stem).arg(number);
}

}  // namespace

void Cutting::divides() {
    Standing* one = now_.subject();
    if (!one) return;
    const auto cut = now_.at(now_.line->to);
    const Role* left = now_.cast.find(now_.line->parts.value(0));
    const Role* right = now_.cast.find(now_.line->parts.value(1));
    if (!cut || !left || !right)
        return now_.error(QStringLiteral("řádek neříká, kde se „%1“ rozdělí a na co").arg(one->name));
    const Standing whole = *one;
    const double x = turned(*cut - whole.place, -whole.angle).x() / now_.stage.actorOf(whole).size;
    now_.stage.leave(whole.name);
    for (int i = 0; i < 2; ++i) {
        const Standing& part = now_.stage.enterLike(whole, now_.line->parts.at(i), i == 0 ? *left : *right);
        (i == 0 ? now_.stage.actorOf(part).right : now_.stage.actorOf(part).left) = x;
        now_.appear(part, now_.end, now_.end);
    }
    now_.hide(whole, now_.end);
}

void Cutting::slices() {
    Standing* knife = now_.subject();
    Standing* found = now_.line->to ? now_.stage.find(now_.line->to->thing) : nullptr;
    const Role* role = now_.cast.find(now_.line->parts.value(0));
    if (!knife) return;
    if (!found || !role || now_.line->count < 2)
        return now_.error(QStringLiteral("řádek neříká, co a na kolik dílů nůž krájí"));
    const Standing whole = *found;
    const QString knifeName = knife->name;
    const QList<double> cuts = pieces(whole, *role);
    knife = now_.stage.find(knifeName);
    sliceWith(*knife, whole, cuts);
}

/// Replaces a thing by equal slices of it; where they meet, centimetres from its anchor.
QList<double> Cutting::pieces(const Standing& whole, const Role& role) {
    const Picture& layer = now_.stage.layerOf(whole);
    const double left = std::max(layer.left(), now_.stage.actorOf(whole).left);
    const double right = std::min(layer.right(), now_.stage.actorOf(whole).right);
    const double wide = (right - left) / now_.line->count;
    QList<double> cuts;
    for (int i = 0; i < now_.line->count; ++i) {
        Standing& part = now_.stage.enterLike(whole, sliceName(role.name(), i + 1), role);
        now_.stage.actorOf(part).left = left + i * wide;
        now_.stage.actorOf(part).right = left + (i + 1) * wide;
        now_.appear(part, now_.begin, now_.begin);
        if (i > 0) cuts << left + i * wide;
    }
    now_.hide(whole, now_.begin);
    now_.stage.leave(whole.name);
    return cuts;
}

void Cutting::sliceWith(Standing& knife, const Standing& whole, const QList<double>& cuts) {
    const double each = (now_.end - now_.begin) / static_cast<double>(cuts.size());
    const QString stem = now_.cast.find(now_.line->parts.first())->name();
    const double angle = now_.line->angle.value_or(knife.angle);
    now_.turn(knife, angle, now_.begin, now_.begin + each / 3);
    for (int i = 0; i < cuts.size(); ++i) {
        const double begin = now_.begin + i * each;
        const QPointF cut = whole.place + turned({cuts[i] * now_.stage.actorOf(whole).size, 0}, whole.angle);
        stroke(knife, cut - now_.leading(*knife.role, angle), begin, each);
        for (int k = 0; k <= i; ++k) push(sliceName(stem, k + 1), begin + each * 0.85);
    }
    knife.angle = angle;
    now_.look(whole.place);
}

/// One cut of \a each seconds: the knife is lifted over, let down and drawn to and fro.
void Cutting::stroke(Standing& knife, QPointF place, double begin, double each) {
    Actor& actor = now_.stage.actorOf(knife);
    actor.walks << Walk{begin, begin + each * 0.3, {knife.place, place}};
    actor.swings << Swing{begin + each * 0.3, begin + each * 0.92, 1.8, {1.2, 0}, 0};
    actor.glides << Glide{Property::lift, begin, begin + each * 0.15, 0, 1.5}
                 << Glide{Property::lift, begin + each * 0.3, begin + each * 0.5, 1.5, 0};
    knife.place = place;
}

void Cutting::push(const QString& name, double begin) {
    Standing* part = now_.stage.find(name);
    const QPointF goal = part->place - QPointF(kSliceGap, 0);
    now_.stage.actorOf(*part).walks << Walk{begin, begin + 0.3, {part->place, goal}};
    part->place = goal;
}

void Cutting::uncovers() {
    Standing* one = now_.subject();
    const Role* role = now_.cast.find(now_.line->parts.value(0));
    if (!one) return;
    if (!role) return now_.error(QStringLiteral("řádek neříká, co „%1“ odkryje").arg(one->name));
    const Standing above = *one;
    now_.appear(now_.stage.enterBelow(above, now_.line->parts.first(), *role), now_.begin, now_.begin);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
