#include "music.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "midi.h"

namespace sarne::disc {
namespace {

/// Enough for instruments without cymbals, at three quarters of a compact disc's size.
constexpr int kRate = 32000;
/// The synthesiser counts in blocks.
constexpr int kBlock = 64;
/// What rings over from the end of a pass has died away within this time.
constexpr double kRinging = 8;
/// The beginning is blended out of what really follows the end.
constexpr int kBlendFrames = kRate / 50;
/// Ten seconds' work, on a busy machine.
constexpr int kTimeout = 900'000;

int beatFrames(const Pace& pace) {
    return std::max(1, static_cast<int>(std::lround(60.0 / pace.tempo * kRate / kBlock))) * kBlock;
}

/// How many beats the pace \a index of the score holds.
double beatsOf(const Score& score, int index) {
    const double end = index + 1 < score.paces.size() ? score.paces[index + 1].from : score.length;
    return end - score.paces[index].from;
}

/// The end of the pass before, long enough to ring over, and a beat of the next.
Surroundings surroundings(const Score& score) {
    const int last = static_cast<int>(score.paces.size()) - 1;
    const double ringing = std::ceil(kRinging * score.paces[last].tempo / 60);
    return {std::min(ringing, std::floor(beatsOf(score, last))), std::min(1.0, beatsOf(score, 0))};
}

QString soundFont() {
    for (const char* name : {"sf3/MuseScore_General_Full.sf3", "sf3/MuseScore_General.sf3",
                             "sf2/FluidR3_GM.sf2", "sf2/default-GM.sf2", "sf2/TimGM6mb.sf2"}) {
        QString file = QStringLiteral("/usr/share/sounds/") + QLatin1String(name);
        if (QFile::exists(file)) return file;
    }
    return {};
}

bool writeFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A pass and its surroundings as the synthesiser plays them.
Sound played(const Score& score, const Surroundings& around, const QString& scratch) {
    QDir().mkpath(scratch);
    const QTemporaryDir folder(scratch + QStringLiteral("/hudba"));
    const QString midi = folder.filePath(QStringLiteral("hudba.mid"));
    const QString wave = folder.filePath(QStringLiteral("hudba.wav"));
    QList<int> microseconds;
    for (const Pace& pace : score.paces)
        microseconds << static_cast<int>(std::lround(beatFrames(pace) * 1e6 / kRate));
    if (!writeFile(midi, midiFile(score, around, microseconds))) return {};
    QProcess synthesiser;
    synthesiser.setStandardOutputFile(QProcess::nullDevice());
    synthesiser.setStandardErrorFile(QProcess::nullDevice());
    synthesiser.start(QStringLiteral("fluidsynth"), {QStringLiteral("-n"),
                                                     QStringLiteral("-i"),
                                                     QStringLiteral("-q"),
                                                     QStringLiteral("-C"),
                                                     QStringLiteral("0"),
                                                     QStringLiteral("-R"),
                                                     QStringLiteral("1"),
                                                     QStringLiteral("-g"),
                                                     QStringLiteral("0.7"),
                                                     QStringLiteral("-r"),
                                                     QString::number(kRate),
                                                     QStringLiteral("-o"),
                                                     QStringLiteral("synth.dynamic-sample-loading=1"),
                                                     QStringLiteral("-O"),
                                                     QStringLiteral("s16"),
                                                     QStringLiteral("-T"),
                                                     QStringLiteral("wav"),
                                                     QStringLiteral("-F"),
                                                     wave,
                                                     soundFont(),
                                                     midi});
    if (!synthesiser.waitForFinished(kTimeout) || synthesiser.exitCode() != 0) return {};
    return readWav(wave);
}

/// The pass that begins at frame \a from, its beginning blended out of the next.
Sound wholePass(const Sound& all, int from, int length) {
    Sound pass{all.rate, all.channels, {}};
    pass.samples.resize(static_cast<size_t>(length) * static_cast<size_t>(all.channels));
    for (int i = 0; i < length; ++i) {
        const float own = std::min(1.0F, static_cast<float>(i) / kBlendFrames);
        for (int c = 0; c < all.channels; ++c) {
            const float next = own < 1 ? all.at(from + length + i, c) : 0;
            pass.at(i, c) = own * all.at(from + i, c) + (1 - own) * next;
        }
    }
    return pass;
}

/// Adds an effect, brought to the music's rate; what reaches over the end sounds at the beginning.
void mix(Sound& music, const Sound& effect, const Event& event) {
    const double step = static_cast<double>(effect.rate) / music.rate;
    const int count = static_cast<int>(effect.frames() / step) - 1;
    const int from = static_cast<int>(event.seconds * music.rate);
    const double gain = fromDecibels(event.loudness);
    for (int i = 0; i < count; ++i) {
        const double place = i * step;
        const int left = static_cast<int>(place);
        const double share = place - left;
        const double value = gain * ((1 - share) * effect.at(left, 0) + share * effect.at(left + 1, 0));
        const int frame = (from + i) % music.frames();
        for (int c = 0; c < music.channels; ++c) {
            const double side = std::clamp((c == 0 ? 1 - event.side : 1 + event.side) * 0.7, 0.0, 1.0);
            music.at(frame, c) += static_cast<float>(value * side);
        }
    }
}

void mixEvents(Sound& music, const Score& score, const QList<Effect>& effects, Problems& problems) {
    QHash<QString, Sound> rendered;
    for (const Event& event : score.events) {
        const auto found = std::find_if(effects.cbegin(), effects.cend(),
                                        [&](const Effect& one) { return one.name == event.effect; });
        if (found == effects.cend()) {
            problems.error(event.place, QStringLiteral("efekt %1 neexistuje").arg(event.effect));
            continue;
        }
        if (!rendered.contains(event.effect)) rendered.insert(event.effect, renderEffect(*found));
        mix(music, rendered[event.effect], event);
    }
}

}  // namespace

int passFrames(const Score& score) {
    double frames = 0;
    for (int i = 0; i < score.paces.size(); ++i) frames += beatsOf(score, i) * beatFrames(score.paces[i]);
    return static_cast<int>(std::lround(frames));
}

Sound renderMusic(const Score& score, const QList<Effect>& effects, double peak, const QString& scratch,
                  const Place& place, Problems& problems) {
    const int length = passFrames(score);
    const Surroundings around = length > 0 ? surroundings(score) : Surroundings();
    const Sound all = length > 0 ? played(score, around, scratch) : Sound();
    const int from = length > 0 ? static_cast<int>(around.before * beatFrames(score.paces.last())) : 0;
    if (length <= 0 || all.frames() < from + length + kBlendFrames) {
        problems.error(place, QStringLiteral("fluidsynth to se svou sadou zvuků nezahrál"));
        return {};
    }
    Sound music = wholePass(all, from, length);
    setPeak(music, peak);
    mixEvents(music, score, effects, problems);
    setPeak(music, peak);
    return music;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
