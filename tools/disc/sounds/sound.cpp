#include "sound.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace sarne::disc {
namespace {

constexpr int kHeaderSize = 44;

template <typename Number>
void put(QByteArray& bytes, Number value) {
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof(little));
}

QByteArray header(const Sound& sound, quint32 dataSize) {
    const auto frameSize = static_cast<quint16>(sound.channels * 2);
    QByteArray bytes = "RIFF";
    put<quint32>(bytes, kHeaderSize - 8 + dataSize);
    bytes += "WAVEfmt ";
    put<quint32>(bytes, 16);
    put<quint16>(bytes, 1);
    put<quint16>(bytes, static_cast<quint16>(sound.channels));
    put<quint32>(bytes, static_cast<quint32>(sound.rate));
    put<quint32>(bytes, static_cast<quint32>(sound.rate) * frameSize);
    put<quint16>(bytes, frameSize);
    put<quint16>(bytes, 16);
    bytes += "data";
    put<quint32>(bytes, dataSize);
    return bytes;
}

template <typename Number>
Number get(const QByteArray& bytes, qsizetype at) {
    return at + qsizetype(sizeof(Number)) <= bytes.size() ? qFromLittleEndian<Number>(bytes.constData() + at)
                                                          : Number{};
}

bool isSupported(const QByteArray& bytes, const Sound& sound) {
    return bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WAVE" && sound.channels > 0 && sound.rate > 0;
}

void readSamples(const QByteArray& bytes, qsizetype from, qsizetype size, Sound& sound) {
    const qsizetype end = std::min(bytes.size(), from + size);
    for (qsizetype at = from; at + 1 < end; at += 2)
        sound.samples.push_back(static_cast<float>(get<qint16>(bytes, at)) / 32768.0F);
    sound.samples.resize(sound.samples.size() - sound.samples.size() % static_cast<size_t>(sound.channels));
}

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
    const auto begin = sound.samples.begin() + std::max(0, from) * sound.channels;
    const auto end = sound.samples.begin() + std::min(sound.frames(), to) * sound.channels;
    sound.samples = std::vector<float>(begin, end);
}

bool writeWav(const QString& file, const Sound& sound) {
    QByteArray bytes = header(sound, static_cast<quint32>(sound.samples.size() * 2));
    for (const float sample : sound.samples)
        put<qint16>(bytes, static_cast<qint16>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767)));
    QSaveFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.commit();
}

Sound readWav(const QString& file) {
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = in.readAll();
    Sound sound{static_cast<int>(get<quint32>(bytes, 24)), get<quint16>(bytes, 22), {}};
    if (!isSupported(bytes, sound)) return {};
    for (qsizetype at = 12; at + 8 <= bytes.size();) {
        const qsizetype size = get<quint32>(bytes, at + 4);
        if (bytes.mid(at, 4) == "data") readSamples(bytes, at + 8, size, sound);
        at += 8 + size + size % 2;
    }
    return sound;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
