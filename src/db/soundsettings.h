#pragma once

#include <QString>
#include <vector>

namespace sarne {

class Database;

/// One row of the settings table.
struct SoundSetting {
    QString name;
    bool on = false;
};

/// How many switches the program knows: the first rows of the table `Nastav`, in the order of its key.
inline constexpr size_t kSoundSettings = 5;

/// The switches, as many as the table has.
std::vector<SoundSetting> readSoundSettings(Database& db);

/// Stores \a on for the first switches, one value each, all of them or none; a row that already says so is
/// not written. Returns how many rows were written.
int storeSoundSettings(Database& db, const std::vector<bool>& on);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
