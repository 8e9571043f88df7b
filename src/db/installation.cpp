#include "db/installation.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "db/database.h"

namespace sarne {
namespace {

bool canBeWritten(const QString& file) {
    const QFileInfo info(file);
    // The journal is written beside the database, so its folder must be writable, too.
    return info.isWritable() && QFileInfo(info.absolutePath()).isWritable();
}

/// Names the state of the shipped file that a copy was made from.
QString originMark(const QString& shipped) {
    const QFileInfo info(shipped);
    return QStringLiteral("%1 %2").arg(info.lastModified().toMSecsSinceEpoch()).arg(info.size());
}

QString readMark(const QString& file) {
    QFile mark(file);
    return mark.open(QIODevice::ReadOnly) ? QString::fromUtf8(mark.readAll()) : QString();
}

bool writeMark(const QString& file, const QString& text) {
    QFile mark(file);
    return mark.open(QIODevice::WriteOnly) && mark.write(text.toUtf8()) > 0 && mark.flush();
}

bool makeCopy(const QString& shipped, const QString& ownCopy) {
    const QString fresh = ownCopy + QStringLiteral(".new");
    QFile::remove(fresh);
    if (!QDir().mkpath(QFileInfo(ownCopy).absolutePath()) || !QFile::copy(shipped, fresh)) return false;
    QFile::setPermissions(fresh, QFile::ReadOwner | QFile::WriteOwner);
    if (QFile::exists(ownCopy) && !carryOverUserData(ownCopy, fresh)) return false;
    QFile::remove(ownCopy + QStringLiteral("-journal"));
    return ::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(ownCopy).constData()) == 0;
}

/// Writes \a field of every row of \a table that differs and that both databases have.
bool carryField(Database& from, Database& to, const QString& table, const QString& field) {
    Recordset source = from.OpenQuery(QStringLiteral("SELECT ID, %1 FROM %2").arg(field, table));
    Recordset target = to.OpenTable(table);
    for (source.MoveFirst(); !source.AtEnd(); source.MoveNext()) {
        const QVariant value = source.field(field);
        if (value.isNull() || !RecordExists(target, source.field(QStringLiteral("ID")))) continue;
        if (target.field(field) == value) continue;
        target.Edit();
        target.setField(field, value);
        if (!target.Update()) return false;
    }
    return true;
}

}  // namespace

bool carryOverUserData(const QString& from, const QString& to) {
    Database source, target;
    if (!target.Open(to)) return false;
    if (!source.Open(from)) return true;  // nothing that could be read is lost by going on
    return target.transaction([&] {
        return carryField(source, target, QStringLiteral("Recepty"), QStringLiteral("Vlastni")) &&
               carryField(source, target, QStringLiteral("Nastav"), QStringLiteral("hodnota"));
    });
}

QString usableRecipeDatabase(const QString& shipped, const QString& ownCopy) {
    if (canBeWritten(shipped)) return shipped;
    if (!QFile::exists(shipped)) return QFile::exists(ownCopy) ? ownCopy : shipped;
    const QString markFile = ownCopy + QStringLiteral(".origin");
    const QString mark = originMark(shipped);
    if (QFile::exists(ownCopy) && readMark(markFile) == mark) return ownCopy;
    if (makeCopy(shipped, ownCopy)) writeMark(markFile, mark);
    return QFile::exists(ownCopy) ? ownCopy : shipped;
}

}  // namespace sarne
