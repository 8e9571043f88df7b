#include "platform/sessionbus.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

namespace sarne {
namespace {

constexpr char kAddress[] = "DBUS_SESSION_BUS_ADDRESS", kNone[] = "disabled:";

}  // namespace

bool sessionBusRuns() {
    if (const QByteArray address = qgetenv(kAddress); !address.isEmpty()) return address != kNone;
    return QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

void declineMissingBus() {
    if (!sessionBusRuns() && QStandardPaths::findExecutable(QStringLiteral("dbus-launch")).isEmpty())
        qputenv(kAddress, kNone);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
