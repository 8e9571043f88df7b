#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringView>

namespace sarne {

/// What a player is doing, numbered as media controls number it.
enum class MediaMode { NotOpen = 524, Stopped = 525, Playing = 526, Paused = 529 };

/// Why playing ended: it came to its end; another "play" took its place; "stop", "prev", "next" or "close"
/// interrupted it; the file could not be played on.
enum class MediaDone { Successful = 1, Superseded = 2, Aborted = 4, Failed = 8 };

/// Numbers that MultimediaControl::error() gives.
enum class MediaError {
    None = 0,
    UnknownCommand = 261,
    NoPlayer = 266,
    FileNotFound = 275,
    NotOpen = 276,
    Internal = 277,
    InvalidFile = 296,
    FileNameMissing = 304,
};

enum class MediaSound { On, Silent };
enum class MediaNotify { Off, On };
enum class MediaLoop { Off, On };
/// Whether "open" returns when the file is open or has failed, or at once.
enum class MediaWait { Wait, DontWait };

/// Plays one WAV or AVI file at a time, by commands. Lives on the user-interface thread; what it reports
/// arrives there. A new control is not open, sounds, notifies, does not loop and waits. Times are
/// milliseconds.
class MultimediaControl : public QObject {
    Q_OBJECT

  public:
    /// The file that the next "open" opens, as a path of this machine.
    virtual void setFileName(const QString& file) = 0;
    virtual QString fileName() const = 0;

    /// Carries out one of these, in either case:
    /// - "open": opens the file at its beginning, stopped. A file that is open is closed first. When not
    /// waiting
    ///   (setWait()) it returns at once; the commands that follow take effect when the file is open, and a
    ///   file that fails ends in done(Failed) with error() set.
    /// - "play": plays on from where it is. At the end of the file it ends again at once: go back by "prev".
    /// - "pause": pauses; when paused, plays on. Otherwise nothing.
    /// - "stop": stops where it is; "play" goes on from there.
    /// - "prev", "next": to the beginning, to the end; stopped.
    /// - "close": forgets the file. Allowed when nothing is open.
    /// Sets error().
    virtual void command(QStringView name) = 0;

    virtual MediaMode mode() const = 0;

    /// The number of the last command's error, 0 when it succeeded.
    int error() const { return static_cast<int>(lastError()); }
    virtual MediaError lastError() const = 0;
    /// The last command's error in words for the user, in Czech. Empty when it succeeded.
    QString errorMessage() const;

    /// Silent: plays the picture and lets the time pass, without sound. Takes effect at once, lasts over
    /// files.
    virtual void setSilent(MediaSound sound) = 0;
    /// How loud it plays, in \a decibels against the file: 0 as it is, less below 0. Takes effect at once,
    /// lasts over files.
    virtual void setVolume(double decibels) = 0;
    /// How fast it plays: 1 as it is, 0.5 half as fast; voices keep their pitch. Takes effect at once, lasts
    /// over files.
    virtual void setSpeed(double factor) = 0;
    /// Whether done() is emitted.
    virtual void setNotify(MediaNotify notify) = 0;
    /// Looping: at its end the file starts again with no gap that can be heard, and done() does not come.
    /// A player may leave this to its user, who plays again on done(1). Takes effect with the next "open".
    virtual void setLoop(MediaLoop loop) = 0;
    /// How the next "open" behaves.
    virtual void setWait(MediaWait wait) = 0;

    /// Where playing is, and how long the file is. 0 when nothing is open.
    virtual qint64 position() const = 0;
    virtual qint64 length() const = 0;
    /// Goes to \a milliseconds, kept within the file; playing, paused or stopped as before.
    virtual void setPosition(qint64 milliseconds) = 0;

    /// The size at which the video wants to be shown. Empty when the file has no video.
    virtual QSize videoSize() const = 0;
    /// The current picture, scaled into \a size device pixels with its proportions kept and black around it.
    /// A null image when there is none.
    virtual QImage renderFrame(QSize size) = 0;

  Q_SIGNALS:
    /// The file of the last "open" is open. With done(Failed) instead it could not be opened.
    void opened();
    /// Playing ended; \a code is a MediaDone. Interruptions are told from within the command that interrupts.
    void done(int code);
    /// renderFrame() has something new to show.
    void frameReady();
};

/// \a error in words for the user. Empty for None.
QString mediaErrorText(MediaError error);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
