#include "db/userfile.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "db/schema.h"

namespace sarne {

QString keptAsideName(const QString& file) {
    const QString dated = file + u'.' + QDate::currentDate().toString(Qt::ISODate);
    QString name = dated;
    for (int number = 2; QFile::exists(name); ++number) name = dated + QStringLiteral("-%1").arg(number);
    return name;
}

QStringList keptAsideCopies(const QString& file) {
    const QFileInfo info(file);
    const QString dated = info.fileName() + QStringLiteral(".[12][0-9][0-9][0-9]-[01][0-9]-[0-3][0-9]");
    QStringList copies;
    for (const QFileInfo& copy : info.dir().entryInfoList({dated, dated + QStringLiteral("-*")}, QDir::Files,
                                                          QDir::Time | QDir::Reversed))
        copies << copy.absoluteFilePath();
    return copies;
}

bool UserFile::openExisting() {
    if (db_.isOpen()) return true;
    if (file_.isEmpty() || !QFile::exists(file_)) return false;
    if (db_.Open(file_) && db_.isSound()) return db_.makeTables(userSchema());
    db_.Close();
    return false;
}

Database& UserFile::forReading() {
    openExisting();
    return db_;
}

Database& UserFile::forWriting() {
    if (openExisting() || file_.isEmpty()) return db_;
    QDir().mkpath(QFileInfo(file_).absolutePath());
    if (QFile::exists(file_) && !QFile::rename(file_, keptAsideName(file_))) return db_;
    if (db_.Create(file_) && !db_.makeTables(userSchema())) db_.Close();
    return db_;
}

namespace {

void setFields(Recordset& rows, const QHash<QString, QVariant>& fields) {
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        rows.setField(field.key(), field.value());
}

}  // namespace

bool UserFile::replaceAll(const QString& table, const QList<QHash<QString, QVariant>>& rows) {
    Database& db = forWriting();
    return db.transaction([&] {
        if (!db.Execute(QStringLiteral("DELETE FROM ") + table)) return false;
        Recordset records = db.OpenTable(table);
        for (const QHash<QString, QVariant>& fields : rows) {
            records.AddNew();
            setFields(records, fields);
            if (!records.Update()) return false;
        }
        return true;
    });
}

bool UserFile::store(const QString& table, const QString& keyName, const QHash<QString, QVariant>& fields) {
    Recordset rows = forWriting().OpenTable(table);
    RecordExists(rows, fields.value(keyName)) ? rows.Edit() : rows.AddNew();
    setFields(rows, fields);
    return rows.Update();
}

QString UserFile::value(const QString& name) {
    Recordset rows = forReading().OpenTable(QStringLiteral("Hodnoty"));
    return RecordExists(rows, name) ? rows.field(QStringLiteral("Hodnota")).toString() : QString();
}

bool UserFile::setValue(const QString& name, const QString& text) {
    return store(QStringLiteral("Hodnoty"), QStringLiteral("Nazev"),
                 {{QStringLiteral("Nazev"), name}, {QStringLiteral("Hodnota"), text}});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
