#include "platform/beeper.h"

#include <QtEndian>
#include <cmath>
#include <numbers>

#include "platform/effectplayer.h"

namespace sarne {

namespace {

constexpr int kSamplesPerSecond = 22050;

template <class Number>
void append(QByteArray& bytes, Number value) {
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

/// A tone that dies away.
QByteArray toneSamples() {
    constexpr double hertz = 740;
    constexpr int count = kSamplesPerSecond / 8;
    QByteArray samples;
    for (int i = 0; i < count; ++i) {
        const double loudness = 9000.0 * (count - i) / count;
        append(samples, static_cast<qint16>(loudness *
                                            std::sin(2 * std::numbers::pi * hertz * i / kSamplesPerSecond)));
    }
    return samples;
}

/// The samples, 16 bits, one channel, as a WAV image.
QByteArray wavImage(const QByteArray& samples) {
    QByteArray image("RIFF");
    append(image, static_cast<quint32>(36 + samples.size()));
    image += "WAVEfmt ";
    append(image, quint32{16});
    append(image, quint16{1});
    append(image, quint16{1});
    append(image, quint32{kSamplesPerSecond});
    append(image, quint32{kSamplesPerSecond * 2});
    append(image, quint16{2});
    append(image, quint16{16});
    image += "data";
    append(image, static_cast<quint32>(samples.size()));
    return image + samples;
}

}  // namespace

void ToneBeeper::beep() {
    if (tone_.isEmpty()) tone_ = wavImage(toneSamples());
    effects_.play(tone_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
