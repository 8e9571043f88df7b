#include "film.h"

#include <QLineF>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace sarne::disc {
namespace {

/// The point at a share of a way's length.
QPointF along(const QPolygonF& way, double share) {
    double length = 0;
    for (qsizetype i = 1; i < way.size(); ++i) length += QLineF(way[i - 1], way[i]).length();
    double left = share * length;
    for (qsizetype i = 1; i < way.size(); ++i) {
        const QLineF part(way[i - 1], way[i]);
        if (left <= part.length()) return part.length() > 0 ? part.pointAt(left / part.length()) : part.p1();
        left -= part.length();
    }
    return way.last();
}

/// There and back; less far at both ends, so that nothing jerks.
void apply(const Swing& swing, double seconds, Pose& pose) {
    if (seconds <= swing.begin || seconds >= swing.end) return;
    const double reach = std::min({1.0, (seconds - swing.begin) * 4, (swing.end - seconds) * 4});
    const double phase = 2 * M_PI * swing.perSecond * (seconds - swing.begin);
    const double angle = qDegreesToRadians(pose.of(Property::angle));
    const QPointF way(
        swing.reach.x() * std::sin(phase),
        swing.reach.y() * std::sin(phase + (swing.reach.y() == swing.reach.x() ? M_PI / 2 : 0)));
    pose.place += reach * QPointF(way.x() * std::cos(angle) - way.y() * std::sin(angle),
                                  way.x() * std::sin(angle) + way.y() * std::cos(angle));
    pose.of(Property::angle) += reach * swing.turn * std::sin(phase);
}

}  // namespace

double easedShare(double seconds, double begin, double end) {
    if (end <= begin) return seconds >= begin ? 1 : 0;
    const double x = std::clamp((seconds - begin) / (end - begin), 0.0, 1.0);
    return x * x * (3 - 2 * x);
}

Pose poseOf(const Actor& actor, double seconds) {
    Pose pose;
    pose.of(Property::opacity) = 0;
    for (const Walk& walk : actor.walks)
        if (seconds >= walk.begin) pose.place = along(walk.way, easedShare(seconds, walk.begin, walk.end));
    for (const Glide& glide : actor.glides)
        if (seconds >= glide.begin)
            pose.of(glide.property) =
                glide.from + (glide.to - glide.from) * easedShare(seconds, glide.begin, glide.end);
    for (const Swing& swing : actor.swings) apply(swing, seconds, pose);
    return pose;
}

View viewOf(const Set& set, double seconds) {
    View view;
    for (const ViewMove& move : set.views) {
        if (seconds < move.begin) break;
        const double share = easedShare(seconds, move.begin, move.end);
        view.middle += (move.to.middle - view.middle) * share;
        view.nearness *= std::pow(move.to.nearness / view.nearness, share);
    }
    return view;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
