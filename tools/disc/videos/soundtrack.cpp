#include "soundtrack.h"

#include <QHash>
#include <algorithm>
#include <cmath>

#include "../nearword.h"
#include "direct.h"

namespace sarne::disc {
namespace {

constexpr int kRate = 32000;
/// Above the knee peaks are bent so that none passes the ceiling; what is coded for the disc may overshoot it
/// by a decibel and a half.
constexpr double kKnee = -7.5, kCeiling = -4.8;
constexpr double kMusicLoudness = -5;
constexpr double kEffectLoudness = -12;
/// An effect at least so long goes on for as long as what sounds; a shorter one sounds once.
constexpr double kLasting = 1.2;
constexpr double kBlend = 0.25;

/// A part of a sound and where it comes.
struct Part {
    const Sound& sound;
    double from = 0;
    double seconds = 1e9;
};

/// 0 to 1 at the ends of a part that begins and ends within its sound.
double blend(const Part& part, double seconds) {
    return std::clamp(std::min({1.0, seconds / 0.01, (part.seconds - seconds) / kBlend}), 0.0, 1.0);
}

/// Adds \a part at \a begin, at the film's own rate, its channels as one.
void add(Sound& sound, const Part& part, double begin, double gain) {
    const Sound& other = part.sound;
    const double step = static_cast<double>(other.rate) / sound.rate;
    const int from = static_cast<int>(begin * sound.rate);
    const int count = static_cast<int>(std::min(1e8, part.seconds * sound.rate));
    for (int i = 0; i < count && from + i < sound.frames(); ++i) {
        const double place = part.from * other.rate + i * step;
        const int left = static_cast<int>(place);
        if (left + 1 >= other.frames()) break;
        double value = 0;
        for (int c = 0; c < other.channels; ++c)
            value += other.at(left, c) + (place - left) * (other.at(left + 1, c) - other.at(left, c));
        sound.at(from + i, 0) += static_cast<float>(gain * blend(part, i / static_cast<double>(sound.rate)) *
                                                    value / other.channels);
    }
}

/// A short effect once; a lasting one again and again, each time blending into the next.
void addCue(Sound& sound, const Cue& cue, const Sound& effect) {
    const double gain = fromDecibels(kEffectLoudness);
    if (effect.seconds() < kLasting) return add(sound, {effect}, cue.begin, gain);
    for (double at = cue.begin; at < cue.end - 0.05; at += effect.seconds() - kBlend)
        add(sound, {effect, 0, std::min(effect.seconds(), cue.end - at)}, at, gain);
}

void addEffects(const Film& film, const QList<Effect>& effects, Sound& sound, Problems& problems) {
    QStringList names;
    for (const Effect& effect : effects) names << effect.name;
    QHash<QString, Sound> rendered;
    for (const Cue& cue : film.cues) {
        const qsizetype found = names.indexOf(cue.effect);
        if (found < 0) {
            problems.error(cue.place, QStringLiteral("zvuk „%1“ neexistuje").arg(cue.effect) +
                                          didYouMean(cue.effect, names));
            continue;
        }
        if (!rendered.contains(cue.effect)) rendered.insert(cue.effect, renderEffect(effects[found]));
        addCue(sound, cue, rendered[cue.effect]);
    }
}

/// Where voice and work sound at once.
void softenPeaks(Sound& sound) {
    const auto knee = static_cast<float>(fromDecibels(kKnee));
    const auto room = static_cast<float>(fromDecibels(kCeiling)) - knee;
    for (float& sample : sound.samples) {
        const float over = std::abs(sample) - knee;
        if (over > 0) sample = std::copysign(knee + room * std::tanh(over / room), sample);
    }
}

}  // namespace

QList<Sound> speakScenes(const Script& script, const Voices& voices, Problems& problems) {
    QList<Sound> spoken;
    for (const Scene& scene : script.scenes) {
        const Spoken one = voices.speak(scene.speech, Speaker::films);
        if (!one.fault.isEmpty()) problems.error(scene.place, one.fault);
        spoken << one.sound;
    }
    return spoken;
}

Sound makeSoundtrack(const Film& film, const QList<Sound>& speech, const QList<Effect>& effects,
                     const QString& music, double musicFrom, Problems& problems) {
    Sound sound{kRate, 1, std::vector<float>(static_cast<size_t>(film.seconds * kRate))};
    if (musicFrom >= 0) {
        const Sound background = readWav(music);
        add(sound, {background, musicFrom}, 0, fromDecibels(kMusicLoudness));
        fadeEnds(sound, 0.6, 1.8);
    }
    for (int i = 0; i < speech.size(); ++i)
        add(sound, {speech[i]}, film.captions[i].begin + kBeforeSpeech, 1);
    addEffects(film, effects, sound, problems);
    softenPeaks(sound);
    return sound;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
