#include "platform/soundlength.h"

#include <QtEndian>

namespace sarne {
namespace {

template <typename Number>
Number littleAt(const QByteArray& image, qsizetype offset) {
    if (offset + qsizetype{sizeof(Number)} > image.size()) return 0;
    return qFromLittleEndian<Number>(image.constData() + offset);
}

qint64 played(quint64 units, quint64 unitsPerSecond) {
    constexpr quint64 kDay = quint64{24} * 3600;
    if (unitsPerSecond == 0 || units / unitsPerSecond > kDay) return 0;
    return static_cast<qint64>(units * 1000 / unitsPerSecond);
}

qint64 lengthOfWav(const QByteArray& image) {
    constexpr qsizetype header = 44, speed = 28;
    if (image.size() <= header) return 0;
    return played(static_cast<quint64>(image.size() - header), littleAt<quint32>(image, speed));
}

/// The last page says how many samples have been played by its end; Opus counts 48,000 a second whatever was
/// recorded.
qint64 lengthOfOgg(const QByteArray& image) {
    const qsizetype vorbis = image.indexOf("\x01vorbis");
    const quint32 rate = vorbis >= 0                  ? littleAt<quint32>(image, vorbis + 12)
                         : image.contains("OpusHead") ? 48000
                                                      : 0;
    return played(littleAt<quint64>(image, image.lastIndexOf("OggS") + 6), rate);
}

/// Of 64 bits the first 20 are the rate, the last 36 the number of samples.
qint64 lengthOfFlac(const QByteArray& image) {
    constexpr qsizetype numbers = 18;
    if (image.size() < numbers + qsizetype{sizeof(quint64)}) return 0;
    const auto packed = qFromBigEndian<quint64>(image.constData() + numbers);
    return played(packed & 0xFFFFFFFFF, packed >> 44);
}

}  // namespace

qint64 soundLength(const QByteArray& image) {
    if (image.startsWith("OggS")) return lengthOfOgg(image);
    if (image.startsWith("fLaC")) return lengthOfFlac(image);
    return lengthOfWav(image);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
