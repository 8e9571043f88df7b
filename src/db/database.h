#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "db/recordset.h"

namespace sarne {

struct Connection;

/// The one recipe database of a run: opened at start, closed at exit. Owns the SQLite connection; recordsets
/// that outlive it are closed. Never throws: what fails returns an empty recordset or false.
class Database {
  public:
    Database();
    ~Database();
    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;

    /// Opens the file at the native path \a file, for writing where the file allows it. False, and closed,
    /// when the file is missing or is not a database.
    bool Open(const QString& file);
    /// Opens \a file, made empty when there is none. False, and closed, when that cannot be.
    bool Create(const QString& file);
    bool isOpen() const;
    /// Whether every page of the open file reads as it was written.
    bool isSound();
    /// Brings the open file to the version that \a steps end in: runs the statements of every step it lacks,
    /// all or none of them. A file of a later version stays as it is.
    bool makeTables(const QList<QStringList>& steps);
    void Close();

    /// The rows of a table, in the order of its key; the first one is current.
    Recordset OpenTable(const QString& name);
    /// The rows that the query \a text finds, the first one current. The text is one statement in the dialect
    /// of the cookbook's queries; anything else finds nothing.
    Recordset OpenQuery(const QString& text);
    /// Runs one changing statement; true when it is done and on the disk.
    bool Execute(const QString& text);

    /// From now on the table is a copy in memory, read and changed like before but never written to the file:
    /// for rows that live no longer than the run. False when there is no such table.
    bool keepInMemory(const QString& table);

    /// Runs \a change as one transaction: all of it is stored, or nothing. True when it was stored.
    bool transaction(const std::function<bool()>& change);

  private:
    std::shared_ptr<Connection> connection_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
