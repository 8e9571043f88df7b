#pragma once

#include <QRectF>
#include <memory>

#include "forms/picture.h"

namespace sarne {

/// The ground of a full screen: a picture of the design area, and one of the same place that goes on around
/// it, whose middle, at full height, is the design area. Where only the first is there, the display's rest
/// shows its own surroundings, blurred and darkened. Copies share what was composed.
class Room {
  public:
    Room() = default;
    /// \a design is 4 : 3; \a wide may be empty.
    Room(Picture design, Picture wide = {});

    /// A calm ground that may be cut: \a picture over all of the display, proportions kept.
    static Room covering(Picture picture);

    bool isNull() const { return !parts_; }
    /// The picture of the design area alone.
    Picture design() const;
    /// Gives the room its design's picture where it was made before that was read. What is being composed of
    /// the wide one stays.
    void setDesign(Picture design);

    /// Draws the room into \a covered, which contains the design area (twips), and keeps what it has composed
    /// until it is drawn into another. An empty room is plain night.
    void draw(QPainter& painter, const QRectF& covered) const;
    /// The same without keeping anything: for those who keep what they paint.
    void compose(QPainter& painter, const QRectF& covered) const;
    /// Lets go of what was composed: of a room that is not drawn again soon.
    void forget();
    /// Composes the room on another thread for being drawn into \a covered, which takes \a pixels: while that
    /// is done there is time for other things. Drawn before, it is waited for; drawn into another place, or
    /// as other pictures, it is composed anew.
    void prepare(QSize pixels, const QRectF& covered) const;
    /// Where a wide picture of this size lies, in twips.
    static QRectF widePlace(QSizeF picture);

  private:
    struct Parts;
    std::shared_ptr<Parts> parts_;
};

/// Fills \a covered with \a picture, blurred and darkened: what is round a picture that does not fill the
/// display.
void paintSurroundings(QPainter& painter, const QRectF& covered, const QImage& picture);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
