#include "platform/dispatcherspeech.h"

#include <libspeechd.h>

#include <cstring>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/librarycalls.h"

namespace sarne {

/// The calls of the dispatcher's library that are used here.
struct SpeechCalls {
    decltype(&spd_get_default_address) address = nullptr;
    decltype(&spd_open2) open = nullptr;
    decltype(&spd_close) close = nullptr;
    decltype(&spd_say) say = nullptr;
    decltype(&spd_cancel) cancel = nullptr;
    decltype(&spd_set_language) setLanguage = nullptr;
    decltype(&spd_set_voice_rate) setRate = nullptr;
    decltype(&spd_set_output_module) setModule = nullptr;
    decltype(&spd_set_notification_on) notify = nullptr;
    decltype(&spd_list_modules) modules = nullptr;
    decltype(&free_spd_modules) freeModules = nullptr;
    decltype(&spd_list_synthesis_voices) voices = nullptr;
    decltype(&free_spd_voices) freeVoices = nullptr;

    bool load() {
        const LibraryCalls library("libspeechd.so.2");
        return library.find("spd_get_default_address", address) && library.find("spd_open2", open) &&
               library.find("spd_close", close) && library.find("spd_say", say) &&
               library.find("spd_cancel", cancel) && library.find("spd_set_language", setLanguage) &&
               library.find("spd_set_voice_rate", setRate) &&
               library.find("spd_set_output_module", setModule) &&
               library.find("spd_set_notification_on", notify) && library.find("spd_list_modules", modules) &&
               library.find("free_spd_modules", freeModules) &&
               library.find("spd_list_synthesis_voices", voices) &&
               library.find("free_spd_voices", freeVoices);
    }
};

namespace {

constexpr int kRate = -10;  // of -100 to 100: somewhat slower than the synthesizers' own

/// The dispatcher calls back in a thread of its own without telling whom: there is one speech a process.
std::mutex listenerGuard;
DispatcherSpeech* listener = nullptr;

}  // namespace

/// An open connection to the dispatcher, set to a Czech voice.
struct SpeechConnection {
    SpeechConnection(const SpeechCalls& library, SPDConnection* opened)
        : calls(library), connection(opened) {}
    ~SpeechConnection() { calls.close(connection); }
    SpeechConnection(const SpeechConnection&) = delete;
    SpeechConnection& operator=(const SpeechConnection&) = delete;

    /// Null where there is no dispatcher, or none of its synthesizers speaks Czech.
    static std::shared_ptr<SpeechConnection> open();
    /// Opens one and hands it to the listener.
    static void lookFor();
    static void ended(size_t message, size_t client, SPDNotificationType type);

    bool hasCzechVoice() const;
    bool findCzechModule() const;

    SpeechCalls calls;
    SPDConnection* connection;
};

std::shared_ptr<SpeechConnection> SpeechConnection::open() {
    SpeechCalls calls;
    if (!calls.load()) return nullptr;
    char* error = nullptr;
    SPDConnectionAddress* address = calls.address(&error);
    if (!address) return nullptr;
    constexpr int kStartDispatcher = 1;
    SPDConnection* opened =
        calls.open("velisa-sarn", "kniha", nullptr, SPD_MODE_THREADED, address, kStartDispatcher, &error);
    if (!opened) return nullptr;
    auto found = std::make_shared<SpeechConnection>(calls, opened);
    calls.setLanguage(opened, "cs");
    if (!found->findCzechModule()) return nullptr;
    calls.setLanguage(opened, "cs");
    calls.setRate(opened, kRate);
    opened->callback_end = opened->callback_cancel = &SpeechConnection::ended;
    calls.notify(opened, SPD_END);
    calls.notify(opened, SPD_CANCEL);
    return found;
}

bool SpeechConnection::hasCzechVoice() const {
    SPDVoice** voices = calls.voices(connection);
    bool found = false;
    for (SPDVoice** voice = voices; voice && *voice; ++voice)
        found |= (*voice)->language && std::strncmp((*voice)->language, "cs", 2) == 0;
    if (voices) calls.freeVoices(voices);
    return found;
}

bool SpeechConnection::findCzechModule() const {
    if (hasCzechVoice()) return true;  // of the user's own choice
    char** modules = calls.modules(connection);
    bool found = false;
    for (char** module = modules; module && *module && !found; ++module)
        found = calls.setModule(connection, *module) == 0 && hasCzechVoice();
    if (modules) calls.freeModules(modules);
    return found;
}

/// Has \a call made in the listener's own thread, if there still is one.
template <class Call>
static void tellListener(Call call) {
    const std::scoped_lock lock(listenerGuard);
    DispatcherSpeech* speech = listener;
    if (speech)
        QMetaObject::invokeMethod(
            speech, [speech, call] { call(*speech); }, Qt::QueuedConnection);
}

void SpeechConnection::ended(size_t message, size_t, SPDNotificationType) {
    tellListener([message](DispatcherSpeech& speech) { speech.messageEnded(message); });
}

void SpeechConnection::lookFor() {
    if (const auto found = open())
        tellListener([found](DispatcherSpeech& speech) { speech.connected(found); });
}

DispatcherSpeech::DispatcherSpeech() {
    const std::scoped_lock lock(listenerGuard);
    listener = this;
}

DispatcherSpeech::~DispatcherSpeech() {
    {
        const std::scoped_lock lock(listenerGuard);
        listener = nullptr;
    }
    if (connection_) connection_->calls.cancel(connection_->connection);
}

void DispatcherSpeech::lookForVoice() {
    if (std::exchange(looking_, true)) return;
    // Nobody waits for it: a dispatcher that does not answer must not hold up the program's end.
    std::thread(&SpeechConnection::lookFor).detach();
}

void DispatcherSpeech::connected(std::shared_ptr<SpeechConnection> connection) {
    connection_ = std::move(connection);
    Q_EMIT found();
}

void DispatcherSpeech::say(const QString& text) {
    if (!connection_) return;
    if (message_ != 0) connection_->calls.cancel(connection_->connection);
    const int number = connection_->calls.say(connection_->connection, SPD_TEXT, text.toUtf8().constData());
    message_ = number > 0 ? static_cast<size_t>(number) : 0;
    if (message_ == 0) Q_EMIT ended();
}

void DispatcherSpeech::stop() {
    if (connection_ && message_ != 0) connection_->calls.cancel(connection_->connection);
}

void DispatcherSpeech::messageEnded(size_t message) {
    if (message != message_) return;
    message_ = 0;
    Q_EMIT ended();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
