#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <vector>

namespace sarne {

/// A WAV image, 16 bits, 44100 Hz, one channel: a sine of \a hertz.
QByteArray sineWav(double hertz, int milliseconds, double loudness = 0.4);

/// A folder of sound and video files for one test; it goes with the object.
class TestMedia {
  public:
    /// Writes \a content and gives the file's path.
    QString write(const QString& name, const QByteArray& content) const;
    /// Has ffmpeg make a film of \a milliseconds with the options given ("-c:v cinepak"). Empty when it
    /// cannot.
    QString film(const QString& name, int milliseconds, const QString& options,
                 const QString& size = QStringLiteral("320x240"), int rate = 25) const;
    /// Has ffmpeg write the sound \a from as \a to, in the format that its name says; whether it could.
    bool compress(const QString& from, const QString& to) const;
    QString path(const QString& name) const { return folder_.filePath(name); }

  private:
    QTemporaryDir folder_;
};

/// What stands where a film should be, and cannot be played.
struct BrokenFilm {
    const char* what;
    QByteArray content;
};
/// Files that are no films, or films that nobody can show. Empty when ffmpeg cannot make the film they come
/// from.
std::vector<BrokenFilm> brokenFilms(const TestMedia& media);

/// Runs the event loop until \a done or \a milliseconds are over; whether it was done.
bool waitFor(const std::function<bool()>& done, int milliseconds = 5000);
/// Lets the event loop run for \a milliseconds.
void runFor(int milliseconds);

/// What this process holds: allocated memory and all its own pages in KiB, open files, threads. Pages of
/// libraries do not count: the system takes them away and brings them back as it likes.
struct ProcessUse {
    qint64 kilobytes = 0;
    qint64 pages = 0;
    int files = 0;
    int threads = 0;
    static ProcessUse now();
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
