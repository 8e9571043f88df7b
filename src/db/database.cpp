#include "db/database.h"

#include <QFileInfo>
#include <exception>

#include "db/connection.h"
#include "db/dialect.h"
#include "db/recordset_rows.h"

namespace sarne {

Database::Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

Database::~Database() {
    Close();
}

bool Database::Open(const QString& file) {
    Close();
    return QFileInfo(file).isFile() && Create(file);
}

bool Database::Create(const QString& file) {
    try {
        connection_ = std::make_shared<Connection>(file);
    } catch (const std::exception&) {
        connection_.reset();
    }
    return isOpen();
}

bool Database::isSound() {
    if (!connection_) return false;
    try {
        return connection_->database().execAndGet("PRAGMA quick_check(1)").getString() == "ok";
    } catch (const std::exception&) {
        return false;
    }
}

bool Database::makeTables(const QList<QStringList>& steps) {
    return transaction([&] {
        SQLite::Database& db = connection_->database();
        const int version = db.execAndGet("PRAGMA user_version");
        for (qsizetype step = version; step < steps.size(); ++step) {
            for (const QString& statement : steps.at(step)) db.exec(statement.toStdString());
        }
        if (version < steps.size()) db.exec("PRAGMA user_version = " + std::to_string(steps.size()));
        return true;
    });
}

bool Database::isOpen() const {
    return connection_ != nullptr;
}

void Database::Close() {
    if (connection_) connection_->close();
    connection_.reset();
}

Recordset Database::OpenTable(const QString& name) {
    if (!connection_) return {};
    try {
        return Recordset(std::make_unique<Recordset::TableRows>(connection_, name));
    } catch (const std::exception&) {
        return {};
    }
}

Recordset Database::OpenQuery(const QString& text) {
    const auto adapted = adaptStatement(text);
    if (!connection_ || !adapted) return {};
    try {
        SQLite::Statement statement(connection_->database(), adapted->toStdString());
        return Recordset(std::make_unique<Recordset::QueryRows>(statement));
    } catch (const std::exception&) {
        return {};
    }
}

bool Database::Execute(const QString& text) {
    const auto adapted = adaptStatement(text);
    if (!connection_ || !adapted) return false;
    try {
        connection_->database().exec(adapted->toStdString());
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool Database::keepInMemory(const QString& table) {
    const QString name = quotedName(table);
    if (!connection_) return false;
    try {
        // A temporary table hides the file's table of the same name; its definition is the same but for that.
        SQLite::Statement definition(connection_->database(),
                                     "SELECT sql FROM main.sqlite_master WHERE type = 'table' AND name = ?1 "
                                     "COLLATE NOCASE");
        bindValue(definition, 1, table);
        if (!definition.executeStep()) return false;
        const std::string create = definition.getColumn(0).getText();
        const size_t columns = create.find('(');
        if (columns == std::string::npos) return false;
        connection_->database().exec("CREATE TEMP TABLE " + name.toStdString() + " " +
                                     create.substr(columns));
        connection_->database().exec("INSERT INTO temp." + name.toStdString() + " SELECT * FROM main." +
                                     name.toStdString());
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool Database::transaction(const std::function<bool()>& change) {
    if (!connection_) return false;
    try {
        SQLite::Transaction transaction(connection_->database());
        if (!change()) return false;
        transaction.commit();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
