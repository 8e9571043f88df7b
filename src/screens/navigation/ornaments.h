#pragma once

#include <QImage>
#include <QRectF>
#include <functional>

class QPainter;

namespace sarne {

/// The little life of the kitchen around its things: steam over the kettle, the cat's breath, the candle in
/// the window. Each moves for a few seconds and then rests for longer. They lie beside the design area, but
/// for the candle, and are no buttons. Times are counted in steps of kInterval milliseconds.
class Ornaments {
  public:
    enum Thing { kSteam, kCat, kCandle, kThings };
    static constexpr int kInterval = 80;

    /// One step further.
    void step() { ++step_; }
    /// All rest, and begin anew.
    void rest() { step_ = 0; }
    /// How far the thing's movement is: 0 to 1, or nothing of it while it rests: -1.
    double phase(Thing thing) const;
    /// Steps until any of them moves; 0 while one does.
    int stepsUntilMove() const;
    void skip(int steps) { step_ += steps; }

    /// Where the thing moves, in twips of the screen.
    static QRectF place(Thing thing);
    /// Paints what moves. \a kitchen paints the kitchen itself, on a painter of this transform.
    void paint(QPainter& painter, const std::function<void(QPainter&)>& kitchen);

  private:
    void paintCat(QPainter& painter, const std::function<void(QPainter&)>& kitchen);

    int step_ = 0;
    QImage vapour_, light_;  // one glow of each
    QImage cat_;             // as it lies in the kitchen, its edges fading out
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
