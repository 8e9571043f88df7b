#pragma once

#include <mpv/client.h>
#include <mpv/render.h>

#include <optional>

namespace sarne {

/// The calls of libmpv that are used here. The library and the hundred others it brings are loaded by load()
/// and not with the program: that is some 60 ms and 40 MB which a start without music does not pay. They then
/// stay loaded.
struct MpvLibrary {
    decltype(&mpv_create) create = nullptr;
    decltype(&mpv_initialize) initialize = nullptr;
    decltype(&mpv_terminate_destroy) terminateDestroy = nullptr;
    decltype(&mpv_free_node_contents) freeNodeContents = nullptr;
    decltype(&mpv_set_option_string) setOptionString = nullptr;
    decltype(&mpv_command_async) commandAsync = nullptr;
    decltype(&mpv_set_property_async) setPropertyAsync = nullptr;
    decltype(&mpv_get_property) getProperty = nullptr;
    decltype(&mpv_get_property_async) getPropertyAsync = nullptr;
    decltype(&mpv_observe_property) observeProperty = nullptr;
    decltype(&mpv_unobserve_property) unobserveProperty = nullptr;
    decltype(&mpv_wait_event) waitEvent = nullptr;
    decltype(&mpv_wakeup) wakeup = nullptr;
    decltype(&mpv_set_wakeup_callback) setWakeupCallback = nullptr;
    decltype(&mpv_render_context_create) renderContextCreate = nullptr;
    decltype(&mpv_render_context_set_update_callback) renderContextSetUpdateCallback = nullptr;
    decltype(&mpv_render_context_update) renderContextUpdate = nullptr;
    decltype(&mpv_render_context_render) renderContextRender = nullptr;
    decltype(&mpv_render_context_free) renderContextFree = nullptr;

    /// Nothing when the library is not installed or lacks a call. May run in any thread.
    static std::optional<MpvLibrary> load();
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
