#include "db/installation.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "db/bookfact.h"
#include "db/database.h"
#include "db/userfile.h"

namespace sarne {
namespace {

bool canBeWritten(const QString& file) {
    const QFileInfo info(file);
    // The journal is written beside the database, so its folder must be writable, too.
    return info.isWritable() && QFileInfo(info.absolutePath()).isWritable();
}

/// Names the contents of \a file.
QString digest(const QString& file) {
    QFile source(file);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!source.open(QIODevice::ReadOnly) || !hash.addData(&source)) return {};
    return QString::fromLatin1(hash.result().toHex());
}

/// Tells one edition of a book from another: the number and the digest that its builder wrote into it. A book
/// without them is known by what its file holds.
QString identity(const QString& file) {
    Database book;
    book.Open(file);
    const QString made = bookFact(book, QStringLiteral("Otisk"));
    return made.isEmpty() ? digest(file) : bookFact(book, QStringLiteral("Vydani")) + u' ' + made;
}

QString readMark(const QString& file) {
    QFile mark(file);
    return mark.open(QIODevice::ReadOnly) ? QString::fromUtf8(mark.read(200)) : QString();
}

/// Makes what was written to \a path, a file or a folder, survive a power cut.
bool syncToDisk(const QString& path) {
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return false;
    const bool synced = ::fsync(handle) == 0;
    ::close(handle);
    return synced;
}

/// Whether the file opens as a recipe database and all of it can be read.
bool isSoundBook(const QString& file) {
    Database db;
    return db.Open(file) && db.isSound() && db.OpenTable(QStringLiteral("Recepty")).isOpen() &&
           db.OpenTable(QStringLiteral("Nastav")).isOpen();
}

/// Keeps a copy of \a file, which is left where it is, under a dated name.
bool keepAside(const QString& file) {
    return QFile::copy(file, keptAsideName(file));
}

/// Puts a copy of \a shipped in the place of \a result's file, which is sound or not there when \a wasSound.
bool makeCopy(const QString& shipped, RecipeDatabase& result, bool wasSound) {
    const QString fresh = result.file + QStringLiteral(".new");
    const QString folder = QFileInfo(fresh).absolutePath();
    QFile::remove(fresh);
    if (!QDir().mkpath(folder) || !QFile::copy(shipped, fresh)) return false;
    QFile::setPermissions(fresh, QFile::ReadOwner | QFile::WriteOwner);
    if (QFile::exists(result.file)) {
        CarriedData carried = carryOverUserData(result.file, fresh);
        result.homeless = std::move(carried.homeless);
        if (!carried.stored || (!wasSound && !keepAside(result.file))) return false;
    }
    QFile::remove(result.file + QStringLiteral("-journal"));
    return syncToDisk(fresh) &&
           ::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(result.file).constData()) == 0 &&
           syncToDisk(folder);
}

/// The numbers of the rows of \a table, as far as they can be read.
std::vector<QVariant> keys(Database& db, const QString& table) {
    std::vector<QVariant> found;
    for (Recordset rows = db.OpenTable(table); !rows.AtEnd(); rows.MoveNext())
        found.push_back(rows.field(QStringLiteral("ID")));
    return found;
}

/// Writes \a field of the row \a key of one table into the same row of another where it differs. False when
/// it could not be written; a row that is missing or null writes nothing.
bool carryField(Recordset& source, Recordset& target, const QVariant& key, const QString& field) {
    if (!RecordExists(source, key) || !RecordExists(target, key)) return true;
    const QVariant value = source.field(field);
    if (value.isNull() || target.field(field) == value) return true;
    target.Edit();
    target.setField(field, value);
    return target.Update();
}

bool carryTable(Database& from, Database& to, const QString& table, const QString& field) {
    Recordset source = from.OpenTable(table), target = to.OpenTable(table);
    bool stored = true;
    for (const QVariant& key : keys(to, table)) stored = carryField(source, target, key, field) && stored;
    return stored;
}

/// Notes to recipes that \a to does not have.
std::vector<KeptNote> homelessNotes(Database& from, Database& to) {
    std::vector<KeptNote> notes;
    Recordset target = to.OpenTable(QStringLiteral("Recepty"));
    for (Recordset rows = from.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext()) {
        const QString text = rows.field(QStringLiteral("Vlastni")).toString();
        const QVariant id = rows.field(QStringLiteral("ID"));
        if (!text.isEmpty() && !RecordExists(target, id))
            notes.push_back({id.toInt(), rows.field(QStringLiteral("Nazev")).toString(), text});
    }
    return notes;
}

}  // namespace

CarriedData carryOverUserData(const QString& from, const QString& to) {
    CarriedData carried;
    Database source, target;
    if (!target.Open(to)) return carried;
    if (!source.Open(from)) {
        carried.stored = true;  // there is nothing that could be read
        return carried;
    }
    carried.stored = target.transaction([&] {
        return carryTable(source, target, QStringLiteral("Recepty"), QStringLiteral("Vlastni")) &&
               carryTable(source, target, QStringLiteral("Nastav"), QStringLiteral("hodnota"));
    });
    carried.homeless = homelessNotes(source, target);
    return carried;
}

RecipeDatabase usableRecipeDatabase(const QString& shipped, const QString& ownCopy) {
    if (canBeWritten(shipped)) return {shipped, {}};
    if (!QFile::exists(shipped)) return {QFile::exists(ownCopy) ? ownCopy : shipped, {}};
    RecipeDatabase result{ownCopy, {}};
    const QString markFile = ownCopy + QStringLiteral(".origin");
    const QString mark = identity(shipped);
    const bool sound = isSoundBook(ownCopy);
    if (sound && readMark(markFile) == mark) return result;
    if (isSoundBook(shipped) && makeCopy(shipped, result, sound || !QFile::exists(ownCopy))) {
        QSaveFile file(markFile);
        if (file.open(QIODevice::WriteOnly) && file.write(mark.toUtf8()) > 0) file.commit();
        return result;
    }
    if (!sound) result.file = shipped;
    return result;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
