#pragma once

#include <QByteArray>
#include <memory>

namespace sarne {

/// Plays short sounds, one at a time.
class EffectPlayer {
  public:
    virtual ~EffectPlayer() = default;
    /// Starts \a wavImage, a whole WAV, Ogg or FLAC file, and returns at once. The effect that was playing is
    /// cut off. What is no sound plays nothing; an empty image changes nothing.
    virtual void play(const QByteArray& wavImage) = 0;
    /// Cuts off the effect that is playing.
    virtual void stop() = 0;
};

/// Effects over SDL2_mixer. The library and the sound device are opened by prepare(), in the background, or
/// by the first play(). Without a device, effects are silent; one that appears later is found.
class MixerEffectPlayer final : public EffectPlayer {
  public:
    MixerEffectPlayer();
    ~MixerEffectPlayer() override;
    MixerEffectPlayer(const MixerEffectPlayer&) = delete;
    MixerEffectPlayer& operator=(const MixerEffectPlayer&) = delete;

    /// Gets the device ready without waiting for it, so that the first effect starts as fast as the others.
    void prepare();
    void play(const QByteArray& wavImage) override;
    void stop() override;

  private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
