#include <QtGlobal>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/effectplayer.h"
#include "platform/mixerlibrary.h"
#include "platform/pulseserver.h"

namespace sarne {

namespace {

/// The sound device and the one effect that it plays. Used by one thread.
class Device {
  public:
    explicit Device(const MixerLibrary& mixer) : mixer_(mixer) {}
    ~Device() { close(); }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool open();
    void play(const QByteArray& wavImage);
    void stop();

  private:
    bool lost() const;
    void close();

    MixerLibrary mixer_;
    Mix_Chunk* effect_ = nullptr;
    bool isOpen_ = false;
};

bool Device::open() {
    if (isOpen_ && lost()) close();
    if (isOpen_) return true;
    if (!pulseServerHasDevice()) return false;  // SDL would not survive a server without one
    constexpr int rate = 44100;
    constexpr int samplesAtOnce = 512;  // 12 ms: an effect belongs to what the hand does
    mixer_.setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    mixer_.setHint(SDL_HINT_AUDIODRIVER, effectDrivers());
    if (mixer_.initSubSystem(SDL_INIT_AUDIO) < 0) return false;
    isOpen_ = mixer_.openAudioDevice(rate, AUDIO_S16SYS, 2, samplesAtOnce, nullptr,
                                     SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_CHANNELS_CHANGE) == 0;
    if (!isOpen_) mixer_.quitSubSystem(SDL_INIT_AUDIO);
    return isOpen_;
}

/// Whether the device was pulled out since the last call.
bool Device::lost() const {
    SDL_Event event;
    return mixer_.peepEvents(&event, 1, SDL_GETEVENT, SDL_AUDIODEVICEREMOVED, SDL_AUDIODEVICEREMOVED) > 0;
}

void Device::play(const QByteArray& wavImage) {
    stop();
    effect_ =
        mixer_.loadWav(mixer_.rwFromConstMem(wavImage.constData(), static_cast<int>(wavImage.size())), 1);
    if (effect_) mixer_.playChannel(0, effect_, 0);
}

void Device::stop() {
    if (!isOpen_) return;
    mixer_.haltChannel(-1);
    if (effect_) mixer_.freeChunk(effect_);
    effect_ = nullptr;
}

void Device::close() {
    if (!isOpen_) return;
    stop();
    mixer_.closeAudio();
    mixer_.quitSubSystem(SDL_INIT_AUDIO);
    isOpen_ = false;
}

}  // namespace

/// A thread of its own talks to the device, which may take its time; only the latest wish counts.
class MixerEffectPlayer::Private {
  public:
    ~Private();
    void wish(const QByteArray& wavImage);
    bool started() const { return thread_.joinable(); }

  private:
    void run();
    std::optional<QByteArray> nextWish();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<QByteArray> wish_;  // an empty one means silence
    bool leaving_ = false;
    std::thread thread_;
};

MixerEffectPlayer::Private::~Private() {
    {
        const std::lock_guard lock(mutex_);
        leaving_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void MixerEffectPlayer::Private::wish(const QByteArray& wavImage) {
    {
        const std::lock_guard lock(mutex_);
        wish_ = wavImage;
    }
    if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
    changed_.notify_one();
}

/// Waits for a wish. Nothing when it is time to leave.
std::optional<QByteArray> MixerEffectPlayer::Private::nextWish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return leaving_ || wish_; });
    if (leaving_) return {};
    return std::exchange(wish_, std::nullopt);
}

void MixerEffectPlayer::Private::run() {
    // The mixer is one for the process, and does not expect two threads at once.
    static std::mutex mixerGuard;
    std::unique_lock guard(mixerGuard);
    const auto mixer = MixerLibrary::load();
    if (!mixer) return;
    Device device(*mixer);
    for (;;) {
        guard.unlock();
        const auto wavImage = nextWish();
        guard.lock();
        if (!wavImage) return;  // the device is closed before the guard goes
        if (!device.open()) continue;
        if (wavImage->isEmpty())
            device.stop();
        else
            device.play(*wavImage);
    }
}

MixerEffectPlayer::MixerEffectPlayer() : d_(std::make_unique<Private>()) {
    // One of the ways that SDL tries would write on the terminal what it misses.
    if (!qEnvironmentVariableIsSet("PIPEWIRE_DEBUG")) qputenv("PIPEWIRE_DEBUG", "0");
}
MixerEffectPlayer::~MixerEffectPlayer() = default;

void MixerEffectPlayer::prepare() {
    if (!d_->started()) d_->wish({});
}

void MixerEffectPlayer::play(const QByteArray& wavImage) {
    if (!wavImage.isEmpty()) d_->wish(wavImage);
}

void MixerEffectPlayer::stop() {
    if (d_->started()) d_->wish({});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
