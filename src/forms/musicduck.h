#pragma once

#include <QByteArray>

#include "forms/timer.h"

namespace sarne {

class MultimediaControl;

/// Holds the background music back while something is spoken: 10 dB down within 150 ms, back over a second.
class MusicDuck {
  public:
    explicit MusicDuck(MultimediaControl& music);

    /// Holds it back for as long as \a wavImage, a whole sound file, lasts from now on; what is no sound
    /// changes nothing.
    void speaking(const QByteArray& wavImage);
    /// Holds it back until letGo().
    void hold();
    /// Lets it come back, over a second.
    void letGo();
    /// Lets the music sound as before at once.
    void release();
    /// Ticks while the music is not as loud as usual.
    Timer& timer() { return timer_; }

  private:
    void tick();

    MultimediaControl& music_;
    Timer timer_;
    qint64 milliseconds_ = 0;  // for which it is still held back
    double level_ = 0;         // decibels
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
