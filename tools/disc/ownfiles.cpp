#include "ownfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace sarne::disc {
namespace {

constexpr int kTimeout = 60'000;
/// What a photo may have at most in memory, in megabytes; cameras stay far below.
constexpr int kMostMemory = 2048;

const QStringList& pictures() {
    static const QStringList all{QStringLiteral("jpg"),  QStringLiteral("jpeg"), QStringLiteral("png"),
                                 QStringLiteral("webp"), QStringLiteral("heic"), QStringLiteral("heif"),
                                 QStringLiteral("avif"), QStringLiteral("tif"),  QStringLiteral("tiff")};
    return all;
}

const QStringList& recordings() {
    static const QStringList all{QStringLiteral("wav"), QStringLiteral("flac"), QStringLiteral("ogg"),
                                 QStringLiteral("mp3"), QStringLiteral("opus"), QStringLiteral("m4a")};
    return all;
}

const QStringList& films() {
    static const QStringList all{QStringLiteral("mp4"), QStringLiteral("mkv"),  QStringLiteral("mov"),
                                 QStringLiteral("avi"), QStringLiteral("webm"), QStringLiteral("m4v"),
                                 QStringLiteral("mpg"), QStringLiteral("mpeg"), QStringLiteral("wmv"),
                                 QStringLiteral("3gp"), QStringLiteral("ogv")};
    return all;
}

QString beside(const QString& stem, const QStringList& endings) {
    const QFileInfo wanted(stem);
    const QString begin = wanted.fileName() + u'.';
    QString best;
    qsizetype bestRank = endings.size();
    for (const QFileInfo& file : QDir(wanted.path()).entryInfoList(QDir::Files, QDir::Name)) {
        if (!file.fileName().startsWith(begin)) continue;
        const qsizetype rank = endings.indexOf(file.fileName().mid(begin.size()).toLower());
        if (rank < 0 || rank >= bestRank) continue;
        bestRank = rank;
        best = file.filePath();
    }
    return best;
}

bool isLeftToConverter(const QString& file) {
    static const QStringList endings{QStringLiteral("heic"), QStringLiteral("heif"), QStringLiteral("avif")};
    return endings.contains(QFileInfo(file).suffix().toLower());
}

/// ImageMagick reads the pictures of telephones only where it was built so.
bool hasConverter() {
    for (const char* name : {"heif-convert", "heif-dec"})
        if (!QStandardPaths::findExecutable(QLatin1String(name)).isEmpty()) return true;
    QProcess process;
    process.start(QStringLiteral("convert"), {QStringLiteral("-list"), QStringLiteral("format")});
    return process.waitForFinished(kTimeout) && process.readAllStandardOutput().contains("HEIC");
}

/// By the first converter that the system has.
QImage converted(const QString& file) {
    const QTemporaryDir folder;
    const QString made = folder.filePath(QStringLiteral("obraz.png"));
    for (const char* name : {"heif-convert", "heif-dec", "magick", "convert"}) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(name));
        if (program.isEmpty()) continue;
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, {file, made});
        if (!process.waitForFinished(kTimeout) || process.exitCode() != 0) continue;
        if (QImage picture(made); !picture.isNull()) return picture;
    }
    return {};
}

/// Whether a JPEG goes on to its end mark; those of the small pictures within its headers do not count.
bool isWholeJpeg(const QByteArray& bytes) {
    const auto at = [&](qsizetype i) { return i < bytes.size() ? static_cast<uchar>(bytes[i]) : 0; };
    qsizetype i = 2;
    while ((i = bytes.indexOf('\xff', i)) >= 0) {
        const int mark = at(i + 1);
        if (mark == 0xd9) return true;
        const bool isData = mark == 0 || (mark >= 0xd0 && mark <= 0xd7);
        i += mark == 0xff ? 1 : isData ? 2 : 2 + at(i + 2) * 256 + at(i + 3);
    }
    return false;
}

/// Readers fill what is missing of a file that was cut off with grey.
bool isWhole(const QString& name, const QByteArray& format) {
    QFile file(name);
    if ((format != "jpeg" && format != "png") || !file.open(QIODevice::ReadOnly)) return true;
    const QByteArray bytes = file.readAll();
    return format == "png" ? bytes.contains("IEND") : isWholeJpeg(bytes);
}

}  // namespace

QString ownPicture(const QString& stem) {
    return beside(stem, pictures());
}

QString ownRecording(const QString& stem) {
    return beside(stem, recordings());
}

QString ownFilm(const QString& stem) {
    return beside(stem, films());
}

bool isOwnFile(const QString& name) {
    const QString ending = QFileInfo(name).suffix().toLower();
    return pictures().contains(ending) || recordings().contains(ending) || films().contains(ending);
}

QString whyUnreadable(const QString& file) {
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    if (reader.canRead())
        return isWhole(file, reader.format())
                   ? QString()
                   : QStringLiteral("obrázek není celý, soubor končí dřív; zkopírujte ho znovu");
    if (!isLeftToConverter(file)) return QStringLiteral("obrázek nejde přečíst");
    static const bool canConvert = hasConverter();
    return canConvert ? QString()
                      : QStringLiteral(
                            "obrázky HEIC a AVIF tu nemá co přečíst: doinstalujte heif-convert (balík "
                            "libheif-examples), nebo fotografii uložte jako JPEG");
}

QImage readPicture(const QString& file) {
    QImageReader::setAllocationLimit(kMostMemory);
    QImageReader reader(file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull() && isLeftToConverter(file)) picture = converted(file);
    return picture;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
