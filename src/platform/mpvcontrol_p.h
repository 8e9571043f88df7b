#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <atomic>
#include <future>

#include "platform/mpvcontrol.h"
#include "platform/mpvcore.h"
#include "platform/mpvpicture.h"

namespace sarne {

/// The inside of the control: what it was told, the player it drives, and where playing stands. Opening lies
/// in mpvopening.cpp, the rest in mpvcontrol.cpp.
class MpvControl::Private {
  public:
    explicit Private(MpvControl* q) : q_(q) {
        timeout_.setSingleShot(true);
        QObject::connect(&timeout_, &QTimer::timeout, q, [this] { openFailed(MediaError::Internal); });
    }

    ~Private();
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;

    void open();
    void release();
    void play();
    void pause();
    void stop();
    void prev();
    void next();
    void close();
    void whileOpening(QStringView command);
    void goTo(qint64 target);
    qint64 position() const;
    void drainEvents(qint64 waitMs = 0);
    void pictureChanged();
    bool isActive() const { return mode_ == MediaMode::Playing || mode_ == MediaMode::Paused; }

    QString file_;
    MediaMode mode_ = MediaMode::NotOpen;
    MediaError error_ = MediaError::None;
    MediaSound sound_ = MediaSound::On;
    double decibels_ = 0;
    double speed_ = 1;
    MediaNotify notify_ = MediaNotify::Off;
    MediaLoop loop_ = MediaLoop::Off;
    MediaWait wait_ = MediaWait::Wait;
    qint64 length_ = 0;
    QSize videoSize_;
    bool opening_ = false;
    bool held_ = false;
    std::unique_ptr<MpvCore> core_;
    std::unique_ptr<MpvPicture> picture_;  // before core_ is gone

  private:
    static constexpr quint64 seekTag = 1;

    void begin();
    void startPlayer();
    void playerStarted();
    void takePlayer(std::unique_ptr<MpvCore> core);
    void loadFile();
    void waitUntilOpen();
    MediaError fileError() const;
    void opened();
    void openFailed(MediaError error);
    void notify(MediaDone code);
    void halt(MediaMode next);
    void handle(const mpv_event& event);
    void replied(const mpv_event& event);
    void ended(const mpv_event_end_file& event);
    void lost();
    void restarted();
    bool loopsInVain();
    void changed(const mpv_event_property& property);
    void finish();
    void endSoon();
    bool lacksPicture() const;

    MpvControl* q_;
    QTimer timeout_;
    std::future<std::unique_ptr<MpvCore>> loading_;  // the player starts in a thread of its own
    std::atomic<bool> wakeupPosted_ = false;
    std::atomic<bool> picturePosted_ = false;
    quint64 loadTag_ = seekTag;    // the number of the last "open"
    std::optional<qint64> entry_;  // the file that it opened
    bool entryStarted_ = false;
    bool playWhenOpen_ = false;
    bool atEnd_ = false;
    QElapsedTimer sinceRestart_;
    int quickRestarts_ = 0;
    qint64 filmPosition_ = 0;
    std::optional<qint64> target_;  // where a seek that is under way goes
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
