#pragma once

#include <QHash>
#include <QString>

namespace sarne {

/// Paths as the cookbook's data writes them: "\" between the parts, an optional drive letter in front,
/// letters in either case. This is the one place where they become files of this machine.
class LogicalPaths {
  public:
    /// \a drives maps upper-case drive letters to folders of this machine ("D" to "/media/disc").
    explicit LogicalPaths(QHash<QChar, QString> drives = {}) : drives_(std::move(drives)) {}

    /// The file or folder that \a logical names, as a native path. Each part is found whatever the case of
    /// its letters and whether its accents are composed or not; an exact match is preferred. Empty when there
    /// is no such file, the drive letter is not mapped, or the path is empty.
    QString resolve(const QString& logical) const;

    /// A folder of this machine as a logical path ending in "\".
    static QString fromNativeFolder(const QString& folder);

  private:
    QString root(const QString& logical, QString& rest) const;

    QHash<QChar, QString> drives_;
};

/// \a folder with a "\" at its end, added only where there is none.
QString withTrailingBackslash(QString folder);

}  // namespace sarne
