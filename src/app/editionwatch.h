#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>

namespace sarne {

/// Tells when the book that the program shows was written anew while it runs. Whoever writes it leaves a
/// mark: a file with three numbers, the edition's, that of the recipe to be shown (0 for none) and the place
/// of the recipe's section, put in its place in one piece. The session's setting "Rozepsano" names that file;
/// a book that nobody is writing has none.
class EditionWatch final : public QObject {
    Q_OBJECT
  public:
    /// Shows the new edition; false when that is not possible now, and it is then asked again a little later.
    using Show = std::function<bool(std::int16_t recipe, int section)>;

    /// Watches the file \a mark; nothing when it is empty.
    EditionWatch(QString mark, Show show);

  private:
    void look();

    QString mark_;
    Show show_;
    int edition_ = 0;
    QFileSystemWatcher watcher_;
    QTimer again_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
