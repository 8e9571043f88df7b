#include "platform/endsignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <atomic>
#include <csignal>

namespace sarne {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler is given nothing but the signal's number: what it writes to must be found here.
std::atomic<int> writeEnd{-1};

void forward(int) {
    const int saved = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = saved;
}

}  // namespace

EndSignals::EndSignals(QObject* parent) : QObject(parent) {
    if (pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    writeEnd = ends_[1];
    auto* notifier = new QSocketNotifier(ends_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (read(ends_[0], bytes, sizeof bytes) > 0) {
        }
        Q_EMIT received();
    });
    for (const int number : kSignals) std::signal(number, forward);
}

EndSignals::~EndSignals() {
    if (ends_[0] < 0) return;
    for (const int number : kSignals) std::signal(number, SIG_DFL);
    writeEnd = -1;
    for (const int end : ends_) close(end);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
