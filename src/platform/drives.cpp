#include "platform/drives.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include "platform/settingsstore.h"

namespace sarne {

namespace {

/// \a field of the mount table, in which blanks are written as octal escapes.
QString plainField(const QByteArray& field) {
    QByteArray plain;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool octal = false;
        const int code = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&octal, 8) : 0;
        plain += octal ? static_cast<char>(code) : field.at(i);
        if (octal) i += 3;
    }
    return QString::fromUtf8(plain);
}

/// Whether \a device ("sdb1") or the disk that it is a part of can be taken out.
bool isRemovable(const QString& device, const QString& blockDevices) {
    const QFileInfo entry(blockDevices + u'/' + device);
    for (const QString& folder : {entry.canonicalFilePath(), QFileInfo(entry.canonicalFilePath()).path()}) {
        QFile file(folder + QStringLiteral("/removable"));
        if (file.open(QIODevice::ReadOnly)) return file.readAll().trimmed() == "1";
    }
    return false;
}

bool isMedium(const QString& device, const QString& folder, const QByteArray& fileSystem,
              const QString& blockDevices) {
    if (fileSystem == "iso9660" || fileSystem == "udf") return true;
    if (!device.startsWith(u"/dev/")) return false;
    if (folder.startsWith(u"/media/") || folder.startsWith(u"/run/media/")) return true;
    return isRemovable(device.section(u'/', -1), blockDevices);
}

}  // namespace

QStringList removableVolumes(const QString& mountTable, const QString& blockDevices) {
    QStringList volumes;
    QFile file(mountTable);
    if (!file.open(QIODevice::ReadOnly)) return volumes;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 3) continue;
        const QString folder = plainField(fields.at(1));
        if (isMedium(plainField(fields.at(0)), folder, fields.at(2), blockDevices) &&
            !volumes.contains(folder))
            volumes.append(folder);
    }
    return volumes;
}

QHash<QChar, QString> driveLetters(const SettingsStore& store, const QStringList& volumes) {
    QHash<QChar, QString> drives;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const QString folder = readAppPathValue(store, QStringLiteral("Drives/") + QChar(letter));
        if (!folder.isEmpty()) drives.insert(letter, folder);
    }
    char16_t letter = u'D';
    for (const QString& volume : volumes) {
        while (drives.contains(letter)) ++letter;
        if (letter > u'Z') break;
        drives.insert(letter, volume);
    }
    return drives;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
