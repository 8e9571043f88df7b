#include "platform/mixerlibrary.h"

#include "platform/librarycalls.h"

namespace sarne {

std::optional<MixerLibrary> MixerLibrary::load() {
    const LibraryCalls library("libSDL2_mixer-2.0.so.0");
    MixerLibrary mixer;
    const bool complete =
        library.find("SDL_SetHint", mixer.setHint) &&
        library.find("SDL_InitSubSystem", mixer.initSubSystem) &&
        library.find("SDL_QuitSubSystem", mixer.quitSubSystem) &&
        library.find("SDL_RWFromConstMem", mixer.rwFromConstMem) &&
        library.find("SDL_PeepEvents", mixer.peepEvents) &&
        library.find("Mix_OpenAudioDevice", mixer.openAudioDevice) &&
        library.find("Mix_CloseAudio", mixer.closeAudio) && library.find("Mix_LoadWAV_RW", mixer.loadWav) &&
        library.find("Mix_PlayChannel", mixer.playChannel) &&
        library.find("Mix_HaltChannel", mixer.haltChannel) && library.find("Mix_FreeChunk", mixer.freeChunk);
    if (!complete) return {};
    quietSoundLibrary(library);
    return mixer;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
