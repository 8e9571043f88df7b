#include "film.h"

#include <algorithm>
#include <cmath>

namespace sarne::disc {
namespace {

double eased(double share) {
    const double x = std::clamp(share, 0.0, 1.0);
    return x * x * (3 - 2 * x);
}

double shareOf(double time, double from, double to) {
    return to > from ? std::clamp((time - from) / (to - from), 0.0, 1.0) : (time >= from ? 1 : 0);
}

void apply(const Move& move, double share, Pose& pose) {
    if (share < move.first) return;
    const double done = eased(shareOf(share, move.first, move.last));
    pose.values.insert(move.property, move.from + (move.to - move.from) * done);
}

/// There and back; the first and the last time less far, so that nothing jerks.
void apply(const Swing& swing, double share, Pose& pose) {
    if (share <= swing.from || share >= swing.to) return;
    const double within = shareOf(share, swing.from, swing.to);
    const double reach = std::min({1.0, within * 8, (1 - within) * 8});
    const double way = reach * std::sin(2 * M_PI * swing.times * within);
    pose.values[QStringLiteral("x")] += swing.dx * way;
    pose.values[QStringLiteral("y")] += swing.dy * way;
    pose.values[QStringLiteral("otočení")] += swing.turn * way;
}

}  // namespace

Pose Film::pose(const Actor& actor, double seconds) const {
    Pose pose{actor.start, seconds};
    for (const Step& step : steps) {
        if (seconds < step.begin) break;
        const double share = shareOf(seconds, step.begin, step.end);
        for (const Move& move : step.moves.value(actor.name)) apply(move, share, pose);
        for (const Swing& swing : step.swings.value(actor.name)) apply(swing, share, pose);
    }
    return pose;
}

}  // namespace sarne::disc
