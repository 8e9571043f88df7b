#include "db/connection.h"

#include <sqlite3.h>

#include <QCollator>

#include "db/likepattern.h"
#include "db/schema.h"

namespace sarne {
namespace {

std::string_view textArgument(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text ? text : "", static_cast<size_t>(sqlite3_value_bytes(value))};
}

/// SQLite's LIKE operator calls this with the pattern first.
void like(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (pattern) return sqlite3_result_int(context, pattern->matches(textArgument(arguments[1])));
    auto compiled = LikePattern::compile(textArgument(arguments[0]));
    if (!compiled) return sqlite3_result_error(context, "unclosed [ in a LIKE pattern", -1);
    sqlite3_result_int(context, compiled->matches(textArgument(arguments[1])));
    sqlite3_set_auxdata(context, 0, new LikePattern(std::move(*compiled)),
                        [](void* kept) { delete static_cast<LikePattern*>(kept); });
}

int compareCzech(void* collator, int leftSize, const void* left, int rightSize, const void* right) {
    const QString a = QString::fromUtf8(static_cast<const char*>(left), leftSize);
    const QString b = QString::fromUtf8(static_cast<const char*>(right), rightSize);
    return static_cast<QCollator*>(collator)->compare(a, b);
}

void registerCzech(sqlite3* db) {
    auto* collator = new QCollator(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    collator->setCaseSensitivity(Qt::CaseInsensitive);
    const auto destroy = [](void* kept) { delete static_cast<QCollator*>(kept); };
    if (sqlite3_create_collation_v2(db, kCzechCollation, SQLITE_UTF8, collator, compareCzech, destroy) !=
        SQLITE_OK)
        destroy(collator);
    sqlite3_create_function(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like, nullptr,
                            nullptr);
}

}  // namespace

Connection::Connection(const QString& file)
    : db_(std::make_unique<SQLite::Database>(file.toStdString(),
                                             SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)) {
    registerCzech(db_->getHandle());
    db_->setBusyTimeout(2000);
    // A note that was stored must survive a power cut: the journal and its folder are synced with every
    // commit. The system keeps the file's pages anyway: only a few stand a second time in here (in KiB).
    db_->exec("PRAGMA synchronous = EXTRA; PRAGMA temp_store = MEMORY; PRAGMA cache_size = -256");
    db_->execAndGet("SELECT count(*) FROM sqlite_master");
}

SQLite::Statement& Connection::statement(const QString& sql) {
    auto& kept = statements_[sql.toStdString()];
    if (!kept) kept = std::make_unique<SQLite::Statement>(database(), sql.toStdString());
    return *kept;
}

void Connection::close() {
    statements_.clear();
    db_.reset();
}

SQLite::Database& Connection::database() const {
    if (!db_) throw SQLite::Exception("the database is closed");
    return *db_;
}

QVariant columnValue(const SQLite::Statement& statement, int column) {
    const SQLite::Column value = statement.getColumn(column);
    switch (value.getType()) {
        case SQLITE_INTEGER:
            return QVariant::fromValue<qint64>(value.getInt64());
        case SQLITE_FLOAT:
            return value.getDouble();
        case SQLITE_BLOB:
            return QByteArray(static_cast<const char*>(value.getBlob()), value.getBytes());
        case SQLITE_TEXT:
            return QString::fromUtf8(value.getText(), value.getBytes());
        default:
            return {};
    }
}

void bindValue(SQLite::Statement& statement, int parameter, const QVariant& value) {
    if (value.isNull()) return statement.bind(parameter);
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Short:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
            return statement.bind(parameter, static_cast<int64_t>(value.toLongLong()));
        case QMetaType::Float:
        case QMetaType::Double:
            return statement.bind(parameter, value.toDouble());
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            return statement.bind(parameter, bytes.constData(), static_cast<int>(bytes.size()));
        }
        default:
            return statement.bind(parameter, value.toString().toStdString());
    }
}

QString quotedName(const QString& name) {
    QString escaped = name;
    return u'"' + escaped.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
