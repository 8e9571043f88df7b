#include "stage.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace sarne::disc {

QPointF turned(QPointF point, double angle) {
    const double radians = qDegreesToRadians(angle);
    return {point.x() * std::cos(radians) - point.y() * std::sin(radians),
            point.x() * std::sin(radians) + point.y() * std::cos(radians)};
}

Standing* Stage::find(const QString& name) {
    const auto found = std::find_if(standing_.begin(), standing_.end(),
                                    [&](const Standing& one) { return one.name == name; });
    return found == standing_.end() ? nullptr : &*found;
}

QStringList Stage::names() const {
    QStringList all;
    for (const Standing& one : standing_) all << one.name;
    return all;
}

const Picture& Stage::layerOf(const Standing& one) const {
    static const Picture none;
    const auto found = cast_.layers.constFind(film_.actors[one.actor].layer);
    return found == cast_.layers.cend() ? none : *found;
}

Standing& Stage::enter(const QString& name, const Role& role, const QString& look, QPointF place,
                       double angle, bool isBelow) {
    Actor actor;
    actor.name = name;
    actor.layer = look.isEmpty() ? role.looks.value(0).second : role.layerOf(look);
    actor.level = 1000 * static_cast<int>(role.kind) + (isBelow ? -1 : 1) * ++entered_;
    actor.size = role.size;
    actor.set = static_cast<int>(film_.sets.size()) - 1;
    actor.walks << Walk{0, 0, {place}};
    actor.glides << Glide{Property::angle, 0, 0, angle, angle};
    film_.actors << actor;
    standing_.push_back({name, &role, static_cast<int>(film_.actors.size()) - 1, place, angle});
    return standing_.back();
}

Standing& Stage::enterLike(const Standing& other, const QString& name, const Role& role) {
    Actor actor = film_.actors[other.actor];
    actor.name = name;
    actor.walks = {Walk{0, 0, {other.place}}};
    actor.glides = {Glide{Property::angle, 0, 0, other.angle, other.angle}};
    actor.swings.clear();
    actor.level += 0.0001 * ++entered_;
    const Standing made{name, &role, static_cast<int>(film_.actors.size()), other.place, other.angle};
    film_.actors << actor;
    standing_.push_back(made);
    return standing_.back();
}

Standing& Stage::enterBelow(const Standing& other, const QString& name, const Role& role) {
    Standing& made = enterLike(other, name, role);
    film_.actors[made.actor].level = 1000 * static_cast<int>(role.kind) - 500 - ++entered_;
    return made;
}

void Stage::change(Standing& one, const QString& look) {
    Actor actor = film_.actors[one.actor];
    actor.layer = one.role->layerOf(look);
    actor.left = -1000;
    actor.right = 1000;
    actor.walks = {Walk{0, 0, {one.place}}};
    actor.glides = {Glide{Property::angle, 0, 0, one.angle, one.angle}};
    actor.swings.clear();
    actor.level += 0.0001;
    actor.size = one.role->size;
    one.actor = static_cast<int>(film_.actors.size());
    film_.actors << actor;
}

void Stage::leave(const QString& name) {
    std::erase_if(standing_, [&](const Standing& one) { return one.name == name; });
}

const Standing* Stage::havingPlace(const QString& thing, const QString& word) const {
    const auto found = std::find_if(standing_.crbegin(), standing_.crend(), [&](const Standing& one) {
        return (thing.isEmpty() || one.name == thing) && (word.isEmpty() || one.role->places.contains(word));
    });
    return found == standing_.crend() ? nullptr : &*found;
}

std::optional<QPointF> Stage::spot(const Spot& spot) const {
    if (spot.stage) return spot.stage;
    const Standing* owner = havingPlace(spot.thing, spot.place);
    if (!owner) return {};
    const QPointF own = spot.place.isEmpty() ? QPointF() : owner->role->places.value(spot.place).value(0);
    return owner->place + turned(own, owner->angle);
}

QPolygonF Stage::line(const QString& word) const {
    const Standing* owner = havingPlace({}, word);
    QPolygonF way;
    if (owner)
        for (const QPointF& point : owner->role->places.value(word))
            way << owner->place + turned(point, owner->angle);
    return way;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
