#include "forms/picturefile.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <utility>

namespace sarne {
namespace {

constexpr qsizetype kHead = 24;  // bytes that tell a format and of PNG the size

QByteArray formatOf(QByteArrayView head) {
    if (head.startsWith("\xff\xd8\xff")) return "jpeg";
    if (head.startsWith("\x89PNG")) return "png";
    if (head.startsWith("BM")) return "bmp";
    if (head.startsWith("RIFF") && head.sliced(8).startsWith("WEBP")) return "webp";
    return {};
}

QSize pngSize(QByteArrayView head) {
    return {qFromBigEndian<qint32>(head.data() + 16), qFromBigEndian<qint32>(head.data() + 20)};
}

}  // namespace

PictureFile::PictureFile(const QString& file) : QFile(file) {}

PictureFile::PictureFile(QByteArray encoded) : encoded_(std::move(encoded)) {
    if (encoded_.isNull()) encoded_ = "";
}

// Of bytes a file's own ways are passed by: there is no file to be asked.
// NOLINTBEGIN(bugprone-parent-virtual-call)

PictureFile::~PictureFile() {
    PictureFile::close();
}

bool PictureFile::begin() {
    if (!(isFile() ? open(ReadOnly) : QIODevice::open(ReadOnly))) return false;
    const QByteArray head = peek(kHead);
    if (head.size() < kHead) return true;
    format_ = formatOf(head);
    if (format_ == "png") pixels_ = pngSize(head);
    return true;
}

QString PictureFile::fileName() const {
    return format_.isEmpty() ? QFile::fileName() : u'.' + QLatin1String(format_);
}

void PictureFile::close() {
    isFile() ? QFile::close() : QIODevice::close();
}

qint64 PictureFile::size() const {
    return isFile() ? QFile::size() : encoded_.size();
}

bool PictureFile::seek(qint64 place) {
    return isFile() ? QFile::seek(place) : QIODevice::seek(place);
}

qint64 PictureFile::readLineData(char* data, qint64 wanted) {
    return isFile() ? QFile::readLineData(data, wanted) : QIODevice::readLineData(data, wanted);
}

bool PictureFile::atEnd() const {
    return isFile() ? QFile::atEnd() : QIODevice::atEnd();
}

// NOLINTEND(bugprone-parent-virtual-call)

qint64 PictureFile::readData(char* data, qint64 wanted) {
    if (isFile()) return QFile::readData(data, wanted);
    const qint64 had = std::min(wanted, encoded_.size() - pos());
    if (had <= 0) return -1;
    std::memcpy(data, encoded_.constData() + pos(), size_t(had));
    return had;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
