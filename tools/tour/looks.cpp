#include "looks.h"

#include <QFile>
#include <algorithm>
#include <cstdlib>

namespace sarne {
namespace {

constexpr QSize kCells(8, 6);
constexpr double kTolerance = 0.05;

}  // namespace

Looks::Looks(QString file, QString size) : file_(std::move(file)), size_(std::move(size)) {
    QFile kept(file_);
    if (file_.isEmpty() || !kept.open(QIODevice::ReadOnly)) return;
    while (!kept.atEnd()) {
        const QList<QByteArray> words = kept.readLine().trimmed().split(' ');
        if (words.size() == 3)
            kept_.insert(QString::fromUtf8(words[0] + ' ' + words[1]), QByteArray::fromBase64(words[2]));
    }
}

QByteArray Looks::of(const QImage& picture) {
    const QImage cells = picture.scaled(kCells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_RGB888);
    QByteArray bytes;
    for (int y = 0; y < cells.height(); ++y)
        bytes += QByteArray(reinterpret_cast<const char*>(cells.constScanLine(y)), 3 * cells.width());
    return bytes;
}

double Looks::difference(const QByteArray& one, const QByteArray& other) {
    if (one.size() != other.size() || one.isEmpty()) return 1;
    double sum = 0;
    for (qsizetype i = 0; i < one.size(); ++i) sum += std::abs(uchar(one[i]) - uchar(other[i]));
    return sum / 255 / double(one.size());
}

QString Looks::fault(const QString& name, const QImage& picture) {
    const QString place = size_ + u' ' + name;
    const QByteArray now = of(picture);
    // What is hardly another is kept as it was: what changed is to be seen in the file.
    seen_[place] = difference(kept_.value(place), now) < kTolerance / 5 ? kept_.value(place) : now;
    if (file_.isEmpty()) return {};
    if (!kept_.contains(place)) return QStringLiteral("%1: nobody has said how it is to look").arg(name);
    const double apart = difference(kept_[place], now);
    if (apart <= kTolerance) return {};
    return QStringLiteral("%1: looks other than it did, by %2 %").arg(name).arg(100 * apart, 0, 'f', 0);
}

bool Looks::accept() const {
    QMap<QString, QByteArray> all = seen_;
    for (auto one = kept_.cbegin(); one != kept_.cend(); ++one)
        if (!one.key().startsWith(size_ + u' ')) all.insert(one.key(), one.value());
    QFile file(file_);
    if (!file.open(QIODevice::WriteOnly)) return false;
    for (auto one = all.cbegin(); one != all.cend(); ++one)
        file.write(one.key().toUtf8() + ' ' + one.value().toBase64() + '\n');
    return file.flush();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
