// How the desktop is asked, over D-Bus.
#include "platform/desktopwishes.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/sessionbus.h"

namespace sarne {
namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");

}  // namespace

void askDesktop(QObject& receiver, const std::function<void(DesktopWishes)>& told) {
    if (sessionBusRuns() && QDBusConnection::sessionBus().isConnected()) new DesktopQuestions(receiver, told);
}

DesktopQuestions::DesktopQuestions(QObject& receiver, std::function<void(DesktopWishes)> told)
    : QObject(&receiver), told_(std::move(told)) {
    QDBusConnection::sessionBus().connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                                          SLOT(ask()));
    ask();
}

void DesktopQuestions::ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
    question << QStringList{kAppearanceGroup, kGnomeGroup, kGnomeAccessGroup};
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusMessage reply = answer->reply();
        answer->deleteLater();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) return;
        told_(desktopWishes(qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst())));
    });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
