#include "core/logicalpath.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace sarne {
namespace {

QString folded(const QString& name) {
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

/// The entry of \a folder that is called \a part; empty when there is none.
QString findEntry(const QString& folder, const QString& part) {
    QString direct = folder + u'/' + part;
    if (QFileInfo::exists(direct)) return direct;
    const QString wanted = folded(part);
    const auto entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (folded(entry) == wanted) return folder + u'/' + entry;
    }
    return {};
}

/// Media endings, by kind: the first is the one that the program asks for, the others say what else a disc
/// may hold in its place.
const QStringList kMediaEndings[] = {
    {QStringLiteral(".bmp"), QStringLiteral(".jpg"), QStringLiteral(".png"), QStringLiteral(".webp")},
    {QStringLiteral(".wav"), QStringLiteral(".ogg"), QStringLiteral(".opus"), QStringLiteral(".flac")},
    {QStringLiteral(".avi"), QStringLiteral(".mkv"), QStringLiteral(".webm"), QStringLiteral(".mp4")}};

/// The names under which \a name may stand instead; none where it is no medium.
QStringList otherNames(const QString& name) {
    QStringList names;
    for (const QStringList& endings : kMediaEndings) {
        if (!name.endsWith(endings.first(), Qt::CaseInsensitive)) continue;
        const QString stem = name.chopped(endings.first().size());
        for (const QString& ending : endings.sliced(1)) names << stem + ending;
    }
    return names;
}

bool hasDrive(const QString& path) {
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter();
}

}  // namespace

QString LogicalPaths::root(const QString& logical, QString& rest) const {
    rest = logical;
    rest.replace(u'\\', u'/');
    if (!hasDrive(rest)) return rest.startsWith(u'/') ? QStringLiteral("/") : QString();
    QString folder = driveFolder(rest[0].toUpper());
    rest.remove(0, 2);
    return folder;
}

QString LogicalPaths::driveFolder(QChar letter) const {
    if (mapped_.contains(letter)) return mapped_.value(letter);
    if (find_ && !QFileInfo(drives_.value(letter)).isDir()) drives_ = find_();
    return drives_.value(letter);
}

QString LogicalPaths::mapFolder(const QString& folder) {
    char16_t letter = u'Z';
    while (letter > u'A' && (drives_.contains(letter) || mapped_.contains(letter))) --letter;
    mapped_.insert(letter, QDir::cleanPath(folder));
    return QChar(letter) + QStringLiteral(":\\");
}

QString LogicalPaths::resolve(const QString& logical) const {
    QString found = resolveName(logical);
    if (!found.isEmpty()) return found;
    for (const QString& other : otherNames(logical))
        if (found = resolveName(other); !found.isEmpty()) return found;
    return {};
}

QString LogicalPaths::resolveName(const QString& logical) const {
    QString rest;
    QString found = root(logical, rest);
    if (found.isEmpty()) return {};
    if (found.endsWith(u'/')) found.chop(1);
    if (QString whole = found + u'/' + rest; !rest.isEmpty() && QFileInfo::exists(whole))
        return QDir::cleanPath(whole);
    for (const QString& part : rest.split(u'/', Qt::SkipEmptyParts)) {
        found = findEntry(found, part);
        if (found.isEmpty()) return {};
    }
    return found.isEmpty() ? QStringLiteral("/") : found;
}

QString LogicalPaths::fromNativeFolder(const QString& folder) {
    QString path = QDir::cleanPath(QDir(folder).absolutePath());
    return withTrailingBackslash(path.replace(u'/', u'\\'));
}

QString withTrailingBackslash(QString folder) {
    if (!folder.endsWith(u'\\')) folder += u'\\';
    return folder;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
