#pragma once

#include <QString>

namespace sarne {

/// Holds, as long as it lives, the right to be the one running instance. The right is the operating system's
/// lock on an open file: it ends with the process however the process ends, and the file left behind means
/// nothing.
class SingleInstance {
  public:
    /// Tries to take the lock on \a lockFile, which is created when missing.
    explicit SingleInstance(const QString& lockFile = defaultLockFile());
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// False when another process holds the lock. Where the file cannot be made or locked, nobody can hold
    /// it: true.
    bool isFirst() const { return first_; }

    /// A file of the user's in the session's runtime folder.
    static QString defaultLockFile();

  private:
    int file_ = -1;
    bool first_ = true;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
