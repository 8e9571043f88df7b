#include "midi.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <random>

namespace sarne::disc {
namespace {

constexpr int kTicks = 480;
/// Nobody plays all notes equally loud and exactly on the beat.
constexpr int kUnevenTicks = 9;
constexpr int kUnevenLoudness = 7;
constexpr int kDownbeat = 5;
/// A note ends a little before the next one.
constexpr double kSounding = 0.94;

struct Message {
    int tick;
    QByteArray bytes;
};

template <typename Number>
QByteArray big(Number value) {
    const Number swapped = qToBigEndian(value);
    return {reinterpret_cast<const char*>(&swapped), sizeof(swapped)};
}

QByteArray bytesOf(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

QByteArray variableLength(int value) {
    QByteArray bytes(1, static_cast<char>(value & 0x7F));
    for (value >>= 7; value > 0; value >>= 7) bytes.prepend(static_cast<char>((value & 0x7F) | 0x80));
    return bytes;
}

/// Channel 9 is for drums.
int channelOf(int instrument) {
    return instrument < 9 ? instrument : instrument + 1;
}

int ticksOf(double beats) {
    return static_cast<int>(std::lround(beats * kTicks));
}

Message tempo(double beat, int microseconds) {
    return {ticksOf(beat), bytesOf({0xFF, 0x51, 3, microseconds >> 16 & 0xFF, microseconds >> 8 & 0xFF,
                                    microseconds & 0xFF})};
}

QList<Message> tempos(const Score& score, const Surroundings& around, const QList<int>& microseconds) {
    QList<Message> all{tempo(0, microseconds.last())};
    for (int i = 0; i < microseconds.size(); ++i)
        all << tempo(around.before + score.paces[i].from, microseconds[i]);
    return all << tempo(around.before + score.length, microseconds.first());
}

QList<Message> settings(const Score& score) {
    QList<Message> all;
    for (int i = 0; i < std::min<qsizetype>(15, score.instruments.size()); ++i) {
        const Instrument& player = score.instruments[i];
        const int channel = channelOf(i);
        all << Message{0, bytesOf({0xC0 | channel, player.program})}
            << Message{0, bytesOf({0xB0 | channel, 7, player.loudness})}
            << Message{0, bytesOf({0xB0 | channel, 10, 64 + player.side})}
            << Message{0, bytesOf({0xB0 | channel, 91, player.reverb})};
    }
    return all;
}

bool isDownbeatOf(const Score& score, double beat) {
    const auto later = std::find_if(score.paces.cbegin(), score.paces.cend(),
                                    [&](const Pace& pace) { return pace.from > beat + 1e-6; });
    const Pace& pace = *(later - 1);
    return std::fmod(beat - pace.from, pace.beats) < 1e-6;
}

/// Adds what begins from one beat of the piece to another, as if the piece began at \a start.
void addNotes(const Score& score, double start, double first, double end, QList<Message>& all) {
    std::mt19937 dice(1);
    for (const Note& note : score.notes) {
        const bool isDownbeat = isDownbeatOf(score, note.from);
        const int strength = static_cast<int>(80 * note.strength) + (isDownbeat ? kDownbeat : 0) +
                             static_cast<int>(dice() % (2 * kUnevenLoudness + 1)) - kUnevenLoudness;
        const int from = ticksOf(start + note.from) + static_cast<int>(dice() % (kUnevenTicks + 1));
        if (note.from < first - 1e-6 || note.from >= end - 1e-6) continue;
        const int to = from + std::max(10, static_cast<int>(note.length * kTicks * kSounding) - kUnevenTicks);
        const int channel = channelOf(std::min(note.instrument, 14));
        all << Message{from, bytesOf({0x90 | channel, note.pitch, std::clamp(strength, 1, 127)})}
            << Message{to, bytesOf({0x80 | channel, note.pitch, 64})};
    }
}

}  // namespace

QByteArray midiFile(const Score& score, const Surroundings& around, const QList<int>& beatMicroseconds) {
    QList<Message> all = tempos(score, around, beatMicroseconds) + settings(score);
    const double pass = around.before, next = pass + score.length;
    addNotes(score, pass - score.length, score.length - around.before, score.length, all);
    addNotes(score, pass, 0, score.length, all);
    addNotes(score, next, 0, around.behind, all);
    std::stable_sort(all.begin(), all.end(),
                     [](const Message& a, const Message& b) { return a.tick < b.tick; });
    QByteArray track;
    int tick = 0;
    for (const Message& message : all) {
        track += variableLength(message.tick - tick) + message.bytes;
        tick = message.tick;
    }
    track += variableLength(std::max(0, ticksOf(next + around.behind) - tick)) + bytesOf({0xFF, 0x2F, 0});
    return "MThd" + big<quint32>(6) + big<quint16>(0) + big<quint16>(1) + big<quint16>(kTicks) + "MTrk" +
           big<quint32>(static_cast<quint32>(track.size())) + track;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
