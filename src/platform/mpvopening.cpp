#include <QDeadlineTimer>
#include <QFileInfo>
#include <chrono>
#include <utility>

#include "core/checked.h"
#include "platform/mpvcontrol_p.h"

namespace sarne {

namespace {

constexpr int openTimeoutMs = 5000;  // a disc that spins up takes seconds

}  // namespace

void MpvControl::Private::open() {
    close();
    error_ = fileError();
    if (error_ != MediaError::None) return;
    opening_ = true;
    playWhenOpen_ = false;
    if (held_ && wait_ == MediaWait::DontWait) return;
    begin();
    if (wait_ == MediaWait::Wait) waitUntilOpen();
}

void MpvControl::Private::release() {
    if (std::exchange(held_, false) && opening_) begin();
}

void MpvControl::Private::begin() {
    timeout_.start(openTimeoutMs);
    startPlayer();
}

MediaError MpvControl::Private::fileError() const {
    if (file_.isEmpty()) return MediaError::FileNameMissing;
    const QFileInfo info(file_);
    if (!info.exists()) return MediaError::FileNotFound;
    if (!info.isFile() || !info.isReadable() || info.size() == 0) return MediaError::InvalidFile;
    return MediaError::None;
}

void MpvControl::Private::startPlayer() {
    if (core_) return loadFile();
    if (loading_.valid()) return;
    MpvCore::prepare();
    loading_ = std::async(std::launch::async, [q = q_, this] {
        const auto library = MpvLibrary::load();
        std::unique_ptr<MpvCore> core;
        if (library)
            core = MpvCore::start(*library, [this] {
                if (wakeupPosted_.exchange(true)) return;
                QMetaObject::invokeMethod(
                    q_, [this] { drainEvents(); }, Qt::QueuedConnection);
            });
        QMetaObject::invokeMethod(
            q, [this] { playerStarted(); }, Qt::QueuedConnection);
        return core;
    });
}

/// Takes what the starting thread brought; nothing when a waiting "open" has taken it already.
void MpvControl::Private::playerStarted() {
    if (!loading_.valid()) return;
    if (auto core = loading_.get()) takePlayer(std::move(core));
    if (!opening_) return;
    if (core_)
        loadFile();
    else
        openFailed(MediaError::NoPlayer);
}

void MpvControl::Private::takePlayer(std::unique_ptr<MpvCore> core) {
    core_ = std::move(core);
    picture_ = std::make_unique<MpvPicture>(*core_, [this, core = core_.get()] {
        core->wakeUp();
        if (picturePosted_.exchange(true)) return;
        QMetaObject::invokeMethod(
            q_, [this] { pictureChanged(); }, Qt::QueuedConnection);
    });
    core_->setFlag("mute", sound_ == MediaSound::Silent);
    core_->setDecibels(decibels_);
    core_->setSpeed(speed_);
    drainEvents();  // a wake-up while there was no player was heard by nobody
}

void MpvControl::Private::loadFile() {
    core_->setFlag("pause", true);
    core_->setText("loop-file", loop_ == MediaLoop::On ? "inf" : "no");
    entryStarted_ = false;
    core_->load(QFileInfo(file_).absoluteFilePath(), ++loadTag_);
}

void MpvControl::Private::waitUntilOpen() {
    if (loading_.valid()) playerStarted();
    const QDeadlineTimer deadline(openTimeoutMs);
    while (opening_ && !deadline.hasExpired()) {
        drainEvents(deadline.remainingTime());
        if (picture_) picture_->skip();
    }
    if (opening_) openFailed(MediaError::Internal);
}

void MpvControl::Private::opened() {
    const bool atEnd = core_->flag("eof-reached");
    length_ = core_->milliseconds("duration");
    videoSize_ = QSize(wholeNumber(core_->number("dwidth").value_or(0)),
                       wholeNumber(core_->number("dheight").value_or(0)));
    if (lacksPicture() || (atEnd && videoSize_.isEmpty())) return openFailed(MediaError::InvalidFile);
    core_->followPosition(!videoSize_.isEmpty());
    // With it, a loop's end does not wait until it has been heard. Only while the file is open: it would keep
    // the sound device for the next one, even a device that is there no longer.
    if (loop_ == MediaLoop::On) core_->setText("gapless-audio", "yes");
    filmPosition_ = 0;
    opening_ = false;
    mode_ = MediaMode::Stopped;
    atEnd_ = false;
    QMetaObject::invokeMethod(
        q_, [this] { pictureChanged(); }, Qt::QueuedConnection);
    Q_EMIT q_->opened();
    if (playWhenOpen_) play();
}

/// A film whose picture cannot be decoded is no film, even when its sound can.
bool MpvControl::Private::lacksPicture() const {
    bool film = false;
    const int tracks = wholeNumber(core_->number("track-list/count").value_or(0));
    for (int i = 0; i < tracks; ++i) {
        const QString track = QStringLiteral("track-list/%1/").arg(i);
        film = film || core_->text(track + QStringLiteral("type")) == u"video";
    }
    return film && !core_->number("current-tracks/video/id");
}

void MpvControl::Private::openFailed(MediaError error) {
    if (!opening_) return;
    close();
    error_ = error;
    if (wait_ == MediaWait::DontWait) notify(MediaDone::Failed);
}

void MpvControl::Private::close() {
    timeout_.stop();
    opening_ = false;
    entry_.reset();
    target_.reset();
    length_ = 0;
    videoSize_ = {};
    if (core_) {
        core_->setText("gapless-audio", "no");
        core_->unload();
    }
    halt(MediaMode::NotOpen);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
