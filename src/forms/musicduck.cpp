#include "forms/musicduck.h"

#include <QtEndian>
#include <algorithm>

#include "platform/multimediacontrol.h"

namespace sarne {
namespace {

constexpr int kTick = 25;
constexpr double kHeldBack = -10;
constexpr double kDown = kHeldBack * kTick / 150;
constexpr double kUp = -kHeldBack * kTick / 1000;

qint64 lengthOfWav(const QByteArray& image) {
    constexpr qsizetype header = 44, speed = 28;
    if (image.size() <= header) return 0;
    const auto bytesPerSecond = qFromLittleEndian<quint32>(image.constData() + speed);
    return bytesPerSecond == 0 ? 0 : (image.size() - header) * 1000 / bytesPerSecond;
}

}  // namespace

MusicDuck::MusicDuck(MultimediaControl& music) : music_(music), timer_(nullptr) {
    timer_.setInterval(kTick);
    QObject::connect(&timer_, &Timer::tick, &timer_, [this] { tick(); });
}

void MusicDuck::speaking(const QByteArray& wavImage) {
    milliseconds_ = lengthOfWav(wavImage);
    if (milliseconds_ > 0) timer_.setEnabled(true);
}

void MusicDuck::release() {
    if (!timer_.isEnabled()) return;
    timer_.setEnabled(false);
    milliseconds_ = 0;
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
