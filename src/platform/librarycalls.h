#pragma once

#include <dlfcn.h>

namespace sarne {

/// A shared library that is loaded when it is needed, and stays loaded: the ones used here keep threads and
/// exit handlers.
class LibraryCalls {
  public:
    explicit LibraryCalls(const char* name)
        : library_(dlopen(name, RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE)) {}
    ~LibraryCalls() {
        if (library_) dlclose(library_);
    }
    LibraryCalls(const LibraryCalls&) = delete;
    LibraryCalls& operator=(const LibraryCalls&) = delete;

    /// Sets \a call to the function \a name of the library or of those that it brought; whether there is one.
    template <class Call>
    bool find(const char* name, Call& call) const {
        call = library_ ? reinterpret_cast<Call>(dlsym(library_, name)) : nullptr;
        return call != nullptr;
    }

  private:
    void* library_;
};

inline void ignoreSoundError(const char*, int, const char*, int, const char*, ...) {}

/// Keeps the sound library under \a library from writing to the terminal what this machine does not have.
inline void quietSoundLibrary(const LibraryCalls& library) {
    int (*setHandler)(decltype(&ignoreSoundError)) = nullptr;
    if (library.find("snd_lib_error_set_handler", setHandler)) setHandler(&ignoreSoundError);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
