#include "projector.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

#include "lettering.h"
#include "spectacles.h"

namespace sarne::disc {
namespace {

/// How long one ground takes another's place, and the film comes from the dark and goes back to it.
constexpr double kCut = 0.7;
constexpr double kDusk = 0.5;
/// Where on the frame the middle of the stage is, above the caption.
const QPointF kMiddle(kFilmWidth * 0.5, kFilmWidth* kStageAbove / kStageWidth);
const QSizeF kTable(58, 43.5);

double pixelsPerCentimetre(const View& view) {
    return kFilmWidth / kStageWidth * view.nearness;
}

QTransform stageTransform(const View& view) {
    QTransform made = QTransform::fromTranslate(kMiddle.x(), kMiddle.y());
    const double scale = pixelsPerCentimetre(view);
    made.scale(scale, scale);
    made.translate(-view.middle.x(), -view.middle.y());
    return made;
}

/// From the centimetres of a picture to the frame; what is lifted is a little larger and higher.
QTransform actorTransform(const Actor& actor, const Pose& pose, const View& view) {
    QTransform made = stageTransform(view);
    const double lift = pose.of(Property::lift);
    made.translate(pose.place.x(), pose.place.y() - lift * 0.4);
    made.rotate(pose.of(Property::angle));
    const double size = actor.size * (1 + lift * 0.015);
    made.scale(size, size * pose.of(Property::squash));
    return made;
}

QRectF extent(const Actor& actor, const Picture& layer) {
    const double left = std::max(layer.left(), actor.left);
    const double right = std::min(layer.right(), actor.right);
    return {left, -layer.anchor.y() / layer.perCentimetre, right - left,
            layer.size.height() / layer.perCentimetre};
}

bool isRevealing(const Actor& actor, const Pose& pose) {
    return actor.revealFrom != actor.revealTo && pose.of(Property::reveal) < 1;
}

/// A film that begins in a room takes up the picture that was seen before it.
double darkness(const Film& film, double seconds) {
    const double since = grounds().value(film.sets.first().ground).isRoom ? kDusk : seconds;
    return std::clamp(1 - std::min(since, film.seconds - seconds) / kDusk, 0.0, 1.0);
}

}  // namespace

QImage preparedGround(const QString& name, const QString& file) {
    QImage picture = QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull() || grounds().value(name).isRoom) return picture;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SoftLight);
    QRadialGradient lamp(QPointF(picture.width() * 0.3, picture.height() * 0.25), picture.width() * 0.7);
    lamp.setColorAt(0, QColor(255, 226, 178, 200));
    lamp.setColorAt(0.6, QColor(128, 120, 110, 60));
    lamp.setColorAt(1, QColor(10, 16, 20, 190));
    painter.fillRect(picture.rect(), lamp);
    return picture;
}

Projector::Projector(const Film& film, const Cast& cast, const QString& art,
                     const std::function<QImage(const QString&)>& ground)
    : film_(film),
      store_(cast, art),
      orders_(static_cast<size_t>(film.sets.size())),
      shown_(static_cast<size_t>(film.actors.size())),
      image_(kFilmWidth, kFilmHeight, QImage::Format_ARGB32_Premultiplied) {
    for (const Set& set : film.sets) grounds_.push_back(ground(set.ground));
    for (int i = 0; i < film.actors.size(); ++i)
        orders_[static_cast<size_t>(film.actors[i].set)].push_back(i);
    for (std::vector<int>& order : orders_)
        std::stable_sort(order.begin(), order.end(),
                         [&](int a, int b) { return film.actors[a].level < film.actors[b].level; });
}

int Projector::setAt(double seconds) const {
    int set = 0;
    while (set + 1 < film_.sets.size() && film_.sets[set + 1].begin <= seconds) ++set;
    return set;
}

const QImage& Projector::frame(double seconds) {
    const int set = setAt(seconds);
    const View view = viewOf(film_.sets[set], seconds);
    const bool isViewStill = set == set_ && view == view_;
    if (isViewStill)
        renewBackdrop(set, view, seconds);
    else
        backdropSet_ = -1;
    changed_ = image_.rect();
    const double cut = set > 0 ? (seconds - film_.sets[set].begin) / kCut : 1;
    if (cut < 1) {
        drawCut(seconds, cut);
        set_ = -1;
    } else if (set != set_ || !(view == view_) || darkness(film_, seconds) > 0 ||
               darkness(film_, seconds_) > 0) {
        changes(set, seconds);
        drawWhole(seconds);
        set_ = set;
    } else if (changed_ = changes(set, seconds); !changed_.isEmpty()) {
        QPainter painter(&image_);
        painter.setClipRegion(changed_);
        drawSet(painter, set, seconds, changed_);
    }
    view_ = view;
    seconds_ = seconds;
    return image_;
}

void Projector::drawWhole(double seconds) {
    QPainter painter(&image_);
    drawSet(painter, setAt(seconds), seconds, image_.rect());
    painter.fillRect(image_.rect(), QColor(6, 12, 14, static_cast<int>(255 * darkness(film_, seconds))));
}

void Projector::drawCut(double seconds, double share) {
    QImage before = image_;
    QPainter old(&before);
    drawSet(old, setAt(seconds) - 1, seconds, before.rect());
    old.end();
    QPainter painter(&image_);
    drawSet(painter, setAt(seconds), seconds, image_.rect());
    painter.setOpacity(1 - share);
    painter.drawImage(0, 0, before);
}

QRegion Projector::changes(int set, double seconds) {
    QRegion changed = changedActors(set, seconds);
    const View view = viewOf(film_.sets[set], seconds);
    QList<QPointF> tags;
    for (const Tag& tag : film_.tags) tags << stageTransform(view).map(tag.place);
    for (const Show& show : film_.shows) {
        if (show.set != set || seconds_ < show.begin - 0.1 || seconds_ > show.end) continue;
        changed += rectOf(show, seconds_, view).united(rectOf(show, seconds, view));
    }
    changed += changedLettering(film_, seconds_, seconds, tags);
    return changed & image_.rect();
}

QRegion Projector::changedActors(int set, double seconds) {
    QRegion changed;
    const View view = viewOf(film_.sets[set], seconds);
    for (const int i : orders_[static_cast<size_t>(set)]) {
        const Actor& actor = film_.actors[i];
        Shown& before = shown_[static_cast<size_t>(i)];
        const Shown now{poseOf(actor, seconds), rectOf(actor, poseOf(actor, seconds), view),
                        seconds >= actor.shadowFrom};
        if (now.pose == before.pose && now.rect == before.rect && now.hasShadow == before.hasShadow) continue;
        if (before.pose.of(Property::opacity) > 0) changed += before.rect;
        if (now.pose.of(Property::opacity) > 0) changed += now.rect;
        before = now;
    }
    return changed;
}

void Projector::drawSet(QPainter& painter, int set, double seconds, const QRegion& where) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const View view = viewOf(film_.sets[set], seconds);
    if (set == backdropSet_ && view == backdropView_) {
        painter.drawImage(0, 0, backdrop_);
        drawActors(painter, set, seconds, where, backdropCount_, 1e6);
    } else {
        drawGround(painter, set, view);
        drawActors(painter, set, seconds, where, 0, 1e6);
    }
    for (const Show& show : film_.shows) {
        if (show.set != set || seconds < show.begin || seconds > show.end) continue;
        painter.save();
        painter.setTransform(stageTransform(view), true);
        painter.translate(placeOf(show, seconds));
        drawSpectacle(painter, show.kind, seconds - show.begin, show.end - seconds);
        painter.restore();
    }
    QList<QPointF> tags;
    for (const Tag& tag : film_.tags) tags << stageTransform(view).map(tag.place);
    drawLettering(painter, film_, seconds, tags);
}

/// Draws the actors from one to before another in their order. Parts of one thing lie beside each other:
/// first the shadows of all, then the parts.
void Projector::drawActors(QPainter& painter, int set, double seconds, const QRegion& where, size_t from,
                           size_t to) {
    const std::vector<int>& order = orders_[static_cast<size_t>(set)];
    const View view = viewOf(film_.sets[set], seconds);
    to = std::min(to, order.size());
    while (from < to) {
        const size_t end = std::min(to, endOfGroup(set, from));
        for (const bool isShadow : {true, false})
            for (size_t i = from; i < end; ++i) {
                const Actor& actor = film_.actors[order[i]];
                const Pose pose = poseOf(actor, seconds);
                if (pose.of(Property::opacity) <= 0 || !where.intersects(rectOf(actor, pose, view))) continue;
                if (!isShadow)
                    drawActor(painter, actor, pose, view);
                else if (seconds >= actor.shadowFrom)
                    drawShadow(painter, actor, pose, view);
            }
        from = end;
    }
    painter.setOpacity(1);
}

/// Behind the last of the actors that are parts of the same thing as one of them.
size_t Projector::endOfGroup(int set, size_t first) const {
    const std::vector<int>& order = orders_[static_cast<size_t>(set)];
    size_t end = first;
    while (end < order.size() &&
           std::floor(film_.actors[order[end]].level) == std::floor(film_.actors[order[first]].level))
        ++end;
    return end;
}

/// How many of the lowest things stay as they are for a while.
size_t Projector::stillCount(int set, double seconds) const {
    constexpr double kWhile = 0.6;
    const std::vector<int>& order = orders_[static_cast<size_t>(set)];
    const auto isStill = [&](int i) {
        const Actor& actor = film_.actors[i];
        return poseOf(actor, seconds) == poseOf(actor, seconds + kWhile) &&
               poseOf(actor, seconds) == poseOf(actor, seconds + kWhile / 2) && actor.swings.isEmpty() &&
               (seconds >= actor.shadowFrom || seconds + kWhile < actor.shadowFrom) &&
               !isRevealing(actor, poseOf(actor, seconds));
    };
    size_t count = 0;
    while (count < order.size()) {
        const size_t end = endOfGroup(set, count);
        for (size_t i = count; i < end; ++i)
            if (!isStill(order[i])) return count;
        count = end;
    }
    return count;
}

/// Keeps a picture of the ground and of what lies still on it, so that it need not be drawn for every frame.
void Projector::renewBackdrop(int set, const View& view, double seconds) {
    const std::vector<int>& order = orders_[static_cast<size_t>(set)];
    bool isGood = set == backdropSet_ && view == backdropView_ && seconds < backdropUntil_;
    for (size_t i = 0; isGood && i < backdropCount_; ++i)
        isGood = poseOf(film_.actors[order[i]], seconds) == backdropPoses_[i];
    if (isGood) return;
    backdropCount_ = stillCount(set, seconds);
    backdrop_ = QImage(kFilmWidth, kFilmHeight, QImage::Format_ARGB32_Premultiplied);
    backdropPoses_.clear();
    for (size_t i = 0; i < backdropCount_; ++i)
        backdropPoses_.push_back(poseOf(film_.actors[order[i]], seconds));
    QPainter painter(&backdrop_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawGround(painter, set, view);
    drawActors(painter, set, seconds, backdrop_.rect(), 0, backdropCount_);
    backdropSet_ = set;
    backdropView_ = view;
    backdropUntil_ = seconds + 1;
}

void Projector::drawGround(QPainter& painter, int set, const View& view) {
    const QImage& picture = grounds_[static_cast<size_t>(set)];
    const bool isRoom = grounds().value(film_.sets[set].ground).isRoom;
    const QSizeF size = isRoom ? QSizeF(kFilmWidth, kFilmHeight) / (kFilmWidth / kStageWidth) : kTable;
    const QPointF corner =
        isRoom ? -kMiddle / (kFilmWidth / kStageWidth) : QPointF(-size.width() / 2, -size.height() / 2);
    if (set != groundSet_ || !(view == groundView_)) {
        ground_ = QImage(kFilmWidth, kFilmHeight, QImage::Format_ARGB32_Premultiplied);
        ground_.fill(QColor(11, 34, 38));
        QPainter made(&ground_);
        made.setRenderHint(QPainter::SmoothPixmapTransform);
        made.setTransform(stageTransform(view));
        if (!picture.isNull()) made.drawImage(QRectF(corner, size), picture);
        groundSet_ = set;
        groundView_ = view;
    }
    painter.drawImage(0, 0, ground_);
}

void Projector::drawPicture(QPainter& painter, const Actor& actor, const Pose& pose, const View& view) {
    const Picture& layer = store_.layer(actor.layer);
    double share = 1;
    const double scale = pixelsPerCentimetre(view) * actor.size / layer.perCentimetre;
    const QImage& picture = store_.prepared(actor.layer).at(scale, share);
    // Parts that still touch overlap by a hair, or the board would shine through.
    const QRectF part =
        extent(actor, layer)
            .adjusted(actor.left > layer.left() ? -0.02 : 0, 0, actor.right < layer.right() ? 0.02 : 0, 0);
    const double per = layer.perCentimetre * share;
    const QRectF source((part.left() + layer.anchor.x() / layer.perCentimetre) * per, 0, part.width() * per,
                        picture.height());
    painter.setTransform(actorTransform(actor, pose, view), true);
    painter.drawImage(part, picture, source);
}

void Projector::drawShadow(QPainter& painter, const Actor& actor, const Pose& pose, const View& view) {
    const Picture& layer = store_.layer(actor.layer);
    const QRectF part = extent(actor, layer);
    const auto column = [&](double x) {
        return static_cast<int>(std::lround(x * layer.perCentimetre + layer.anchor.x()));
    };
    const QImage& shadow = store_.shadow(actor.layer, column(part.left()), column(part.right()));
    const double margin = kShadowMargin / (layer.perCentimetre * kShadowScale);
    const double height = 0.35 + pose.of(Property::lift) + (actor.level >= 2000 ? 0.35 : 0);
    Pose cast = pose;
    cast.of(Property::lift) = 0;
    cast.place += QPointF(height * 0.75, height * 0.6);
    painter.save();
    painter.setOpacity(pose.of(Property::opacity) * 0.5 / (1 + 0.25 * height) * pose.of(Property::squash));
    painter.setTransform(actorTransform(actor, cast, view), true);
    painter.drawImage(part.adjusted(-margin, -margin, margin, margin), shadow, QRectF(shadow.rect()));
    painter.restore();
}

void Projector::drawActor(QPainter& painter, const Actor& actor, const Pose& pose, const View& view) {
    painter.save();
    painter.setOpacity(std::min(1.0, pose.of(Property::opacity)));
    if (isRevealing(actor, pose))
        drawRevealed(painter, actor, pose, view);
    else
        drawPicture(painter, actor, pose, view);
    painter.restore();
}

/// Draws the actor up to the edge that wanders over it, softly.
void Projector::drawRevealed(QPainter& painter, const Actor& actor, const Pose& pose, const View& view) {
    const QRect rect = rectOf(actor, pose, view).intersected(image_.rect());
    if (rect.isEmpty()) return;
    QImage part(rect.size(), QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::transparent);
    QPainter inner(&part);
    inner.setRenderHints(painter.renderHints());
    inner.translate(-rect.topLeft());
    inner.save();
    drawPicture(inner, actor, pose, view);
    inner.restore();
    const double edge =
        (actor.revealFrom + (actor.revealTo - actor.revealFrom) * pose.of(Property::reveal)) / actor.size;
    const double soft = (actor.revealTo > actor.revealFrom ? 0.35 : -0.35) / actor.size;
    inner.setTransform(actorTransform(actor, pose, view), true);
    QLinearGradient mask(edge - soft, 0, edge + soft, 0);
    mask.setColorAt(0, Qt::black);
    mask.setColorAt(1, Qt::transparent);
    inner.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    inner.fillRect(extent(actor, store_.layer(actor.layer)).adjusted(-1, -1, 1, 1), mask);
    inner.end();
    painter.drawImage(rect.topLeft(), part);
}

QRect Projector::rectOf(const Actor& actor, const Pose& pose, const View& view) {
    const QRectF part = extent(actor, store_.layer(actor.layer)).adjusted(-1, -1, 1, 1);
    const QRectF seen = actorTransform(actor, pose, view).mapRect(part);
    const double reach = (1.2 + pose.of(Property::lift)) * pixelsPerCentimetre(view);
    return seen.adjusted(-reach, -reach, reach, reach).toAlignedRect();
}

QPointF Projector::placeOf(const Show& show, double seconds) const {
    if (show.actor < 0) return show.place;
    return poseOf(film_.actors[show.actor], seconds).place + show.place;
}

QRect Projector::rectOf(const Show& show, double seconds, const View& view) const {
    const QRectF reach = reachOf(show.kind).translated(placeOf(show, seconds));
    return stageTransform(view).mapRect(reach).toAlignedRect();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
