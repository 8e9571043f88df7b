#include "db/recordset_rows.h"

#include <utility>

namespace sarne {

void Recordset::Rows::readColumns(const SQLite::Statement& statement) {
    for (int column = 0; column < statement.getColumnCount(); ++column)
        columns_ << QString::fromUtf8(statement.getColumnName(column)).toLower();
}

Recordset::Rows::Row Recordset::Rows::readRow(const SQLite::Statement& statement) {
    Row row;
    row.reserve(static_cast<size_t>(statement.getColumnCount()));
    for (int column = 0; column < statement.getColumnCount(); ++column)
        row.push_back(columnValue(statement, column));
    return row;
}

Recordset::QueryRows::QueryRows(SQLite::Statement& statement) {
    readColumns(statement);
    while (statement.executeStep()) rows_.push_back(readRow(statement));
}

Recordset::TableRows::TableRows(std::shared_ptr<Connection> connection, const QString& table)
    : connection_(std::move(connection)), table_(quotedName(table)) {
    findKey();
    moveFirst();
}

void Recordset::TableRows::findKey() {
    SQLite::Statement info(connection_->database(), "PRAGMA table_info(" + table_.toStdString() + ")");
    for (int column = 0; info.executeStep(); ++column) {
        columns_ << QString::fromUtf8(info.getColumn(1).getText()).toLower();
        if (info.getColumn(5).getInt() != 1) continue;
        keyName_ = quotedName(columns_.last());
        keyColumn_ = column;
    }
    if (keyName_.isEmpty()) throw SQLite::Exception("no table with a key");
}

bool Recordset::TableRows::load(const QString& condition, const QVariant& key) {
    SQLite::Statement& statement =
        connection_->statement(QStringLiteral("SELECT * FROM %1 WHERE ").arg(table_) +
                               condition.arg(keyName_) + QStringLiteral(" LIMIT 1"));
    const StatementUse use(statement);
    if (key.isValid()) bindValue(statement, 1, key);
    if (!statement.executeStep()) return false;
    row_ = readRow(statement);
    return true;
}

bool Recordset::TableRows::seek(const QVariant& key) {
    if (!key.isValid() || key.isNull() || !load(QStringLiteral("%1 = ?1"), key)) return false;
    change_ = Change::None;
    return isCurrent_ = true;
}

void Recordset::TableRows::moveFirst() {
    isCurrent_ = load(QStringLiteral("1 ORDER BY %1"), {});
}

void Recordset::TableRows::moveLast() {
    isCurrent_ = load(QStringLiteral("1 ORDER BY %1 DESC"), {});
}

// A row that cannot be read ends the walk: who walks to the end must come there.
void Recordset::TableRows::moveNext() {
    if (std::exchange(isCurrent_, false)) isCurrent_ = load(QStringLiteral("%1 > ?1 ORDER BY %1"), key());
}

void Recordset::TableRows::movePrevious() {
    if (std::exchange(isCurrent_, false))
        isCurrent_ = load(QStringLiteral("%1 < ?1 ORDER BY %1 DESC"), key());
}

qint64 Recordset::TableRows::count() const {
    SQLite::Statement& statement =
        connection_->statement(QStringLiteral("SELECT count(*) FROM %1").arg(table_));
    const StatementUse use(statement);
    return statement.executeStep() ? statement.getColumn(0).getInt64() : 0;
}

void Recordset::TableRows::edit() {
    changed_.clear();
    change_ = isCurrent_ ? Change::Edit : Change::None;
}

void Recordset::TableRows::addNew() {
    changed_.clear();
    change_ = Change::AddNew;
}

void Recordset::TableRows::set(const QString& name, const QVariant& value) {
    if (change_ != Change::None && column(name) >= 0) changed_[name.toLower()] = value;
}

void Recordset::TableRows::insert() {
    QStringList names, marks;
    for (auto field = changed_.cbegin(); field != changed_.cend(); ++field) {
        names << quotedName(field.key());
        marks << QStringLiteral("?");
    }
    SQLite::Statement statement(connection_->database(),
                                QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                    .arg(table_, names.join(u", "), marks.join(u", "))
                                    .toStdString());
    int parameter = 0;
    for (const QVariant& value : std::as_const(changed_)) bindValue(statement, ++parameter, value);
    statement.exec();
}

void Recordset::TableRows::overwrite() {
    QStringList settings;
    for (auto field = changed_.cbegin(); field != changed_.cend(); ++field)
        settings << quotedName(field.key()) + QStringLiteral(" = ?");
    SQLite::Statement statement(connection_->database(), QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                                                             .arg(table_, settings.join(u", "), keyName_)
                                                             .toStdString());
    int parameter = 0;
    for (const QVariant& value : std::as_const(changed_)) bindValue(statement, ++parameter, value);
    bindValue(statement, ++parameter, key());
    if (statement.exec() != 1) throw SQLite::Exception("the row is gone");
}

void Recordset::TableRows::store() {
    if (change_ == Change::Edit) {
        overwrite();
        for (auto field = changed_.cbegin(); field != changed_.cend(); ++field)
            row_[size_t(column(field.key()))] = field.value();
    } else {
        insert();
    }
}

bool Recordset::TableRows::update() {
    if (change_ == Change::None) return false;
    if (!changed_.isEmpty()) store();
    change_ = Change::None;
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
