#pragma once

#include <QObject>
#include <QString>

#include "forms/musicduck.h"

namespace sarne {

class MultimediaControl;
class Speech;

/// Reads texts aloud, one at a time, for people without a screen reader: with the system's Czech voice, the
/// music held back meanwhile. Where there is no such voice it offers nothing and does nothing.
class ReadAloud : public QObject {
    Q_OBJECT
  public:
    ReadAloud(Speech& speech, MultimediaControl& music);

    /// Whether there is a voice; offeredChanged() tells when one has been found.
    bool isOffered() const;
    bool isReading() const { return reading_; }

    /// Reads \a text, in place of what is being read; while no voice has been found yet, as soon as there is
    /// one, unless stop() comes first. A text without a word reads nothing.
    void read(const QString& text);
    void stop();
    /// Stops what is being read; where nothing is, reads \a text: what the one key for it does.
    void toggle(const QString& text);

    /// Holds the music back; also for sounds that are played otherwise.
    MusicDuck& duck() { return duck_; }

  Q_SIGNALS:
    void offeredChanged();
    /// Reading has begun or has come to its end.
    void readingChanged(bool reading);

  private:
    void setReading(bool reading);

    Speech& speech_;
    MusicDuck duck_;
    bool reading_ = false;
    QString awaited_;  ///< what is read as soon as there is a voice
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
