#include "db/soundsettings.h"

#include "db/database.h"

namespace sarne {
namespace {

const QString kValue = QStringLiteral("hodnota");

Recordset openSettings(Database& db) {
    Recordset rows = db.OpenTable(QStringLiteral("Nastav"));
    rows.setIndex(QStringLiteral("PrimaryKey"));
    rows.MoveFirst();
    return rows;
}

}  // namespace

std::vector<SoundSetting> readSoundSettings(Database& db) {
    std::vector<SoundSetting> settings;
    for (Recordset rows = openSettings(db); !rows.AtEnd() && settings.size() < kSoundSettings;
         rows.MoveNext())
        settings.push_back({rows.field(QStringLiteral("Nazev")).toString(), rows.field(kValue).toInt() == 1});
    return settings;
}

int storeSoundSettings(Database& db, const std::vector<bool>& on) {
    int written = 0;
    const bool stored = db.transaction([&] {
        Recordset rows = openSettings(db);
        for (size_t i = 0; i < on.size() && i < kSoundSettings && !rows.AtEnd(); ++i, rows.MoveNext()) {
            if ((rows.field(kValue).toInt() == 1) == on[i]) continue;
            rows.Edit();
            rows.setField(kValue, on[i] ? 1 : 0);
            if (!rows.Update()) return false;
            ++written;
        }
        return true;
    });
    return stored ? written : 0;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
