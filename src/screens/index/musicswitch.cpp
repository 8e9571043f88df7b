#include "screens/index/musicswitch.h"

#include "db/database.h"
#include "db/soundsettings.h"
#include "forms/backgroundmusic.h"
#include "forms/bassarne.h"

namespace sarne {

void switchMusic(basSarne& sarne) {
    sarne.SoundFlags[kMusic] = !sarne.SoundFlags[kMusic];
    std::vector<bool> on;
    for (const SoundSetting& setting : readSoundSettings(sarne.Db())) on.push_back(setting.on);
    if (on.size() > kMusic) on[kMusic] = sarne.SoundFlags[kMusic];
    storeSoundSettings(sarne.Db(), on);
    applyMusicSwitches(sarne, sarne.SoundFlags[kWineSounds]);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
