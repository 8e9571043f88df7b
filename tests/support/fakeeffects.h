#pragma once

#include <QByteArray>
#include <QList>

#include "platform/effectplayer.h"

namespace sarne {

/// Keeps what it is told to play. An empty image is not kept, as it plays nothing.
class FakeEffects final : public EffectPlayer {
  public:
    QList<QByteArray> played;
    int stops = 0;
    bool playing = false;

    void play(const QByteArray& wavImage) override {
        if (wavImage.isEmpty()) return;
        played.append(wavImage);
        playing = true;
    }
    void stop() override {
        ++stops;
        playing = false;
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
