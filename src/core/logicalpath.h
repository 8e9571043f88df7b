#pragma once

#include <QHash>
#include <QString>
#include <functional>

namespace sarne {

/// Paths as the cookbook's data writes them: "\" between the parts, an optional drive letter in front,
/// letters in either case. This is the one place where they become files of this machine.
class LogicalPaths {
  public:
    using Drives = QHash<QChar, QString>;

    /// \a drives maps upper-case drive letters to folders of this machine ("D" to "/media/disc").
    explicit LogicalPaths(Drives drives = {}) : drives_(std::move(drives)) {}
    /// \a find says which drives there are now; asked at the start, and again when a letter leads nowhere, so
    /// that a disc that is put in later is found.
    explicit LogicalPaths(std::function<Drives()> find) : find_(std::move(find)), drives_(find_()) {}

    /// Gives the folder of this machine \a folder, which a logical path could not name, a free drive letter.
    /// Returns the drive's root ("Z:\\").
    QString mapFolder(const QString& folder);

    /// The file or folder that \a logical names, as a native path. Each part is found whatever the case of
    /// its letters and whether its accents are composed or not; an exact match is preferred. Empty when there
    /// is no such file, the drive letter is not mapped, or the path is empty. Where a picture (.bmp), a sound
    /// (.wav) or a film (.avi) is not there, the same name with another ending of its kind will do: .jpg,
    /// .png, .webp; .ogg, .opus, .flac; .mkv, .webm, .mp4, in this order.
    QString resolve(const QString& logical) const;

    /// A folder of this machine as a logical path ending in "\".
    static QString fromNativeFolder(const QString& folder);

  private:
    QString root(const QString& logical, QString& rest) const;
    QString resolveName(const QString& logical) const;
    QString driveFolder(QChar letter) const;

    std::function<Drives()> find_;
    Drives mapped_;  // beside those found
    mutable Drives drives_;
};

/// \a folder with a "\" at its end, added only where there is none.
QString withTrailingBackslash(QString folder);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
