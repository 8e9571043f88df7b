#pragma once

#include <QPoint>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace sarne {

/// What a click on the large photo does, by the place of the mouse.
enum class Zone { None, Right, Left, Up, Down };

/// The zone at \a pixel of the 800 x 600 design; in a corner it is the left or right one.
Zone zoneAt(QPoint pixel);
/// How many photos a click in \a zone goes on.
int zoneStep(Zone zone);
/// The cursor's picture in \a zone ("SIPKAVPRAVO").
QString zoneCursor(Zone zone);

/// The list of photos that the viewer steps through, and the guard that keeps a double click from stepping
/// twice.
class PhotoSteps {
  public:
    /// A start outside the list is moved to its nearest end.
    void start(std::vector<std::int16_t> photoIds, int position);

    bool isEmpty() const { return photoIds_.empty(); }
    int position() const { return position_; }
    std::int16_t currentId() const { return idAt(position_); }
    /// Whether a click at \a now (milliseconds) counts: half a second after the last one that did.
    bool accept(qint64 now);
    /// Goes on by \a step, no further than the ends. False when that is no other photo.
    bool step(int step);
    /// To the next photo, behind the last one to the first.
    void advance();
    /// The photos that a step from here can lead to, the likeliest first.
    std::vector<std::int16_t> neighbours() const;

  private:
    std::int16_t idAt(int position) const;
    int clamped(int position) const;

    std::vector<std::int16_t> photoIds_;
    int position_ = 0;
    std::optional<qint64> lastClickTime_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
