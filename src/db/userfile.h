#pragma once

#include <QString>
#include <QStringList>

#include "db/database.h"

namespace sarne {

/// What the user makes beyond the book, in one SQLite file of their own: made when something is first kept,
/// with a version number, every change synced to the disk. A file that is damaged is put aside under a dated
/// name, and a new one is begun.
class UserFile {
  public:
    /// The native path \a file, whose folder is made when needed. An empty one can never be opened.
    explicit UserFile(QString file = {}) : file_(std::move(file)) {}

    const QString& path() const { return file_; }

    /// The open file for reading; closed, so that everything in it reads as empty, where there is none.
    Database& forReading();
    /// The open file for writing, made where there was none; closed where that cannot be.
    Database& forWriting();

    /// Stores one row of \a table under its key: \a fields by name, the key among them. True when it is on
    /// the disk.
    bool store(const QString& table, const QString& keyName, const QHash<QString, QVariant>& fields);

    /// Puts \a rows, their fields by name, in the place of all rows of \a table: all of them or none. True
    /// when they are on the disk.
    bool replaceAll(const QString& table, const QList<QHash<QString, QVariant>>& rows);

    /// A small text kept under a name; empty when there is none.
    QString value(const QString& name);
    bool setValue(const QString& name, const QString& text);

  private:
    bool openExisting();

    QString file_;
    Database db_;
};

/// A free name beside \a file for a copy of it that is kept: "Sarne.drc.2026-11-21", numbered when that
/// exists.
QString keptAsideName(const QString& file);
/// The copies of \a file that are kept under such names, as native paths, the oldest first.
QStringList keptAsideCopies(const QString& file);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
