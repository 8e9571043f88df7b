#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <vector>

namespace sarne {

/// A recorded stretch of sound, one channel, 44100 samples a second.
class Recording {
  public:
    explicit Recording(std::vector<qint16> samples) : samples_(std::move(samples)) {}

    int milliseconds() const { return static_cast<int>(samples_.size() / 44.1); }
    /// The part from \a from to \a to, in milliseconds.
    Recording part(double from, double to) const;
    /// The loudest sample, 0 to 32767.
    int peak() const;
    /// Where the first and the last sound is, in milliseconds; -1 when all is silent.
    double firstSound() const;
    double lastSound() const;
    /// The longest silence between the first and the last sound, in milliseconds.
    double longestGap() const;
    /// By how much a lasting tone of \a hertz comes too early or too late, at most, against how it began, in
    /// milliseconds; more than half a period cannot be told.
    double longestShift(double hertz) const;
    /// How much of the sound is a tone of \a hertz, 0 to 1.
    double share(double hertz) const;

  private:
    std::vector<qint16> samples_;
};

/// A sound server of the test's own, whose one device plays into a recording. While it runs, this process and
/// those that it starts sound there.
class SoundServer {
  public:
    SoundServer();
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// Starts the server; false when this machine has none or it does not start.
    bool start();
    /// Ends the server at once, as when the device is pulled out.
    void kill();
    /// Lets the server run but answer nobody, until it is woken.
    void freeze();
    void wake();
    /// Takes the one device away while the server runs on, and puts it back.
    bool pullDevice();
    bool plugDevice();
    /// Forgets what was recorded until now.
    void rewind();
    /// What was recorded since rewind().
    Recording recorded();
    /// What sounds in the next \a milliseconds.
    Recording listen(int milliseconds);
    /// Waits until nothing but a tone of \a hertz has sounded for a fifth of a second.
    bool waitForTone(double hertz);
    /// Waits until nothing has sounded for a fifth of a second.
    bool waitForSilence();

  private:
    Recording latest();
    void offerByAlsa();
    bool startRecording();

    QTemporaryDir folder_;
    QProcess server_;
    QProcess recorder_;
    QByteArray bytes_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
