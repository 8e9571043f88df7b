#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <cstddef>
#include <functional>
#include <vector>

#include "film.h"
#include "layers.h"

namespace sarne::disc {

constexpr int kFilmWidth = 800;
constexpr int kFilmHeight = 600;

/// Draws the frames of a film one after the other. Only what changed since the frame before is drawn again.
class Projector {
  public:
    /// \a ground gives the picture of a ground by its name.
    Projector(const Film& film, const Cast& cast, const QString& art,
              const std::function<QImage(const QString&)>& ground);

    /// The picture at a moment of the film; valid until the next call.
    const QImage& frame(double seconds);
    /// Where that picture may differ from the one before.
    const QRegion& changed() const { return changed_; }

  private:
    /// What an actor looked like in the frame before.
    struct Shown {
        Pose pose;
        QRect rect;
        bool hasShadow = true;
    };

    void drawWhole(double seconds);
    void drawCut(double seconds, double share);
    QRegion changes(int set, double seconds);
    QRegion changedActors(int set, double seconds);
    void drawSet(QPainter& painter, int set, double seconds, const QRegion& where);
    void drawActors(QPainter& painter, int set, double seconds, const QRegion& where, size_t from, size_t to);
    size_t endOfGroup(int set, size_t first) const;
    size_t stillCount(int set, double seconds) const;
    void renewBackdrop(int set, const View& view, double seconds);
    void drawGround(QPainter& painter, int set, const View& view);
    void drawShadow(QPainter& painter, const Actor& actor, const Pose& pose, const View& view);
    void drawActor(QPainter& painter, const Actor& actor, const Pose& pose, const View& view);
    void drawRevealed(QPainter& painter, const Actor& actor, const Pose& pose, const View& view);
    void drawPicture(QPainter& painter, const Actor& actor, const Pose& pose, const View& view);
    QRect rectOf(const Actor& actor, const Pose& pose, const View& view);
    QPointF placeOf(const Show& show, double seconds) const;
    QRect rectOf(const Show& show, double seconds, const View& view) const;
    int setAt(double seconds) const;

    const Film& film_;
    LayerStore store_;
    std::vector<QImage> grounds_;
    std::vector<std::vector<int>> orders_;
    std::vector<Shown> shown_;
    QImage image_;
    QRegion changed_;
    QImage ground_;
    View groundView_;
    int groundSet_ = -1;
    QImage backdrop_;
    View backdropView_;
    int backdropSet_ = -1;
    size_t backdropCount_ = 0;
    std::vector<Pose> backdropPoses_;
    double backdropUntil_ = 0;
    View view_;
    int set_ = -1;
    double seconds_ = -1;
};

/// A ground made ready for its films, lit by the lamp at the left.
QImage preparedGround(const QString& name, const QString& file);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
