#include <gtest/gtest.h>

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "disc/sounds/effects.h"
#include "disc/sounds/makesounds.h"
#include "disc/sounds/music.h"
#include "disc/sounds/voice.h"
#include "medialines.h"
#include "support/files.h"
#include "support/kept.h"

namespace sarne::disc {
namespace {

double energy(const Sound& sound, double from, double seconds) {
    double sum = 0;
    const int first = static_cast<int>(from * sound.rate);
    const int count = static_cast<int>(seconds * sound.rate);
    for (int i = first; i < first + count; ++i) sum += sound.at(i, 0) * sound.at(i, 0);
    return std::sqrt(sum / count);
}

/// The largest step between neighbouring samples among \a count pairs from frame \a from on, round the end.
float steepest(const Sound& sound, int from, int count) {
    float step = 0;
    for (int i = from; i < from + count; ++i)
        for (int c = 0; c < sound.channels; ++c)
            step = std::max(
                step, std::abs(sound.at((i + 1) % sound.frames(), c) - sound.at(i % sound.frames(), c)));
    return step;
}

/// The seam is a place like any other: neither the step over it nor the loudness about it stands out.
void expectSeamless(const Sound& loop) {
    const int last = loop.frames() - 1;
    EXPECT_LE(steepest(loop, last, 1), 1.5F * steepest(loop, last - 400, 400) + 0.001F);
    EXPECT_LE(steepest(loop, last, 1), 1.5F * steepest(loop, 0, 400) + 0.001F);
}

QList<Effect> shippedEffects(Problems& problems) {
    const ContentFolder folder(QStringLiteral(SARNE_CONTENT), problems);
    return readEffects(folder.read(u"zvuky/efekty.txt"_s), problems);
}

/// How loud the loudest eighth of a second is, in decibels.
double loudness(const Sound& sound) {
    constexpr double span = 0.125, step = 0.005;
    double loudest = 0;
    for (double from = 0; from + span <= sound.seconds(); from += step)
        loudest = std::max(loudest, energy(sound, from, span));
    return 20 * std::log10(loudest);
}

TEST(Effects, EveryButtonHasOneThatIsShortQuietEnoughAndAtRestAtBothEnds) {
    Problems problems;
    QList<int> numbers;
    QList<std::vector<float>> sounds;
    QList<double> levels;
    for (const Effect& effect : shippedEffects(problems)) {
        if (effect.number == 0) continue;
        SCOPED_TRACE(effect.number);
        const Sound sound = renderEffect(effect);
        EXPECT_GE(sound.seconds(), 0.149);
        EXPECT_LE(sound.seconds(), 0.801);
        EXPECT_LT(peakOf(sound), fromDecibels(-3));
        EXPECT_GT(peakOf(sound), fromDecibels(-14));
        for (const int frame : {0, 1, sound.frames() - 2, sound.frames() - 1})
            EXPECT_NEAR(sound.at(frame, 0), 0, 0.004);
        EXPECT_FALSE(sounds.contains(sound.samples)) << "sounds like another";
        EXPECT_EQ(renderEffect(effect).samples, sound.samples);
        numbers << effect.number;
        sounds << sound.samples;
        if (effect.number > 100) levels << loudness(sound);
    }
    const auto [quietest, loudest] = std::minmax_element(levels.begin(), levels.end());
    EXPECT_LT(*loudest - *quietest, 6) << "no button is much louder than another";
    EXPECT_EQ(problems.errors(), QStringList());
    EXPECT_GE(numbers.size(), 30);
    for (int button = 0; button <= 20; ++button) EXPECT_TRUE(numbers.contains(101 + button)) << button;
}

TEST(Notes, CzechNamesGivePitchesAndChords) {
    test::expectCases(u"noty"_s, [](const QString& name) {
        QStringList all{QString::number(pitchOf(name))};
        for (const int tone : chordTones(name)) all << QString::number(tone);
        return all.join(u' ');
    });
}

/// The length of a score in beats, its paces, and the notes of its first part.
QString told(const Score& score) {
    QStringList all{u"%1 beats"_s.arg(score.length)};
    for (const Pace& pace : score.paces)
        all << u"from %1: %2 a minute, %3 a bar"_s.arg(pace.from).arg(pace.tempo).arg(pace.beats);
    for (const Note& note : score.notes)
        if (note.from < 4) all << u"%1@%2+%3"_s.arg(note.pitch).arg(note.from).arg(note.length);
    return u"%1, %2 notes"_s.arg(all.join(u'\n')).arg(score.notes.size());
}

TEST(Scores, PartsBecomeNotesAndMayHaveAPaceOfTheirOwn) {
    Problems problems;
    // The melody with its held note, then the pattern over C, over G and over F in the second half of the
    // bar.
    const Score melody =
        readScore(linesOf("tempo: 120\ntakt: 2\nprůběh: A A\nnástroj: kytara program=24 od=c3\n== A\n"
                          "akordy: C | G F\nkytara: c4:0,5 e4 - g4 | ~:1 a4+c5:1\nkytara vzor: z:1 2"),
                  problems);
    test::expectText(u"skladba"_s, told(melody));
    const Score paces = readScore(
        linesOf("tempo: 120\ntakt: 2\nprůběh: A A B A\nnástroj: kytara program=24\n== A\nakordy: C\nkytara: "
                "c4:2\n== B\ntempo: 60\ntakt: 3\nakordy: C | C\nkytara: c4:3 | c4"),
        problems);
    test::expectText(u"tempa"_s, told(paces));
    EXPECT_EQ(problems.errors(), QStringList());
    EXPECT_NEAR(passFrames(paces) / 32000.0, 3 + 6, 0.05);
    EXPECT_EQ(passFrames(Score()), 0);
}

/// The music that ships has three moods, and whatever sounds in it does so before its end.
TEST(Scores, ThoseThatShipAreFaultless) {
    Problems problems;
    const ContentFolder folder(QStringLiteral(SARNE_CONTENT), problems);
    const auto seconds = [](const Score& score) { return passFrames(score) / 32000.0; };
    const Score music = readScore(folder.read(u"zvuky/hudba.txt"_s), problems);
    const Score wine = readScore(folder.read(u"zvuky/vina.txt"_s), problems);
    EXPECT_EQ(problems.errors(), QStringList());
    EXPECT_GE(music.paces.size(), 3);
    for (const Event& event : wine.events) EXPECT_LT(event.seconds, seconds(wine));
}

/// Two bars whose last note rings on, with silence at the beginning.
TEST(Music, WhatRingsOverTheEndSoundsAtTheBeginning) {
    Problems problems;
    const QTemporaryDir folder;
    const char* text =
        "tempo: 120\ntakt: 2\nprůběh: A\nudálost: 1,95 cinknutí hlas=-20\nnástroj: kytara program=48 "
        "dozvuk=90\n== A\n"
        "akordy: C | C\nkytara: -:2 | c4+g4:2";
    const Score score = readScore(linesOf(text), problems);
    const QList<Effect> effects =
        readEffects(linesOf("== 0 | cinknutí | 2\núder látka=sklo doznění=0,5"), problems);
    const Sound loop = renderMusic(score, effects, -6, folder.path(), {}, problems);
    ASSERT_EQ(problems.errors(), QStringList());
    EXPECT_EQ(loop.frames(), passFrames(score));
    EXPECT_NEAR(loop.seconds(), 2, 0.01);
    EXPECT_NEAR(peakOf(loop), fromDecibels(-6), 0.001);
    EXPECT_GT(energy(loop, 0, 0.1), 0.2 * energy(loop, 1.5, 0.4));
    EXPECT_LT(energy(loop, 0.85, 0.1), energy(loop, 0, 0.1));
    expectSeamless(loop);

    Score unknown = score;
    unknown.events.first().effect = u"hrom"_s;
    renderMusic(unknown, effects, -6, folder.path(), {}, problems);
    EXPECT_EQ(problems.errors(), QStringList(u"soubor.txt:4: efekt hrom neexistuje"_s));
}

TEST(Sounds, FilesKeepTheSoundAndOthersAreNone) {
    const QTemporaryDir folder;
    Sound sound{8000, 2, {0, 0, 0.5F, -0.5F, 0.001F, 0, 0, 0}};
    const QString file = folder.filePath(u"zvuk.wav"_s);
    ASSERT_TRUE(writeWav(file, sound));
    const Sound read = readWav(file);
    EXPECT_EQ(read.rate, 8000);
    ASSERT_EQ(read.frames(), 4);
    EXPECT_NEAR(read.at(1, 1), -0.5, 0.001);
    trimSilence(sound, -40, 0);
    EXPECT_EQ(sound.samples, (std::vector<float>{0.5F, -0.5F}));
    EXPECT_FALSE(writeWav(folder.filePath(u"neni/zvuk.wav"_s), sound));
    ASSERT_TRUE(test::write(file, "RIFFxxxxWAVEfmt "));
    EXPECT_TRUE(readWav(file).samples.empty());
    EXPECT_TRUE(readWav(folder.filePath(u"neni.wav"_s)).samples.empty());
}

void expectLevelled(const Sound& sound) {
    EXPECT_GE(sound.rate, 24000);
    EXPECT_EQ(sound.channels, 1);
    EXPECT_LT(peakOf(sound), fromDecibels(-3));
    EXPECT_NEAR(loudness(sound), -16, 3.5);
    EXPECT_GT(energy(sound, 0.05, 0.1), 0.005) << "silence in front of the voice";
    const auto still = std::search_n(sound.samples.begin(), sound.samples.end(), sound.rate / 100, 0.0F);
    EXPECT_EQ(still, sound.samples.end()) << "ten milliseconds of hard silence";
}

TEST(Pronunciations, FitWholeWordsOrTheirBeginnings) {
    Problems problems;
    const Pronunciation list(linesOf("3 cm | tři centimetry\ncm | centimetrů\nsardin… | sardyn…"), problems);
    const auto spoken = [&](const char* text) { return list.spoken(QString::fromUtf8(text)).toStdString(); };
    EXPECT_EQ(spoken("Řez 3 cm, pak 13 cm"), "Řez tři centimetry, pak 13 centimetrů.");
    EXPECT_EQ(spoken("Sardinky v acmě?"), "sardynky v acmě?");
    EXPECT_EQ(problems.errors(), QStringList());
}

class SpeakingVoices : public testing::Test {
  protected:
    QTemporaryDir folder_;
    Problems problems_;
    Voices voices_{QStringLiteral(SARNE_CONTENT), folder_.path(), problems_};
};

TEST_F(SpeakingVoices, SayTheSameAlikeAtOneLoudness) {
    const QString text = u"Siven v papilotě"_s;
    const Spoken name = voices_.speak(text, Speaker::names);
    EXPECT_EQ(name.fault, QString());
    expectLevelled(name.sound);
    EXPECT_GT(name.sound.seconds(), 0.9);
    EXPECT_EQ(voices_.speak(text, Speaker::names).sound.samples, name.sound.samples);
    const Spoken film = voices_.speak(text, Speaker::films);
    expectLevelled(film.sound);
    EXPECT_NE(film.sound.samples, name.sound.samples);

    Sound quiet = name.sound;
    for (float& sample : quiet.samples) sample *= 0.1F;
    const QString file = folder_.filePath(u"nahravka.wav"_s);
    ASSERT_TRUE(writeWav(file, quiet));
    expectLevelled(voices_.recording(file).sound);
}

TEST_F(SpeakingVoices, TellWhatTheyCannotSay) {
    EXPECT_EQ(voices_.speak(u"Siven fpapilotě"_s, Speaker::names).fault.toStdString(),
              "hlas neumí n-f v „Siven fpapilotě“; do zvuky/vyslovnost.txt napište, jak jinak to přečíst");
    EXPECT_EQ(voices_.speak(u"寿司"_s, Speaker::names).fault.toStdString(), "hlas přečte jen češtinu: 寿司.");
    EXPECT_FALSE(voices_.recording(folder_.filePath(u"neni.wav"_s)).fault.isEmpty());
}

/// The whole stage on the content that ships, with the names of two recipes.
TEST(MakeSounds, MakesMusicEffectsAndNamesOnce) {
    const QTemporaryDir folder;
    const auto in = [&](const char* file) { return folder.filePath(QString::fromUtf8(file)); };
    const QString content = QStringLiteral(SARNE_CONTENT);
    Problems problems;
    Cookbook book;
    for (const int id : {1, 16}) book.recipes[id].id = id;
    book.recipes[1].name = u"Kapr na kmíně"_s;
    book.recipes[16].name = u"Vánoční rybí polévka"_s;
    const auto run = [&] {
        Ledger ledger(in("ledger"));
        Workshop shop{book, content, {}, {}, in("disc"), in("scratch"), ledger, problems, DiscKind::Compact};
        makeSounds(shop);
    };
    run();
    ASSERT_EQ(problems.errors(), QStringList());
    const QString music = in("scratch/disk/HUDBA.WAV");
    const QString wine = in("scratch/disk/zvuky/Vina.WAV");
    for (const auto& [file, shortest, longest] : {std::tuple{music, 360, 480}, std::tuple{wine, 180, 240}}) {
        const Sound sound = readWav(file);
        EXPECT_GE(sound.seconds(), shortest);
        EXPECT_LE(sound.seconds(), longest);
        EXPECT_EQ(sound.channels, 2);
        EXPECT_LT(peakOf(sound), fromDecibels(-3));
        expectSeamless(sound);
    }
    EXPECT_EQ(readWav(in("scratch/zvuky/121.wav")).channels, 1);
    const Sound one = readWav(in("scratch/disk/zvuky/č1.wav"));
    const Sound other = readWav(in("scratch/disk/zvuky/č16.wav"));
    EXPECT_GT(one.seconds(), 0.7);
    EXPECT_GT(other.seconds(), one.seconds());

    // What goes on the compact disc lasts as long as what it was made of.
    const std::pair<const char*, double> packed[] = {{"HUDBA.opus", readWav(music).seconds()},
                                                     {"zvuky/Vina.opus", readWav(wine).seconds()},
                                                     {"zvuky/č1.ogg", one.seconds()},
                                                     {"zvuky/č16.ogg", other.seconds()}};
    for (const auto& [name, seconds] : packed) {
        const QString wave = in("zpět.wav");
        QFile::remove(wave);
        test::output(u"ffmpeg"_s,
                     {u"-v"_s, u"error"_s, u"-i"_s, in("disc/") + QString::fromUtf8(name), wave});
        EXPECT_NEAR(readWav(wave).seconds(), seconds, 0.001) << name;
        EXPECT_GT(peakOf(readWav(wave)), 0.1) << name;
    }

    const QDateTime made = QFileInfo(music).lastModified();
    run();
    EXPECT_EQ(QFileInfo(music).lastModified(), made);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
