#include "platform/displaymodes.h"

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

namespace sarne {

namespace {

constexpr int answerTimeoutMs = 5000;  // monitors take seconds to change their mode
constexpr int endTimeoutMs = 3000;     // a helper that hangs does not keep the program
constexpr int mostStarts = 3;

QByteArray request(const char* word, QSize size) {
    return QByteArray(word) + ' ' + QByteArray::number(size.width()) + ' ' +
           QByteArray::number(size.height());
}

}  // namespace

/// The helper process, started with the first request. It ends, restoring the mode, when the socket to it
/// closes.
class SystemDisplayModes::Helper {
  public:
    explicit Helper(QString program) : program_(std::move(program)) {}
    ~Helper();
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    /// The helper's answer to one line; empty when there is none. A helper that is gone is started anew.
    QByteArray ask(const QByteArray& line);
    bool start();
    /// How often the helper was started: a later one does not know what an earlier one has changed.
    int starts() const { return starts_; }

  private:
    void end();
    QByteArray exchange(const QByteArray& line);
    QByteArray readLine();

    QString program_;
    int socket_ = -1;
    pid_t process_ = -1;
    int starts_ = 0;
    bool deaf_ = false;  // a late answer would be taken for the next one
};

SystemDisplayModes::Helper::~Helper() {
    end();
}

/// Lets the helper end, and waits for it as long as may be expected of it.
void SystemDisplayModes::Helper::end() {
    if (socket_ >= 0) close(socket_);
    socket_ = -1;
    QElapsedTimer time;
    time.start();
    while (process_ > 0 && waitpid(process_, nullptr, WNOHANG) == 0 && time.elapsed() < endTimeoutMs)
        poll(nullptr, 0, 10);
    process_ = -1;
}

bool SystemDisplayModes::Helper::start() {
    if (socket_ >= 0) return true;
    if (starts_ >= mostStarts) return false;
    ++starts_;
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return false;
    const QByteArray path = QFile::encodeName(program_);
    char* arguments[] = {const_cast<char*>(path.constData()), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDIN_FILENO);
    const bool started = posix_spawn(&process_, path.constData(), &actions, nullptr, arguments, environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    socket_ = ends[0];
    if (started) return true;
    process_ = -1;
    close(socket_);
    socket_ = -1;
    return false;
}

QByteArray SystemDisplayModes::Helper::ask(const QByteArray& line) {
    QByteArray answer = exchange(line);
    return answer.isEmpty() && !deaf_ && socket_ < 0 ? exchange(line) : answer;
}

/// One question and its answer. When the helper turns out to be gone it counts as ended.
QByteArray SystemDisplayModes::Helper::exchange(const QByteArray& line) {
    if (deaf_ || !start()) return {};
    const QByteArray message = line + '\n';
    if (send(socket_, message.constData(), static_cast<std::size_t>(message.size()), MSG_NOSIGNAL) < 0) {
        end();
        return {};
    }
    return readLine();
}

QByteArray SystemDisplayModes::Helper::readLine() {
    QByteArray line;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < answerTimeoutMs) {
        pollfd waiting{socket_, POLLIN, 0};
        char letter = 0;
        if (poll(&waiting, 1, static_cast<int>(answerTimeoutMs - time.elapsed())) <= 0) continue;
        if (recv(socket_, &letter, 1, 0) != 1) {
            end();
            return {};
        }
        if (letter == '\n') return line;
        line += letter;
    }
    deaf_ = true;
    return {};
}

SystemDisplayModes::SystemDisplayModes(const QString& helper, const QString& platform) {
    const QString system = platform.isEmpty() ? QGuiApplication::platformName() : platform;
    // Under Wayland the X display is an imitation, whose modes mean nothing.
    if (system != u"xcb" || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) return;
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/sarne-obnov");
    helper_ = std::make_unique<Helper>(helper.isEmpty() ? beside : helper);
}

SystemDisplayModes::~SystemDisplayModes() {
    restore();
}

void SystemDisplayModes::prepare() {
    if (helper_) helper_->start();
}

QSize SystemDisplayModes::current() const {
    if (!helper_) return {};
    const QList<QByteArray> numbers = helper_->ask("size").split(' ');
    return {numbers.value(0).toInt(), numbers.value(1).toInt()};
}

bool SystemDisplayModes::canSwitch(QSize size) const {
    return helper_ && helper_->ask(request("can", size)) == "yes";
}

bool SystemDisplayModes::setMode(QSize size) {
    if (!helper_) return false;
    if (!original_.isEmpty() && size == original_) return giveBack();
    const QSize before = current();
    if (helper_->ask(request("set", size)) != "yes") return false;
    if (original_.isEmpty()) {
        original_ = before;
        knowing_ = helper_->starts();
    }
    return true;
}

bool SystemDisplayModes::giveBack() {
    if (original_.isEmpty()) return true;
    const QSize size = std::exchange(original_, {});
    // A helper that was started since must be told the size, and that it is there to stay.
    if (helper_->ask("size").isEmpty()) return false;
    if (helper_->starts() == knowing_) return helper_->ask("restore") == "yes";
    return helper_->ask(request("set", size)) == "yes" && helper_->ask("forget") == "yes";
}

void SystemDisplayModes::restore() {
    giveBack();
}

QSize SystemDisplayModes::twipsPerPixel() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return {15, 15};
    return {qRound(1440.0 / screen->logicalDotsPerInchX()), qRound(1440.0 / screen->logicalDotsPerInchY())};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
