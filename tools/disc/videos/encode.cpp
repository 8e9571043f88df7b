#include "encode.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "draw.h"

namespace sarne::disc {
namespace {

constexpr int kTimeout = 120'000;
/// Bytes that wait for ffmpeg before the next frame is drawn.
constexpr qint64 kAhead = 8 * qint64{kFilmWidth} * kFilmHeight * 4;

QStringList arguments(const QString& sound, const QString& output) {
    const QString text = QStringLiteral(
        "-v error -y -f rawvideo -pix_fmt bgr0 -s %1x%2 -r %3 -i - -i %4 -map 0:v -map 1:a -c:v mpeg4 -vtag "
        "XVID -q:v 6 "
        "-g %3 -bf 0 -threads 1 -c:a pcm_s16le -f avi %5");
    QStringList words = text.split(u' ');
    words.replaceInStrings(QStringLiteral("%1x%2"), QStringLiteral("%1x%2").arg(kFilmWidth).arg(kFilmHeight));
    words.replaceInStrings(QStringLiteral("%3"), QString::number(kFramesPerSecond));
    words.replaceInStrings(QStringLiteral("%4"), sound);
    words.replaceInStrings(QStringLiteral("%5"), output);
    return words;
}

bool sendFrames(QProcess& encoder, const Film& film, const QImage& ground) {
    const int count = static_cast<int>(film.seconds() * kFramesPerSecond);
    for (int i = 0; i < count; ++i) {
        const QImage frame = drawFrame(film, ground, static_cast<double>(i) / kFramesPerSecond);
        encoder.write(reinterpret_cast<const char*>(frame.constBits()), frame.sizeInBytes());
        while (encoder.bytesToWrite() > kAhead)
            if (!encoder.waitForBytesWritten(kTimeout)) return false;
    }
    return true;
}

}  // namespace

bool encodeFilm(const Film& film, const QImage& ground, const Sound& sound, const QString& file,
                const QString& scratch) {
    const QTemporaryDir folder(scratch + QStringLiteral("/film"));
    const QString wave = folder.filePath(QStringLiteral("zvuk.wav"));
    const QString made = folder.filePath(QStringLiteral("film.avi"));
    if (!writeWav(wave, sound)) return false;
    QProcess encoder;
    encoder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    encoder.start(QStringLiteral("ffmpeg"), arguments(wave, made));
    if (!encoder.waitForStarted() || !sendFrames(encoder, film, ground)) return false;
    encoder.closeWriteChannel();
    if (!encoder.waitForFinished(kTimeout) || encoder.exitCode() != 0) return false;
    QFile::remove(file);
    return QFile::rename(made, file) || QFile::copy(made, file);
}

}  // namespace sarne::disc
