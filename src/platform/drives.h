#pragma once

#include <QChar>
#include <QHash>
#include <QString>
#include <QStringList>

namespace sarne {

class SettingsStore;

/// The folders at which optical discs and removable volumes are mounted, in the order of mounting.
/// \a mountTable lists the mounts as Linux does, \a blockDevices tells which devices are removable. Empty
/// where the system keeps no such table.
QStringList removableVolumes(const QString& mountTable = QStringLiteral("/proc/self/mounts"),
                             const QString& blockDevices = QStringLiteral("/sys/class/block"));

/// Which folder each drive letter (upper case) means: first what the store says under "Drives" ("Drives/D" is
/// the folder of drive D); \a volumes take the letters that are left, in order from D.
QHash<QChar, QString> driveLetters(const SettingsStore& store, const QStringList& volumes);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
