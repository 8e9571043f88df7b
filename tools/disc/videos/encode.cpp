#include "encode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>

#include "planarframe.h"

namespace sarne::disc {
namespace {

constexpr int kTimeout = 120'000;
/// Bytes that wait for ffmpeg before the next frame is drawn.
constexpr qint64 kAhead = 8 * qint64{kFilmWidth} * kFilmHeight * 3 / 2;

/// How a film is stored, by the ending of its name.
QString codecs(const QString& ending) {
    if (ending == u"mkv")
        return QStringLiteral(
            "-c:v libx264 -preset veryfast -x264-params subme=1:me=dia:weightp=0 -crf 21.7 -pix_fmt yuv420p "
            "-g 100 -c:a libopus -b:a 48k -f "
            "matroska");
    return QStringLiteral(
        "-c:v mpeg4 -vtag XVID -q:v 5 -g 150 -bf 0 -sc_threshold 1000000000 -c:a libmp3lame -b:a 80k -ac 1 "
        "-f avi");
}

/// Where the film can be entered at once.
QString keyFrames(const Film& film) {
    QStringList times{QStringLiteral("0")};
    for (const Chapter& chapter : film.chapters) times << QString::number(chapter.begin, 'f', 3);
    return times.join(u',');
}

QStringList arguments(const Film& film, const QString& sound, const QString& output) {
    const QString input = QStringLiteral("-v error -y -f rawvideo -pix_fmt yuv420p -s %1x%2 -r %3 -i - -i")
                              .arg(kFilmWidth)
                              .arg(kFilmHeight)
                              .arg(kFramesPerSecond);
    const QString made =
        QStringLiteral("-map 0:v -map 1:a -threads 1 -fflags +bitexact -force_key_frames %1 ")
            .arg(keyFrames(film));
    return input.split(u' ') + QStringList{sound} + (made + codecs(QFileInfo(output).suffix())).split(u' ') +
           QStringList{output};
}

bool sendFrames(QProcess& encoder, const Film& film, Projector& projector) {
    const int count = static_cast<int>(film.seconds * kFramesPerSecond);
    PlanarFrame planar(QSize(kFilmWidth, kFilmHeight));
    for (int i = 0; i < count; ++i) {
        const QImage& picture = projector.frame(static_cast<double>(i) / kFramesPerSecond);
        planar.update(picture, projector.changed());
        encoder.write(planar.bytes());
        while (encoder.bytesToWrite() > kAhead)
            if (!encoder.waitForBytesWritten(kTimeout)) return false;
    }
    return true;
}

/// Puts a finished film in its place.
bool moveTo(const QString& made, const QString& file) {
    QFile::remove(file);
    return QFile::rename(made, file) || QFile::copy(made, file);
}

}  // namespace

bool convertFilm(const QString& source, const QString& file, const QString& scratch) {
    QDir().mkpath(scratch);
    const QTemporaryDir folder(scratch + QStringLiteral("/film"));
    const QString ending = QFileInfo(file).suffix().toLower();
    const QString made = folder.filePath(QStringLiteral("film.") + ending);
    // The whole picture, with bars where its shape is another one.
    const QString shape =
        QStringLiteral("scale=%1:%2:force_original_aspect_ratio=decrease,pad=%1:%2:-1:-1,setsar=1")
            .arg(kFilmWidth)
            .arg(kFilmHeight);
    const QStringList arguments = QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"),
                                              QStringLiteral("error"),    QStringLiteral("-y"),
                                              QStringLiteral("-i"),       source,
                                              QStringLiteral("-map"),     QStringLiteral("0:v:0"),
                                              QStringLiteral("-map"),     QStringLiteral("0:a:0?"),
                                              QStringLiteral("-vf"),      shape,
                                              QStringLiteral("-r"),       QString::number(kFramesPerSecond),
                                              QStringLiteral("-fflags"),  QStringLiteral("+bitexact")} +
                                  codecs(ending).split(u' ') + QStringList{made};
    return QProcess::execute(QStringLiteral("ffmpeg"), arguments) == 0 && moveTo(made, file);
}

bool encodeFilm(const Film& film, Projector& projector, const Sound& sound, const QString& file,
                const QString& scratch) {
    const QTemporaryDir folder(scratch + QStringLiteral("/film"));
    const QString wave = folder.filePath(QStringLiteral("zvuk.wav"));
    const QString made = folder.filePath(QStringLiteral("film.") + QFileInfo(file).suffix().toLower());
    if (!writeWav(wave, sound)) return false;
    QProcess encoder;
    encoder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    encoder.start(QStringLiteral("ffmpeg"), arguments(film, wave, made));
    if (!encoder.waitForStarted() || !sendFrames(encoder, film, projector)) return false;
    encoder.closeWriteChannel();
    if (!encoder.waitForFinished(kTimeout) || encoder.exitCode() != 0) return false;
    return moveTo(made, file);
}

bool writeChapters(const Film& film, const QString& file) {
    QString text;
    for (const Chapter& chapter : film.chapters)
        text += QStringLiteral("%1\t%2\n").arg(chapter.begin, 0, 'f', 2).arg(chapter.title);
    QSaveFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(text.toUtf8()) >= 0 && out.commit();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
