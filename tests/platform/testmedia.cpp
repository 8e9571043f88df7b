#include "testmedia.h"

#include <malloc.h>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <QtEndian>

#include <cmath>
#include <numbers>

namespace sarne {

namespace {

void append32(QByteArray& bytes, quint32 value) {
    const quint32 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

void append16(QByteArray& bytes, qint16 value) {
    const qint16 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

}  // namespace

QByteArray sineWav(double hertz, int milliseconds, double loudness) {
    constexpr int rate = 44100;
    QByteArray samples;
    for (int i = 0; i < rate * milliseconds / 1000; ++i)
        append16(samples,
                 static_cast<qint16>(32767 * loudness * std::sin(2 * std::numbers::pi * hertz * i / rate)));
    QByteArray wav("RIFF");
    append32(wav, 36 + samples.size());
    wav += "WAVEfmt ";
    append32(wav, 16);
    append16(wav, 1);
    append16(wav, 1);
    append32(wav, rate);
    append32(wav, rate * 2);
    append16(wav, 2);
    append16(wav, 16);
    wav += "data";
    append32(wav, samples.size());
    return wav + samples;
}

QString TestMedia::write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) return {};
    return path(name);
}

QString TestMedia::film(const QString& name, int milliseconds, const QString& options,
                        const QString& size) const {
    QProcess ffmpeg;
    QStringList arguments =
        QStringLiteral("-v error -y -f lavfi -i testsrc=size=%1:rate=25 -f lavfi -i sine=800 -t %2")
            .arg(size)
            .arg(milliseconds / 1000.0)
            .split(u' ');
    arguments += options.split(u' ', Qt::SkipEmptyParts);
    ffmpeg.start(QStringLiteral("ffmpeg"), arguments << path(name));
    return ffmpeg.waitForFinished(120000) && ffmpeg.exitCode() == 0 ? path(name) : QString();
}

bool waitFor(const std::function<bool()>& done, int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (!done()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(2);
    }
    return true;
}

void runFor(int milliseconds) {
    waitFor([] { return false; }, milliseconds);
}

ProcessUse ProcessUse::now() {
    ProcessUse use;
    const struct mallinfo2 memory = mallinfo2();
    use.kilobytes = static_cast<qint64>((memory.uordblks + memory.hblkhd) / 1024);
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            const QByteArray number = line.simplified().split(' ').value(1);
            if (line.startsWith("Threads:")) use.threads = number.toInt();
        }
    }
    use.files = static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                     .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                                     .size());
    return use;
}

}  // namespace sarne
