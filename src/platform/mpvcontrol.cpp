#include "platform/mpvcontrol.h"

#include <QPointer>

#include "platform/mpvcontrol_p.h"

namespace sarne {

void MpvControl::Private::play() {
    const bool already = mode_ == MediaMode::Playing;
    mode_ = MediaMode::Playing;
    if (atEnd_)
        endSoon();
    else
        core_->setFlag("pause", false);
    if (already) notify(MediaDone::Superseded);
}

/// A command on a file that is still being opened: only whether it shall play then counts.
void MpvControl::Private::whileOpening(QStringView command) {
    if (opening_)
        playWhenOpen_ = command == u"play";
    else
        error_ = MediaError::NotOpen;
}

void MpvControl::Private::pause() {
    if (mode_ == MediaMode::Paused) return play();
    if (mode_ != MediaMode::Playing) return;
    mode_ = MediaMode::Paused;
    core_->setFlag("pause", true);
}

void MpvControl::Private::stop() {
    core_->setFlag("pause", true);
    halt(MediaMode::Stopped);
}

void MpvControl::Private::prev() {
    core_->setFlag("pause", true);
    goTo(0);
    halt(MediaMode::Stopped);
}

void MpvControl::Private::next() {
    core_->setFlag("pause", true);
    core_->seekToEnd();
    atEnd_ = true;
    halt(MediaMode::Stopped);
}

void MpvControl::Private::goTo(qint64 target) {
    target = qBound<qint64>(0, target, length_);
    atEnd_ = target > 0 && target == length_;
    if (atEnd_) {
        core_->seekToEnd();
        return endSoon();
    }
    target_ = target;
    core_->seek(target, seekTag);
}

/// The end was asked for, not played to: when playing, that is told like any other end, not from within the
/// command.
void MpvControl::Private::endSoon() {
    QMetaObject::invokeMethod(
        q_,
        [this] {
            if (atEnd_) finish();
        },
        Qt::QueuedConnection);
}

/// Leaves what is playing or paused for \a next, and says so.
void MpvControl::Private::halt(MediaMode next) {
    const bool interrupted = isActive();
    mode_ = next;
    if (interrupted) notify(MediaDone::Aborted);
}

qint64 MpvControl::Private::position() const {
    if (mode_ == MediaMode::NotOpen) return 0;
    if (atEnd_) return length_;
    if (target_) return *target_;
    const qint64 now = videoSize_.isEmpty() ? core_->milliseconds("time-pos") : filmPosition_;
    return qBound<qint64>(0, now, length_);
}

void MpvControl::Private::notify(MediaDone code) {
    if (notify_ == MediaNotify::On) Q_EMIT q_->done(static_cast<int>(code));
}

void MpvControl::Private::drainEvents(qint64 waitMs) {
    wakeupPosted_ = false;
    const QPointer<MpvControl> alive(q_);
    while (core_) {
        const mpv_event& event = core_->nextEvent(waitMs);
        if (event.event_id == MPV_EVENT_NONE) return;
        waitMs = 0;
        handle(event);
        if (!alive) return;
    }
}

void MpvControl::Private::handle(const mpv_event& event) {
    switch (event.event_id) {
        case MPV_EVENT_START_FILE:
            entryStarted_ = static_cast<mpv_event_start_file*>(event.data)->playlist_entry_id == entry_;
            break;
        case MPV_EVENT_END_FILE:
            ended(*static_cast<mpv_event_end_file*>(event.data));
            break;
        case MPV_EVENT_PLAYBACK_RESTART:
            if (entryStarted_) restarted();
            break;
        case MPV_EVENT_COMMAND_REPLY:
            replied(event);
            break;
        case MPV_EVENT_GET_PROPERTY_REPLY:
        case MPV_EVENT_PROPERTY_CHANGE:
            changed(*static_cast<mpv_event_property*>(event.data));
            break;
        default:
            break;
    }
}

void MpvControl::Private::replied(const mpv_event& event) {
    if (event.reply_userdata == seekTag && event.error < 0) target_.reset();
    if (event.reply_userdata != loadTag_ || !opening_) return;
    entry_ = MpvCore::loadedEntry(event);
    if (!entry_) openFailed(MediaError::InvalidFile);
}

void MpvControl::Private::ended(const mpv_event_end_file& event) {
    if (event.playlist_entry_id != entry_) return;
    if (opening_) return openFailed(MediaError::InvalidFile);
    lost();
}

/// What was open is there no longer.
void MpvControl::Private::lost() {
    const bool wasActive = isActive();
    mode_ = MediaMode::NotOpen;
    close();
    error_ = MediaError::InvalidFile;
    if (wasActive) notify(MediaDone::Failed);
}

/// Whether a file that loops does so without playing anything, as when its disc was taken out.
bool MpvControl::Private::loopsInVain() {
    constexpr int soonMs = 50;
    constexpr int patience = 20;
    const bool soon = !target_ && sinceRestart_.isValid() && sinceRestart_.elapsed() < soonMs;
    quickRestarts_ = soon ? quickRestarts_ + 1 : 0;
    sinceRestart_.start();
    return quickRestarts_ > patience;
}

void MpvControl::Private::restarted() {
    if (opening_) return opened();
    if (loopsInVain()) return lost();
    target_.reset();
    core_->askForEnd();  // a short file may have ended again before its last end was noticed to be over
}

void MpvControl::Private::changed(const mpv_event_property& property) {
    if (property.format == MPV_FORMAT_DOUBLE)
        filmPosition_ = qRound64(*static_cast<double*>(property.data) * 1000);
    else if (property.format == MPV_FORMAT_FLAG && *static_cast<int*>(property.data) != 0 && !target_)
        finish();
    else
        core_->followOutput(property);
}

void MpvControl::Private::finish() {
    if (mode_ != MediaMode::Playing) return;
    core_->setFlag("pause", true);
    atEnd_ = true;
    mode_ = MediaMode::Stopped;
    notify(MediaDone::Successful);
}

void MpvControl::Private::pictureChanged() {
    picturePosted_ = false;
    if (!picture_ || !picture_->update()) return;
    if (opening_)
        picture_->skip();
    else if (mode_ != MediaMode::NotOpen)
        Q_EMIT q_->frameReady();
}

MpvControl::MpvControl() : d_(std::make_unique<Private>(this)) {}

MpvControl::Private::~Private() {
    if (loading_.valid()) loading_.get();
    picture_.reset();
    core_.reset();
}

MpvControl::~MpvControl() = default;

void MpvControl::hold() {
    d_->held_ = true;
}

void MpvControl::release() {
    d_->release();
}

void MpvControl::command(QStringView name) {
    using Act = void (Private::*)();
    struct Command {
        QStringView name;
        Act act;
    };
    static constexpr Command commands[] = {{u"play", &Private::play},
                                           {u"pause", &Private::pause},
                                           {u"stop", &Private::stop},
                                           {u"prev", &Private::prev},
                                           {u"next", &Private::next}};
    d_->error_ = MediaError::None;
    const auto is = [name](QStringView word) { return name.compare(word, Qt::CaseInsensitive) == 0; };
    if (is(u"open")) return d_->open();
    if (is(u"close")) return d_->close();
    for (const Command& command : commands) {
        if (!is(command.name)) continue;
        if (d_->mode_ != MediaMode::NotOpen) return (d_.get()->*command.act)();
        return d_->whileOpening(command.name);
    }
    d_->error_ = MediaError::UnknownCommand;
}

void MpvControl::setFileName(const QString& file) {
    d_->file_ = file;
}
QString MpvControl::fileName() const {
    return d_->file_;
}
MediaMode MpvControl::mode() const {
    return d_->mode_;
}
MediaError MpvControl::lastError() const {
    return d_->error_;
}
void MpvControl::setNotify(MediaNotify notify) {
    d_->notify_ = notify;
}
void MpvControl::setLoop(MediaLoop loop) {
    d_->loop_ = loop;
}
void MpvControl::setWait(MediaWait wait) {
    d_->wait_ = wait;
}
qint64 MpvControl::position() const {
    return d_->position();
}
qint64 MpvControl::length() const {
    return d_->length_;
}

void MpvControl::setSilent(MediaSound sound) {
    d_->sound_ = sound;
    if (d_->core_) d_->core_->setFlag("mute", sound == MediaSound::Silent);
}

void MpvControl::setVolume(double decibels) {
    d_->decibels_ = decibels;
    if (d_->core_) d_->core_->setDecibels(decibels);
}

void MpvControl::setSpeed(double factor) {
    d_->speed_ = factor;
    if (d_->core_) d_->core_->setSpeed(factor);
}

void MpvControl::setPosition(qint64 milliseconds) {
    if (d_->mode_ != MediaMode::NotOpen) d_->goTo(milliseconds);
}

QSize MpvControl::videoSize() const {
    return d_->videoSize_;
}

QImage MpvControl::renderFrame(QSize size) {
    if (d_->videoSize_.isEmpty()) return {};
    return d_->picture_->render(size);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
