#include "makesounds.h"

#include <QFile>
#include <cmath>

namespace sarne::disc {
namespace {

constexpr int kRate = 22050;

void number(QByteArray& bytes, quint32 value, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i));
}

/// A WAV image of 16-bit mono samples.
QByteArray wave(const QList<qint16>& samples) {
    const auto size = static_cast<quint32>(samples.size() * 2);
    QByteArray bytes = "RIFF";
    number(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    number(bytes, 16, 4);
    number(bytes, 1, 2);
    number(bytes, 1, 2);
    number(bytes, kRate, 4);
    number(bytes, kRate * 2, 4);
    number(bytes, 2, 2);
    number(bytes, 16, 2);
    bytes += "data";
    number(bytes, size, 4);
    for (const qint16 sample : samples) number(bytes, static_cast<quint16>(sample), 2);
    return bytes;
}

/// A soft tap on wood or glass: a short tone that dies away.
QList<qint16> tap(double frequency, double seconds) {
    QList<qint16> samples;
    const int count = static_cast<int>(kRate * seconds);
    for (int i = 0; i < count; ++i) {
        const double time = static_cast<double>(i) / kRate;
        const double fade = std::exp(-time * 28) * std::min(1.0, i / 40.0);
        samples << static_cast<qint16>(9000 * fade * std::sin(2 * M_PI * frequency * time));
    }
    return samples;
}

bool save(const QString& file, const QList<qint16>& samples) {
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(wave(samples)) > 0;
}

}  // namespace

void makeSounds(Workshop& shop) {
    const auto effect = [&](int resource, double frequency) {
        const QString file = shop.scratch + QStringLiteral("/zvuky/%1.wav").arg(resource);
        shop.make(file, originOf({}, QStringLiteral("1")), [&] { return save(file, tap(frequency, 0.15)); });
    };
    for (int i = 1; i <= 9; ++i) effect(i, 300 + 60 * i);
    for (int button = 0; button <= 20; ++button) effect(101 + button, 420 + 35 * button);
    for (const QString& track : {QStringLiteral("/HUDBA.WAV"), QStringLiteral("/zvuky/Vina.WAV")}) {
        const QString file = shop.disc + track;
        shop.make(file, originOf({}, QStringLiteral("1")), [&] { return save(file, tap(330, 4)); });
    }
    shop.problems.note(QStringLiteral("music and voices are not made yet"));
}

}  // namespace sarne::disc
