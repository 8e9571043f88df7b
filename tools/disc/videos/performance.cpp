#include "performance.h"

#include "../nearword.h"

namespace sarne::disc {

Standing* Performance::subject() {
    Standing* one = stage.find(line->subject);
    if (!one)
        error(QStringLiteral("„%1“ teď na scéně není").arg(line->subject) +
              didYouMean(line->subject, stage.names()));
    return one;
}

std::optional<QPointF> Performance::at(const std::optional<Spot>& spot) {
    if (!spot) return {};
    const std::optional<QPointF> found = stage.spot(*spot);
    if (!found)
        error(QStringLiteral("na scéně není nic, co má „%1“")
                  .arg(spot->place.isEmpty() ? spot->thing : spot->place));
    return found ? *found + line->shift : found;
}

QPointF Performance::leading(const Role& role, double angle) const {
    return turned(line->byTip ? role.tip : role.kind == Kind::tool ? role.edge : QPointF(), angle);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
