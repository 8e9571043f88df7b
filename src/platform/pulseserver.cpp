#include "platform/pulseserver.h"

#include <pulse/pulseaudio.h>

#include <chrono>
#include <memory>
#include <optional>

#include "platform/librarycalls.h"

namespace sarne {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds patience(500);
constexpr int stepUs = 50000;

/// The calls that a question to the server takes.
struct PulseLibrary {
    decltype(&pa_mainloop_new) mainloopNew = nullptr;
    decltype(&pa_mainloop_free) mainloopFree = nullptr;
    decltype(&pa_mainloop_get_api) mainloopApi = nullptr;
    decltype(&pa_mainloop_prepare) mainloopPrepare = nullptr;
    decltype(&pa_mainloop_poll) mainloopPoll = nullptr;
    decltype(&pa_mainloop_dispatch) mainloopDispatch = nullptr;
    decltype(&pa_context_new) contextNew = nullptr;
    decltype(&pa_context_unref) contextUnref = nullptr;
    decltype(&pa_context_connect) contextConnect = nullptr;
    decltype(&pa_context_disconnect) contextDisconnect = nullptr;
    decltype(&pa_context_get_state) contextState = nullptr;
    decltype(&pa_context_get_server_info) contextServerInfo = nullptr;
    decltype(&pa_operation_unref) operationUnref = nullptr;

    static std::optional<PulseLibrary> load();
};

std::optional<PulseLibrary> PulseLibrary::load() {
    const LibraryCalls library("libpulse.so.0");
    PulseLibrary pulse;
    const bool complete = library.find("pa_mainloop_new", pulse.mainloopNew) &&
                          library.find("pa_mainloop_free", pulse.mainloopFree) &&
                          library.find("pa_mainloop_get_api", pulse.mainloopApi) &&
                          library.find("pa_mainloop_prepare", pulse.mainloopPrepare) &&
                          library.find("pa_mainloop_poll", pulse.mainloopPoll) &&
                          library.find("pa_mainloop_dispatch", pulse.mainloopDispatch) &&
                          library.find("pa_context_new", pulse.contextNew) &&
                          library.find("pa_context_unref", pulse.contextUnref) &&
                          library.find("pa_context_connect", pulse.contextConnect) &&
                          library.find("pa_context_disconnect", pulse.contextDisconnect) &&
                          library.find("pa_context_get_state", pulse.contextState) &&
                          library.find("pa_context_get_server_info", pulse.contextServerInfo) &&
                          library.find("pa_operation_unref", pulse.operationUnref);
    return complete ? std::optional(pulse) : std::nullopt;
}

/// A connection to the server, for one question.
class Question {
  public:
    explicit Question(const PulseLibrary& pulse)
        : pulse_(pulse),
          loop_(pulse.mainloopNew(), pulse.mainloopFree),
          context_(loop_ ? pulse.contextNew(pulse.mainloopApi(loop_.get()), "sarne") : nullptr,
                   pulse.contextUnref) {}
    ~Question() {
        if (context_) pulse_.contextDisconnect(context_.get());
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    bool connect();
    /// Whether connect() found no server; otherwise there is one that may not have answered.
    bool isRefused() const { return !context_ || !PA_CONTEXT_IS_GOOD(pulse_.contextState(context_.get())); }
    /// Whether there is a device; nothing when the server does not say.
    std::optional<bool> hasDevice();

  private:
    template <class Done>
    bool runUntil(Done done);

    PulseLibrary pulse_;
    std::unique_ptr<pa_mainloop, decltype(&pa_mainloop_free)> loop_;
    std::unique_ptr<pa_context, decltype(&pa_context_unref)> context_;
    Clock::time_point deadline_ = Clock::now() + patience;
};

template <class Done>
bool Question::runUntil(Done done) {
    while (!done()) {
        if (Clock::now() > deadline_ || pulse_.mainloopPrepare(loop_.get(), stepUs) < 0 ||
            pulse_.mainloopPoll(loop_.get()) < 0 || pulse_.mainloopDispatch(loop_.get()) < 0)
            return false;
    }
    return true;
}

bool Question::connect() {
    if (!context_ || pulse_.contextConnect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return false;
    const auto state = [this] { return pulse_.contextState(context_.get()); };
    runUntil([&] { return state() == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state()); });
    return state() == PA_CONTEXT_READY;
}

std::optional<bool> Question::hasDevice() {
    std::optional<bool> answer;
    pa_operation* asked = pulse_.contextServerInfo(
        context_.get(),
        [](pa_context*, const pa_server_info* info, void* result) {
            if (info)
                *static_cast<std::optional<bool>*>(result) =
                    info->default_sink_name && info->default_source_name;
        },
        &answer);
    if (!asked) return {};
    pulse_.operationUnref(asked);
    runUntil([&] { return answer.has_value(); });
    return answer;
}

}  // namespace

bool pulseServerHasDevice() {
    const auto pulse = PulseLibrary::load();
    if (!pulse) return true;
    Question question(*pulse);
    // One that does not answer in time may have none: an effect is left out rather than dared.
    return question.connect() ? question.hasDevice().value_or(false) : question.isRefused();
}

const char* effectDrivers() {
    return nullptr;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
