#include "voice.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <mutex>

#include "../parallel.h"

namespace sarne::disc {
namespace {

const QString kMelody = QStringLiteral("zvuky/melodie.scm");
const QString kSpellings = QStringLiteral("zvuky/vyslovnost.txt");

/// Long enough for all names on a busy machine.
constexpr int kTimeout = 900'000;
/// Integrated loudness in LUFS, and the peak that it may cost.
constexpr double kLoudness = -20;
constexpr double kHighestPeak = -3.3;
/// What is handed to the filters, so that they work at a known level.
constexpr double kRawPeak = -6;
constexpr double kSilence = -50;
/// For how long the room is heard after the last word, and what ffmpeg may keep to itself at the end.
constexpr double kTail = 0.35;
constexpr double kKept = 0.6;
/// Between neighbouring samples, against the mean; speech stays below 5.
constexpr double kHighestJump = 7;
/// Where pieces clash at one pace, they seldom do at another.
constexpr double kPaces[] = {1, 1.02, 0.98, 1.04, 0.96};

/// Warmth off, brightness up, the loudest syllables held back.
const QString kSpeech = QStringLiteral(
    "highpass=f=75,equalizer=f=320:t=q:w=1:g=-1.5,treble=g=4:f=6500,"
    "acompressor=threshold=0.1:ratio=2:attack=8:release=120");
const QString kRecording =
    QStringLiteral("highpass=f=75,acompressor=threshold=0.1:ratio=2:attack=8:release=120");
/// A room of a few steps (an echo that dies away like noise) and its faint air, which no pause is without.
const QString kRoom = QStringLiteral(
    "aevalsrc=exprs='(random(0)*2-1)*exp(-t*22)':s=32000:d=0.3,highpass=f=250,lowpass=f=4200,adelay=9[echo];"
    "anoisesrc=color=pink:seed=7:amplitude=0.002:r=32000[air];"
    "[0:a]aformat=sample_rates=32000:channel_layouts=mono,%1,asplit[near][send];[send][echo]afir[far];"
    "[near][far][air]amix=inputs=3:duration=first:normalize=0:weights=1 0.3 1,asplit[out][ear];"
    "[ear]ebur128=framelog=verbose[measured]");

QByteArray inLatin2(const QString& text, QString& fault) {
    auto encoder = QStringEncoder("ISO-8859-2");
    QByteArray bytes = encoder(text);
    if (!encoder.isValid() || encoder.hasError()) fault = QStringLiteral("hlas přečte jen češtinu: ") + text;
    return bytes;
}

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(u' ');
}

/// What the program wrote beside its work; \a fault when it could not do it.
QByteArray run(const QString& program, const QStringList& arguments, const QByteArray& input,
               QString& fault) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(kTimeout) || process.exitCode() != 0)
        fault = QStringLiteral("program %1 se nepodařilo spustit").arg(program);
    return process.readAllStandardError();
}

/// What the voice's program is told to write behind its warnings about a text.
const QByteArray kEndOfText = "== end of text ==";

QByteArray order(Speaker speaker, const QByteArray& text, const QString& file, double pace) {
    const QByteArray who = speaker == Speaker::names ? "(hlas-jmen)" : "(hlas-filmu)";
    QByteArray quoted = text;
    quoted.replace('\\', "").replace('"', "");
    return who + "(rekni \"" + quoted + "\" \"" + file.toLocal8Bit() + "\" " + QByteArray::number(pace) +
           ")(format stderr \"\\n" + kEndOfText + "\\n\")\n";
}

/// Pairs of sounds that the voice lacks are played as silence, and warned about.
QString missingSounds(const QByteArray& warnings) {
    static const QRegularExpression missing(QStringLiteral("default diphone \\S+ for (\\S+)"));
    QStringList pairs;
    auto all = missing.globalMatch(QString::fromLatin1(warnings));
    while (all.hasNext()) pairs << all.next().captured(1);
    return pairs.join(u' ');
}

/// The loudness that ffmpeg's meter tells at the end.
double measuredLoudness(const QByteArray& report) {
    static const QRegularExpression line(QStringLiteral("I:\\s+(-?[0-9.]+) LUFS"));
    auto all = line.globalMatch(QString::fromLatin1(report));
    double loudness = 0;
    while (all.hasNext()) loudness = all.next().captured(1).toDouble();
    return loudness;
}

void amplify(Sound& sound, double decibels) {
    const auto gain = static_cast<float>(fromDecibels(decibels));
    for (float& sample : sound.samples) sample *= gain;
    if (peakOf(sound) > fromDecibels(kHighestPeak)) setPeak(sound, kHighestPeak);
}

/// Makes a mono \a sound longer by silence, or shorter.
void setFrames(Sound& sound, int frames) {
    sound.samples.resize(static_cast<size_t>(frames));
}

/// The filter of a piece may run away where two pieces are joined: a jump that speech never makes.
bool hasClick(const Sound& sound) {
    double energy = 0;
    float jump = 0;
    for (int i = 1; i < sound.frames(); ++i) {
        energy += sound.at(i, 0) * sound.at(i, 0);
        jump = std::max(jump, std::abs(sound.at(i, 0) - sound.at(i - 1, 0)));
    }
    return jump > kHighestJump * std::sqrt(energy / std::max(1, sound.frames()));
}

}  // namespace

Voices::Voices(QString content, QString scratch, Problems& problems)
    : content_(std::move(content)),
      scratch_(std::move(scratch)),
      pronunciation_(ContentFolder(content_, problems).read(kSpellings), problems) {}

QStringList Voices::sources(const QString& content) {
    return {content + u'/' + kMelody, content + u'/' + kSpellings};
}

void Voices::prepare(const QStringList& texts, Speaker speaker) {
    std::mutex finished;
    const qsizetype share = texts.size() / coreCount() + 1;
    inParallel(coreCount(), [&](qsizetype i) {
        const QStringList own = texts.mid(i * share, share);
        const QList<Spoken> spoken = own.isEmpty() ? QList<Spoken>() : said(own, speaker, kPaces[0]);
        const std::lock_guard lock(finished);
        for (qsizetype k = 0; k < spoken.size(); ++k)
            if (spoken[k].fault.isEmpty()) prepared_[{speaker, own[k]}] = spoken[k];
    });
}

Spoken Voices::speak(const QString& text, Speaker speaker) const {
    for (const double pace : kPaces) {
        const auto prepared = prepared_.find({speaker, text});
        Spoken spoken = pace == kPaces[0] && prepared != prepared_.cend()
                            ? prepared->second
                            : said({text}, speaker, pace).constFirst();
        if (!spoken.fault.isEmpty()) return spoken;
        if (!hasClick(spoken.sound)) return finished(spoken.sound, kSpeech);
    }
    return {{},
            QStringLiteral("hlas v „%1“ lupne; do %2 napište, jak jinak to přečíst").arg(text, kSpellings)};
}

QList<Spoken> Voices::said(const QStringList& texts, Speaker speaker, double pace) const {
    const QTemporaryDir folder(scratch_ + QStringLiteral("/hlas"));
    const auto file = [&](qsizetype i) { return folder.filePath(QStringLiteral("%1.wav").arg(i)); };
    QStringList faults(texts.size());
    QByteArray orders;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QByteArray read = inLatin2(pronunciation_.spoken(texts[i]), faults[i]);
        orders += order(speaker, faults[i].isEmpty() ? read : QByteArray(), file(i), pace);
    }
    QString broken;
    const QByteArray warnings = run(QStringLiteral("festival"),
                                    {QStringLiteral("--pipe"), content_ + u'/' + kMelody}, orders, broken);
    QList<Spoken> all;
    qsizetype from = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const qsizetype end = warnings.indexOf(kEndOfText, from);
        const QString missing = missingSounds(warnings.mid(from, end - from));
        if (!missing.isEmpty())
            faults[i] = QStringLiteral("hlas neumí %1 v „%2“; do %3 napište, jak jinak to přečíst")
                            .arg(missing, texts[i], kSpellings);
        all << Spoken{readWav(file(i)), faults[i].isEmpty() ? broken : faults[i]};
        from = end < 0 ? warnings.size() : end + kEndOfText.size();
    }
    return all;
}

Spoken Voices::recording(const QString& file) const {
    const QTemporaryDir folder(scratch_ + QStringLiteral("/hlas"));
    const QString plain = folder.filePath(QStringLiteral("hlas.wav"));
    QString fault;
    run(QStringLiteral("ffmpeg"),
        words("-v error -y -i") << file << words("-ac 1 -ar 32000 -c:a pcm_s16le") << plain, {}, fault);
    if (!fault.isEmpty())
        return {{},
                QStringLiteral("nahrávku %1 ffmpeg nepřečte; uložte ji znovu, třeba jako MP3 nebo WAV")
                    .arg(QFileInfo(file).fileName())};
    return finished(readWav(plain), kRecording);
}

Spoken Voices::finished(Sound raw, const QString& filters) const {
    if (peakOf(raw) <= 0) return {{}, QStringLiteral("není nic slyšet")};
    trimSilence(raw, kSilence, 0.03);
    fadeEnds(raw, 0.01, 0.02);
    setPeak(raw, kRawPeak);
    const int frames = raw.frames() + static_cast<int>(kTail * raw.rate);
    setFrames(raw, frames + static_cast<int>(kKept * raw.rate));
    const QTemporaryDir folder(scratch_ + QStringLiteral("/hlas"));
    const QString file = folder.filePath(QStringLiteral("syrovy.wav"));
    const QString made = folder.filePath(QStringLiteral("hotovy.wav"));
    if (!writeWav(file, raw)) return {{}, QStringLiteral("nejde zapsat: ") + file};
    QString fault;
    const QByteArray report =
        run(QStringLiteral("ffmpeg"),
            words("-hide_banner -nostats -y -i")
                << file << words("-filter_complex") << kRoom.arg(filters)
                << words("-map [out] -c:a pcm_s16le") << made << words("-map [measured] -f null -"),
            {}, fault);
    Sound sound = readWav(made);
    if (sound.frames() < frames) return {{}, QStringLiteral("ffmpeg řeč zkrátil: ") + fault};
    setFrames(sound, frames);
    fadeEnds(sound, 0.02, 0.15);
    amplify(sound, kLoudness - measuredLoudness(report));
    return {sound, fault};
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
