#include "testmedia.h"

#include <malloc.h>
#include <QCoreApplication>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QThread>

#include <cmath>
#include <numbers>

#include "support/files.h"

namespace sarne {

using namespace Qt::StringLiterals;  // benchmarks are compiled without what tests have

QByteArray sineWav(double hertz, int milliseconds, double loudness) {
    constexpr int rate = 44100;
    const int count = rate * milliseconds / 1000;
    QByteArray wav;
    QDataStream out(&wav, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << qint32(36 + 2 * count);
    out.writeRawData("WAVEfmt ", 8);
    out << qint32(16) << qint16(1) << qint16(1) << qint32(rate) << qint32(rate * 2) << qint16(2)
        << qint16(16);
    out.writeRawData("data", 4);
    out << qint32(2 * count);
    for (int i = 0; i < count; ++i)
        out << qint16(32767 * loudness * std::sin(2 * std::numbers::pi * hertz * i / rate));
    return wav;
}

QString TestMedia::write(const QString& name, const QByteArray& content) const {
    return test::write(path(name), content) ? path(name) : QString();
}

bool TestMedia::compress(const QString& from, const QString& to) const {
    return QProcess::execute(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, from, to}) == 0;
}

QString TestMedia::film(const QString& name, int milliseconds, const QString& options, const QString& size,
                        int rate) const {
    QStringList arguments =
        u"-v error -y -f lavfi -i testsrc=size=%1:rate=%2 -f lavfi -i sine=800 -t %3"_s.arg(size)
            .arg(rate)
            .arg(milliseconds / 1000.0)
            .split(u' ');
    arguments += options.split(u' ', Qt::SkipEmptyParts);
    return QProcess::execute(u"ffmpeg"_s, arguments << path(name)) == 0 ? path(name) : QString();
}

std::vector<BrokenFilm> brokenFilms(const TestMedia& media) {
    const auto read = [&](const QString& options) {
        return test::bytesOf(media.film(u"vzor.avi"_s, 1000, options + u" -c:a pcm_s16le"_s));
    };
    const QByteArray film = read(u"-c:v mjpeg"_s);
    if (film.size() < 10000) return {};
    QByteArray unknown = film;
    unknown.replace("MJPG", "QQQQ");
    QByteArray sizeless = read(u"-c:v msvideo1 -pix_fmt rgb555le"_s);
    for (qsizetype at : {sizeless.indexOf("avih") + 8 + 32, sizeless.indexOf("strf") + 8 + 4})
        sizeless.replace(at, 8, QByteArray(8, '\0'));
    // A playlist that would lead to a film, were it read.
    const QString segment = media.film(u"vzor.ts"_s, 1000, u"-c:v mpeg2video -c:a mp2"_s);
    return {{"empty", ""},
            {"another format", test::bytesOf(segment)},
            {"playlist of films",
             "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + segment.toUtf8() + "\n#EXT-X-ENDLIST\n"},
            {"text", "Toto neni video.\n"},
            {"playlist", "#EXTM3U\nhttp://127.0.0.1:9/a.avi\n"},
            {"header only", film.left(200)},
            {"RIFF only", QByteArray("RIFF\x10\0\0\0AVI ", 12)},
            {"zeros", QByteArray(100000, '\0')},
            {"unknown codec", unknown},
            {"0 x 0", sizeless},
            {"wav without samples", sineWav(440, 0)}};
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
    malloc_trim(0);  // what is free is not held
    const struct mallinfo2 memory = mallinfo2();
    use.kilobytes = static_cast<qint64>((memory.uordblks + memory.hblkhd) / 1024);
    for (const QByteArray& line : test::bytesOf(u"/proc/self/status"_s).split('\n')) {
        const QByteArray number = line.simplified().split(' ').value(1);
        if (line.startsWith("Threads:")) use.threads = number.toInt();
        if (line.startsWith("RssAnon:") || line.startsWith("VmSwap:")) use.pages += number.toLongLong();
    }
    use.files = static_cast<int>(
        QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
    return use;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
