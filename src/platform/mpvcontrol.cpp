#include "platform/mpvcontrol.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <future>

#include "platform/mpvcore.h"
#include "platform/mpvpicture.h"

namespace sarne {

namespace {

constexpr quint64 seekTag = 1;
constexpr int openTimeoutMs = 5000;  // a disc that spins up takes seconds

double seconds(qint64 milliseconds) {
    return static_cast<double>(milliseconds) / 1000.0;
}
qint64 milliseconds(std::optional<double> seconds) {
    return qRound64(seconds.value_or(0) * 1000.0);
}

}  // namespace

class MpvControl::Private {
  public:
    explicit Private(MpvControl* q) : q_(q) {
        timeout_.setSingleShot(true);
        QObject::connect(&timeout_, &QTimer::timeout, q, [this] { openFailed(MediaError::Internal); });
    }

    void open();
    void play();
    void pause();
    void stop();
    void prev();
    void next();
    void close();
    void whileOpening(QStringView command);
    void goTo(qint64 target);
    qint64 position() const;
    void drainEvents(double waitSeconds = 0);
    void pictureChanged();
    bool isActive() const { return mode_ == MediaMode::Playing || mode_ == MediaMode::Paused; }

    QString file_;
    MediaMode mode_ = MediaMode::NotOpen;
    MediaError error_ = MediaError::None;
    MediaSound sound_ = MediaSound::On;
    MediaNotify notify_ = MediaNotify::Off;
    MediaLoop loop_ = MediaLoop::Off;
    MediaWait wait_ = MediaWait::Wait;
    qint64 length_ = 0;
    QSize videoSize_;
    bool opening_ = false;
    std::unique_ptr<MpvCore> core_;
    std::unique_ptr<MpvPicture> picture_;  // before core_ is gone

  private:
    void loadLibrary();
    void libraryLoaded();
    bool startPlayer();
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
    std::optional<MpvLibrary> library_;
    std::future<std::optional<MpvLibrary>> loading_;
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

// --- opening

void MpvControl::Private::open() {
    close();
    error_ = fileError();
    if (error_ != MediaError::None) return;
    opening_ = true;
    playWhenOpen_ = false;
    timeout_.start(openTimeoutMs);
    loadLibrary();
    if (wait_ == MediaWait::Wait) waitUntilOpen();
}

MediaError MpvControl::Private::fileError() const {
    if (file_.isEmpty()) return MediaError::FileNameMissing;
    const QFileInfo info(file_);
    if (!info.exists()) return MediaError::FileNotFound;
    if (!info.isFile() || !info.isReadable() || info.size() == 0) return MediaError::InvalidFile;
    return MediaError::None;
}

void MpvControl::Private::loadLibrary() {
    if (core_) return loadFile();
    if (loading_.valid()) return;
    loading_ = std::async(std::launch::async, [q = q_, this] {
        auto library = MpvLibrary::load();
        QMetaObject::invokeMethod(
            q, [this] { libraryLoaded(); }, Qt::QueuedConnection);
        return library;
    });
}

/// Takes what the loading thread brought; nothing when a waiting "open" has taken it already.
void MpvControl::Private::libraryLoaded() {
    if (!loading_.valid()) return;
    library_ = loading_.get();
    if (!opening_) return;
    if (startPlayer())
        loadFile();
    else
        openFailed(MediaError::NoPlayer);
}

bool MpvControl::Private::startPlayer() {
    if (core_) return true;
    if (!library_) return false;
    core_ = MpvCore::start(*library_, [this] {
        if (wakeupPosted_.exchange(true)) return;
        QMetaObject::invokeMethod(
            q_, [this] { drainEvents(); }, Qt::QueuedConnection);
    });
    if (!core_) return false;
    picture_ = std::make_unique<MpvPicture>(*core_, [this, core = core_.get()] {
        core->wakeUp();
        if (picturePosted_.exchange(true)) return;
        QMetaObject::invokeMethod(
            q_, [this] { pictureChanged(); }, Qt::QueuedConnection);
    });
    core_->setFlag("mute", sound_ == MediaSound::Silent);
    return true;
}

void MpvControl::Private::loadFile() {
    core_->setFlag("pause", true);
    const bool loops = loop_ == MediaLoop::On;
    core_->setText("loop-file", loops ? "inf" : "no");
    core_->setText("gapless-audio", loops ? "yes" : "no");  // without, the end waits until it has been heard
    entryStarted_ = false;
    core_->load(QFileInfo(file_).absoluteFilePath(), ++loadTag_);
}

void MpvControl::Private::waitUntilOpen() {
    if (loading_.valid()) libraryLoaded();
    const QDeadlineTimer deadline(openTimeoutMs);
    while (opening_ && !deadline.hasExpired()) {
        drainEvents(seconds(deadline.remainingTime()));
        if (picture_) picture_->skip();
    }
    if (opening_) openFailed(MediaError::Internal);
}

void MpvControl::Private::opened() {
    const bool atEnd = core_->flag("eof-reached");
    length_ = milliseconds(core_->number("duration"));
    videoSize_ = QSize(static_cast<int>(core_->number("dwidth").value_or(0)),
                       static_cast<int>(core_->number("dheight").value_or(0)));
    if (lacksPicture() || (atEnd && videoSize_.isEmpty())) return openFailed(MediaError::InvalidFile);
    core_->followPosition(!videoSize_.isEmpty());
    filmPosition_ = 0;
    opening_ = false;
    timeout_.stop();
    mode_ = MediaMode::Stopped;
    atEnd_ = false;
    QMetaObject::invokeMethod(
        q_, [this] { pictureChanged(); }, Qt::QueuedConnection);
    if (playWhenOpen_) play();
}

/// A film whose picture cannot be decoded is no film, even when its sound can.
bool MpvControl::Private::lacksPicture() const {
    bool film = false;
    const int tracks = static_cast<int>(core_->number("track-list/count").value_or(0));
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
    if (core_) core_->unload();
    halt(MediaMode::NotOpen);
}

// --- commands on an open file

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
    core_->seek(seconds(target), seekTag);
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
    const qint64 now = videoSize_.isEmpty() ? milliseconds(core_->number("time-pos")) : filmPosition_;
    return qBound<qint64>(0, now, length_);
}

// --- what the player reports

void MpvControl::Private::notify(MediaDone code) {
    if (notify_ == MediaNotify::On) Q_EMIT q_->done(static_cast<int>(code));
}

void MpvControl::Private::drainEvents(double waitSeconds) {
    wakeupPosted_ = false;
    const QPointer<MpvControl> alive(q_);
    while (core_) {
        const mpv_event& event = core_->nextEvent(waitSeconds);
        if (event.event_id == MPV_EVENT_NONE) return;
        waitSeconds = 0;
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
        filmPosition_ = milliseconds(*static_cast<double*>(property.data));
    else if (property.format == MPV_FORMAT_FLAG && *static_cast<int*>(property.data) != 0 && !target_)
        finish();
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

// --- the control

MpvControl::MpvControl() : d_(std::make_unique<Private>(this)) {}

MpvControl::~MpvControl() {
    d_->picture_.reset();
    d_->core_.reset();
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
