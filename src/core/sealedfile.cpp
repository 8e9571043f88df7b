#include "core/sealedfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <algorithm>

namespace sarne {
namespace {

constexpr qint64 kDigest = 16;  // bytes: MD5, the quickest; it guards against damage, not against people

/// The digest of the first \a size bytes of \a file; empty when they cannot be read.
QByteArray digestOf(QFile& file, qint64 size) {
    QCryptographicHash hash(QCryptographicHash::Md5);
    QByteArray piece(1 << 18, Qt::Uninitialized);
    for (qint64 left = size; left > 0;) {
        const qint64 read = file.read(piece.data(), std::min<qint64>(left, piece.size()));
        if (read <= 0) return {};
        hash.addData(QByteArrayView(piece).first(read));
        left -= read;
    }
    return hash.result();
}

}  // namespace

bool sealFile(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite)) return false;
    const QByteArray digest = digestOf(file, file.size());
    return file.seek(file.size()) && file.write(digest) == kDigest && file.flush();
}

bool isSealed(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || file.size() <= kDigest) return false;
    const QByteArray digest = digestOf(file, file.size() - kDigest);
    return digest.size() == kDigest && file.read(kDigest) == digest;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
