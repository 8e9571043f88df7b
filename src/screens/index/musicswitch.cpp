#include "screens/index/musicswitch.h"

#include "db/database.h"
#include "db/soundsettings.h"
#include "forms/backgroundmusic.h"
#include "forms/bassarne.h"

namespace sarne {

void switchMusic(basSarne& app) {
    app.SoundFlags[kMusic] = !app.SoundFlags[kMusic];
    std::vector<bool> on;
    for (const SoundSetting& setting : readSoundSettings(app.Db())) on.push_back(setting.on);
    if (on.size() > kMusic) on[kMusic] = app.SoundFlags[kMusic];
    storeSoundSettings(app.Db(), on);
    applyMusicSwitches(app, app.SoundFlags[kWineSounds]);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
