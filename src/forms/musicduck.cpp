#include "forms/musicduck.h"

#include <algorithm>
#include <limits>

#include "platform/multimediacontrol.h"
#include "platform/soundlength.h"

namespace sarne {
namespace {

constexpr int kTick = 25;
constexpr double kHeldBack = -10;
constexpr double kDown = kHeldBack * kTick / 150;
constexpr double kUp = -kHeldBack * kTick / 1000;

}  // namespace

MusicDuck::MusicDuck(MultimediaControl& music) : music_(music), timer_(nullptr) {
    timer_.setInterval(kTick);
    QObject::connect(&timer_, &Timer::tick, &timer_, [this] { tick(); });
}

void MusicDuck::speaking(const QByteArray& wavImage) {
    milliseconds_ = soundLength(wavImage);
    if (milliseconds_ > 0) timer_.setEnabled(true);
}

void MusicDuck::hold() {
    milliseconds_ = std::numeric_limits<qint64>::max();
    timer_.setEnabled(true);
}

void MusicDuck::letGo() {
    milliseconds_ = 0;
}

void MusicDuck::release() {
    if (!timer_.isEnabled()) return;
    timer_.setEnabled(false);
    level_ = 0;
    music_.setVolume(0);
}

void MusicDuck::tick() {
    level_ = std::clamp(level_ + (milliseconds_ > 0 ? kDown : kUp), kHeldBack, 0.0);
    milliseconds_ -= kTick;
    music_.setVolume(level_);
    if (level_ >= 0) timer_.setEnabled(false);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
