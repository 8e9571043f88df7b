#include "encode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include "draw.h"

namespace sarne::disc {
namespace {

constexpr int kTimeout = 120'000;
/// Bytes that wait for ffmpeg before the next frame is drawn.
constexpr qint64 kAhead = 8 * qint64{kFilmWidth} * kFilmHeight * 4;

/// How a film is stored, by the ending of its name; a key frame every second or two, so that seeking is
/// quick.
QString codecs(const QString& ending) {
    if (ending == u"mkv")
        return QStringLiteral(
            "-c:v libx264 -preset fast -crf 21 -pix_fmt yuv420p -g 40 -c:a libopus -b:a 96k -f matroska");
    return QStringLiteral("-c:v mpeg4 -vtag XVID -q:v 6 -g 20 -bf 0 -c:a pcm_s16le -f avi");
}

QStringList arguments(const QString& sound, const QString& output) {
    const QString input = QStringLiteral("-v error -y -f rawvideo -pix_fmt bgr0 -s %1x%2 -r %3 -i - -i")
                              .arg(kFilmWidth)
                              .arg(kFilmHeight)
                              .arg(kFramesPerSecond);
    const QString film = QStringLiteral("-map 0:v -map 1:a -threads 1 -fflags +bitexact ");
    return input.split(u' ') + QStringList{sound} + (film + codecs(QFileInfo(output).suffix())).split(u' ') +
           QStringList{output};
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
    const QString made = folder.filePath(QStringLiteral("film.") + QFileInfo(file).suffix().toLower());
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
