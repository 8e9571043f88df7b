#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

#include <optional>

namespace sarne {

/// The calls of SDL2_mixer and SDL2 that are used here, loaded by load() and not with the program.
struct MixerLibrary {
    decltype(&SDL_SetHint) setHint = nullptr;
    decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;
    decltype(&SDL_RWFromConstMem) rwFromConstMem = nullptr;
    decltype(&SDL_PeepEvents) peepEvents = nullptr;
    decltype(&Mix_OpenAudioDevice) openAudioDevice = nullptr;
    decltype(&Mix_CloseAudio) closeAudio = nullptr;
    decltype(&Mix_LoadWAV_RW) loadWav = nullptr;
    decltype(&Mix_PlayChannel) playChannel = nullptr;
    decltype(&Mix_HaltChannel) haltChannel = nullptr;
    decltype(&Mix_FreeChunk) freeChunk = nullptr;

    /// Nothing when the library is not installed or lacks a call. May run in any thread.
    static std::optional<MixerLibrary> load();
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
