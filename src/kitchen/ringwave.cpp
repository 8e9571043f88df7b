#include "kitchen/ringwave.h"

#include <QDataStream>
#include <QIODevice>
#include <array>
#include <cmath>

namespace sarne {
namespace {

constexpr int kRate = 22050;
constexpr double kLength = 2.0, kStroke = 0.34;  // seconds; between strokes
constexpr int kStrokes = 3;
constexpr double kLoudness = 7500;

struct Partial {
    double hertz, share, seconds;  // until it has died away to a third
};
constexpr std::array<Partial, 4> kBell{{{1245, 1, .5}, {2510, .6, .3}, {3790, .35, .18}, {5470, .2, .1}}};

double strokeAt(double seconds) {
    if (seconds < 0) return 0;
    double sum = 0;
    for (const Partial& partial : kBell)
        sum += partial.share * std::exp(-seconds / partial.seconds) *
               std::sin(2 * M_PI * partial.hertz * seconds);
    return sum;
}

}  // namespace

QByteArray ringWave() {
    const auto samples = static_cast<quint32>(kRate * kLength);
    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + 2 * samples);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << quint32(kRate) << quint32(2 * kRate) << quint16(2)
        << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(2 * samples);
    for (quint32 i = 0; i < samples; ++i) {
        double value = 0;
        for (int stroke = 0; stroke < kStrokes; ++stroke)
            value += strokeAt(double(i) / kRate - stroke * kStroke);
        out << static_cast<qint16>(std::lround(kLoudness * value));
    }
    return wave;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
