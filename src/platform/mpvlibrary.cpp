#include "platform/mpvlibrary.h"

#include <malloc.h>

#include "platform/librarycalls.h"

namespace sarne {

std::optional<MpvLibrary> MpvLibrary::load() {
#ifdef M_ARENA_MAX
    // Its threads come and go with every file; heaps of their own would keep some 40 MB between them.
    mallopt(M_ARENA_MAX, 2);
#endif
    const LibraryCalls library("libmpv.so.2");
    MpvLibrary mpv;
    const bool complete =
        library.find("mpv_create", mpv.create) && library.find("mpv_initialize", mpv.initialize) &&
        library.find("mpv_terminate_destroy", mpv.terminateDestroy) &&
        library.find("mpv_free_node_contents", mpv.freeNodeContents) &&
        library.find("mpv_set_option_string", mpv.setOptionString) &&

        library.find("mpv_command_async", mpv.commandAsync) &&
        library.find("mpv_set_property_async", mpv.setPropertyAsync) &&
        library.find("mpv_get_property", mpv.getProperty) &&
        library.find("mpv_get_property_async", mpv.getPropertyAsync) &&
        library.find("mpv_observe_property", mpv.observeProperty) &&
        library.find("mpv_unobserve_property", mpv.unobserveProperty) &&
        library.find("mpv_wait_event", mpv.waitEvent) && library.find("mpv_wakeup", mpv.wakeup) &&
        library.find("mpv_set_wakeup_callback", mpv.setWakeupCallback) &&
        library.find("mpv_render_context_create", mpv.renderContextCreate) &&
        library.find("mpv_render_context_set_update_callback", mpv.renderContextSetUpdateCallback) &&
        library.find("mpv_render_context_update", mpv.renderContextUpdate) &&
        library.find("mpv_render_context_render", mpv.renderContextRender) &&
        library.find("mpv_render_context_free", mpv.renderContextFree);
    if (!complete) return {};
    quietSoundLibrary(library);
    return mpv;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
