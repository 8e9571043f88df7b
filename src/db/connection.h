#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QString>
#include <QVariant>
#include <memory>
#include <unordered_map>

namespace sarne {

/// An open SQLite file with the cookbook's own LIKE and Czech text order. Internal to db/; its functions
/// throw SQLite::Exception.
struct Connection {
    explicit Connection(const QString& file);

    /// The prepared statement for \a sql, kept for the next time.
    SQLite::Statement& statement(const QString& sql);
    /// Forgets all prepared statements and closes the file. What is used afterwards throws.
    void close();

    SQLite::Database& database() const;

  private:
    std::unique_ptr<SQLite::Database> db_;
    std::unordered_map<std::string, std::unique_ptr<SQLite::Statement>> statements_;
};

/// Readies a kept statement for the next use when it goes out of scope, so that it holds no lock.
class StatementUse {
  public:
    explicit StatementUse(SQLite::Statement& statement) : statement_(statement) {}
    ~StatementUse() {
        statement_.tryReset();
        statement_.clearBindings();
    }
    StatementUse(const StatementUse&) = delete;
    StatementUse& operator=(const StatementUse&) = delete;

  private:
    SQLite::Statement& statement_;
};

QVariant columnValue(const SQLite::Statement& statement, int column);
void bindValue(SQLite::Statement& statement, int parameter, const QVariant& value);
/// \a name as an SQL identifier.
QString quotedName(const QString& name);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
