#include "platform/memory.h"

#include <malloc.h>

#include <QFile>

namespace sarne {

void giveMemoryBack() {
#ifdef M_MMAP_THRESHOLD
    constexpr int kPicture = 256 * 1024;
    mallopt(M_MMAP_THRESHOLD, kPicture);
    mallopt(M_TRIM_THRESHOLD, 2 * kPicture);
    mallopt(M_ARENA_MAX, 1);
#endif
}

double ownMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("RssAnon:")) return line.simplified().split(' ').value(1).toDouble() * 1024;
    return 0;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
