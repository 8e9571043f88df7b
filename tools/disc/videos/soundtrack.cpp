#include "soundtrack.h"

#include <algorithm>

namespace sarne::disc {
namespace {

constexpr int kRate = 32000;
constexpr double kBeforeSpeech = 0.25;
constexpr double kAfterSpeech = 0.55;
constexpr double kLongest = 75;
constexpr double kShortest = 8;
constexpr double kHighestPeak = -3.3;
constexpr double kMusicLoudness = -5;

/// Adds \a other from \a seconds on, at its own speed, its channels as one.
void add(Sound& sound, const Sound& other, double otherFrom, double seconds, double gain) {
    const double step = static_cast<double>(other.rate) / sound.rate;
    const int from = static_cast<int>(seconds * sound.rate);
    for (int i = 0; from + i < sound.frames(); ++i) {
        const double place = otherFrom * other.rate + i * step;
        const int left = static_cast<int>(place);
        if (left + 1 >= other.frames()) break;
        double value = 0;
        for (int c = 0; c < other.channels; ++c)
            value += other.at(left, c) + (place - left) * (other.at(left + 1, c) - other.at(left, c));
        sound.at(from + i, 0) += static_cast<float>(gain * value / other.channels);
    }
}

/// Speaks the captions and gives the steps their times.
QList<Sound> speakCaptions(Film& film, const Voices& voices, QList<FilmFault>& faults) {
    QList<Sound> spoken;
    double time = 0;
    for (Step& step : film.steps) {
        const Spoken caption = voices.speak(step.caption, Speaker::films);
        if (!caption.fault.isEmpty()) faults << FilmFault{step.place, caption.fault};
        spoken << caption.sound;
        const double needed = spoken.last().seconds() + kBeforeSpeech + kAfterSpeech;
        step.begin = time;
        time += std::max(step.seconds, needed);
        step.end = time;
    }
    if (time < kShortest || time > kLongest)
        faults << FilmFault{film.place,
                            QStringLiteral("film trvá %1 s, má trvat 8 až 75").arg(time, 0, 'f', 1)};
    return spoken;
}

void addEffects(const Film& film, const QList<Effect>& effects, Sound& sound, QList<FilmFault>& faults) {
    for (const Step& step : film.steps)
        for (const SoundCue& cue : step.sounds) {
            const auto found = std::find_if(effects.cbegin(), effects.cend(),
                                            [&](const Effect& one) { return one.name == cue.effect; });
            if (found == effects.cend())
                faults << FilmFault{cue.place, QStringLiteral("efekt %1 neexistuje").arg(cue.effect)};
            else
                add(sound, renderEffect(*found), 0, step.begin + cue.share * (step.end - step.begin),
                    fromDecibels(cue.loudness));
        }
}

}  // namespace

Sound makeSoundtrack(Film& film, const QList<Effect>& effects, const QString& music, const Voices& voices,
                     QList<FilmFault>& faults) {
    const QList<Sound> spoken = speakCaptions(film, voices, faults);
    Sound sound{kRate, 1, std::vector<float>(static_cast<size_t>(film.seconds() * kRate))};
    if (film.music >= 0) {
        add(sound, readWav(music), film.music, 0, fromDecibels(kMusicLoudness));
        fadeEnds(sound, 0.6, 1.8);
    }
    for (int i = 0; i < spoken.size(); ++i) add(sound, spoken[i], 0, film.steps[i].begin + kBeforeSpeech, 1);
    addEffects(film, effects, sound, faults);
    if (peakOf(sound) > fromDecibels(kHighestPeak)) setPeak(sound, kHighestPeak);
    return sound;
}

}  // namespace sarne::disc
