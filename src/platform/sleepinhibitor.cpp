#include "platform/sleepinhibitor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <optional>
#include <utility>

#include "platform/sessionbus.h"

namespace sarne {

namespace {

std::optional<QDBusConnection> sessionBus() {
    if (!sessionBusRuns()) return {};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

QDBusMessage screenSaver(const char* method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver"),
        QStringLiteral("org.freedesktop.ScreenSaver"), QLatin1String(method));
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

}  // namespace

/// One wish that the display stays awake. The desktop's answer may come when it is over.
struct DesktopSleepInhibitor::Wish {
    bool wanted = true;
    std::optional<uint> cookie;

    void answered(const QDBusPendingReply<uint>& reply) {
        if (reply.isError()) return;
        cookie = reply.value();
        if (!wanted) giveBack();
    }
    void giveBack() {
        wanted = false;
        const auto bus = sessionBus();
        if (cookie && bus) bus->send(screenSaver("UnInhibit", {*std::exchange(cookie, std::nullopt)}));
    }
};

DesktopSleepInhibitor::DesktopSleepInhibitor() = default;

DesktopSleepInhibitor::~DesktopSleepInhibitor() {
    release();
}

void DesktopSleepInhibitor::inhibit(const QString& reason) {
    const auto bus = wish_ ? std::nullopt : sessionBus();
    if (!bus) return;
    wish_ = std::make_shared<Wish>();
    const QVariantList arguments{QCoreApplication::applicationName(), reason};
    auto* call = new QDBusPendingCallWatcher(bus->asyncCall(screenSaver("Inhibit", arguments)),
                                             QCoreApplication::instance());
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call,
                     [wish = wish_](QDBusPendingCallWatcher* answer) {
                         wish->answered(*answer);
                         answer->deleteLater();
                     });
}

void DesktopSleepInhibitor::release() {
    if (wish_) wish_->giveBack();
    wish_.reset();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
