#include "platform/singleinstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace sarne {

SingleInstance::SingleInstance(const QString& lockFile) {
    QDir().mkpath(QFileInfo(lockFile).path());
    // Closed in programs that are started from here: they would hold the lock on.
    file_ = open(QFile::encodeName(lockFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    // Only "held by another" means a second instance; a file system that knows no locks does not.
    if (file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) != 0) first_ = errno != EWOULDBLOCK;
}

SingleInstance::~SingleInstance() {
    if (file_ >= 0) close(file_);
}

QString SingleInstance::defaultLockFile() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/sarne.lock");
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
