#pragma once

#include <QColor>
#include <QHash>
#include <QStringList>

#include "platform/multimediacontrol.h"

namespace sarne {

/// A multimedia control that plays nothing: it keeps what it is told, changes its mode as a player would, and
/// ends or fails when the test says so.
class FakeMultimedia final : public MultimediaControl {
  public:
    /// Every command in order, lower case; "open" is followed by a blank and the file's name.
    QStringList commands;
    /// The error that the next command of this name gives ("open", "play" ...).
    QHash<QString, MediaError> failing;
    MediaSound sound = MediaSound::On;
    double decibels = 0;
    double speed = 1;
    MediaNotify notify = MediaNotify::Off;
    MediaLoop loop = MediaLoop::Off;
    MediaWait wait = MediaWait::Wait;
    qint64 positionMs = 0;
    qint64 lengthMs = 60000;
    QSize video;
    MediaMode state = MediaMode::NotOpen;
    MediaError lastCode = MediaError::None;
    /// "open" leaves the file to be opened until failToOpen().
    bool opensLater = false;

    /// The file comes to its end.
    void end() {
        state = MediaMode::Stopped;
        positionMs = lengthMs;
        if (notify == MediaNotify::On) Q_EMIT done(static_cast<int>(MediaDone::Successful));
    }
    /// Playing breaks off with \a code.
    void breakOff(MediaDone code) {
        state = MediaMode::Stopped;
        if (notify == MediaNotify::On) Q_EMIT done(static_cast<int>(code));
    }
    /// The file that is being opened turns out to be none.
    void failToOpen(MediaError error) {
        lastCode = error;
        if (notify == MediaNotify::On) Q_EMIT done(static_cast<int>(MediaDone::Failed));
    }
    bool playing() const { return state == MediaMode::Playing; }

    void setFileName(const QString& file) override { file_ = file; }
    QString fileName() const override { return file_; }
    void command(QStringView name) override {
        const QString word = name.toString().toLower();
        commands.append(word == u"open" ? word + u' ' + file_ : word);
        lastCode = failing.value(word, MediaError::None);
        if (lastCode == MediaError::None) carryOut(word);
    }
    MediaMode mode() const override { return state; }
    MediaError lastError() const override { return lastCode; }
    void setSilent(MediaSound value) override { sound = value; }
    void setVolume(double value) override { decibels = value; }
    void setSpeed(double value) override { speed = value; }
    void setNotify(MediaNotify value) override { notify = value; }
    void setLoop(MediaLoop value) override { loop = value; }
    void setWait(MediaWait value) override { wait = value; }
    qint64 position() const override { return state == MediaMode::NotOpen ? 0 : positionMs; }
    qint64 length() const override { return state == MediaMode::NotOpen ? 0 : lengthMs; }
    void setPosition(qint64 milliseconds) override { positionMs = qBound<qint64>(0, milliseconds, lengthMs); }
    QSize videoSize() const override { return state == MediaMode::NotOpen ? QSize() : video; }
    QImage renderFrame(QSize size) override {
        if (state == MediaMode::NotOpen || video.isEmpty() || size.isEmpty()) return {};
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(Qt::darkBlue));
        return image;
    }

  private:
    void carryOut(const QString& word) {
        if (word == u"close") {
            interrupt(MediaMode::NotOpen);
        } else if (word == u"open") {
            interrupt(opensLater ? MediaMode::NotOpen : MediaMode::Stopped);
            positionMs = 0;
            if (!opensLater) Q_EMIT opened();
        } else if (state == MediaMode::NotOpen) {
            if (!opensLater) lastCode = MediaError::NotOpen;
        } else if (word == u"play") {
            const bool already = state == MediaMode::Playing;
            state = MediaMode::Playing;
            if (already && notify == MediaNotify::On) Q_EMIT done(static_cast<int>(MediaDone::Superseded));
        } else if (word == u"pause") {
            if (state == MediaMode::Playing)
                state = MediaMode::Paused;
            else if (state == MediaMode::Paused)
                state = MediaMode::Playing;
        } else {
            if (word == u"prev") positionMs = 0;
            if (word == u"next") positionMs = lengthMs;
            interrupt(MediaMode::Stopped);
        }
    }
    void interrupt(MediaMode next) {
        const bool wasPlaying = state == MediaMode::Playing || state == MediaMode::Paused;
        state = next;
        if (wasPlaying && notify == MediaNotify::On) Q_EMIT done(static_cast<int>(MediaDone::Aborted));
    }

    QString file_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
