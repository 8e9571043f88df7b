#include "sound.h"

#include <sndfile.h>

#include <QFile>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>

namespace sarne::disc {
namespace {

struct Closer {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, Closer>;

}  // namespace

double fromDecibels(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

float peakOf(const Sound& sound) {
    float peak = 0;
    for (const float sample : sound.samples) peak = std::max(peak, std::abs(sample));
    return peak;
}

void setPeak(Sound& sound, double decibels) {
    const float peak = peakOf(sound);
    if (peak <= 0) return;
    const auto gain = static_cast<float>(fromDecibels(decibels)) / peak;
    for (float& sample : sound.samples) sample *= gain;
}

void fadeEnds(Sound& sound, double in, double out) {
    const int frames = sound.frames();
    const auto slope = [&](int distance, double seconds) {
        const double share = std::min(1.0, distance / std::max(1.0, seconds * sound.rate));
        return static_cast<float>(0.5 - 0.5 * std::cos(M_PI * share));
    };
    for (int i = 0; i < frames; ++i)
        for (int c = 0; c < sound.channels; ++c) sound.at(i, c) *= slope(i, in) * slope(frames - 1 - i, out);
}

void trimSilence(Sound& sound, double decibels, double kept) {
    const auto threshold = static_cast<float>(fromDecibels(decibels));
    const auto loud = [&](float sample) { return std::abs(sample) > threshold; };
    const auto first = std::find_if(sound.samples.begin(), sound.samples.end(), loud);
    const auto last = std::find_if(sound.samples.rbegin(), sound.samples.rend(), loud).base();
    if (first >= last) return;
    const int margin = static_cast<int>(kept * sound.rate);
    const int from = static_cast<int>(first - sound.samples.begin()) / sound.channels - margin;
    const int to = static_cast<int>(last - sound.samples.begin()) / sound.channels + margin;
    const auto begin = sound.samples.begin() + std::ptrdiff_t{std::max(0, from)} * sound.channels;
    const auto end = sound.samples.begin() + std::ptrdiff_t{std::min(sound.frames(), to)} * sound.channels;
    sound.samples = std::vector<float>(begin, end);
}

bool writeWav(const QString& file, const Sound& sound) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) return false;
    SF_INFO info{0, sound.rate, sound.channels, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 0, 0};
    SoundFile made(sf_open_fd(out.handle(), SFM_WRITE, &info, SF_FALSE));
    if (!made) return false;
    sf_command(made.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
    const sf_count_t frames = sound.frames();
    const bool isWhole = sf_writef_float(made.get(), sound.samples.data(), frames) == frames;
    made.reset();
    return isWhole && out.commit();
}

Sound readWav(const QString& file) {
    SF_INFO info{};
    const SoundFile in(sf_open(QFile::encodeName(file).constData(), SFM_READ, &info));
    if (!in || info.channels < 1 || info.samplerate < 1) return {};
    Sound sound{info.samplerate, info.channels, {}};
    sound.samples.resize(static_cast<size_t>(info.frames) * static_cast<size_t>(info.channels));
    const sf_count_t frames =
        std::max<sf_count_t>(0, sf_readf_float(in.get(), sound.samples.data(), info.frames));
    sound.samples.resize(static_cast<size_t>(frames) * static_cast<size_t>(info.channels));
    return sound;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
