#include "platform/memory.h"

#include <QFile>

namespace sarne {

double ownMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("RssAnon:")) return line.simplified().split(' ').value(1).toDouble() * 1024;
    return 0;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
