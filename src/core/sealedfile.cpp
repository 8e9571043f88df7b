#include "core/sealedfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>

namespace sarne {
namespace {

constexpr qint64 kDigest = 16;  // bytes

/// A digest that is found as quickly as the file is read. It guards against damage, not against people: any
/// one of the file's words that is another one makes it another one.
class Sums {
  public:
    /// All pieces but the last are whole blocks.
    void addData(QByteArrayView piece);
    QByteArray result() const;

  private:
    static constexpr qsizetype kLanes = 4, kWord = sizeof(quint64), kBlock = kLanes * kWord;
    static constexpr quint64 kFactor = 0x9e3779b97f4a7c15;  // odd, its bits evenly strewn

    static quint64 mixed(quint64 sum, quint64 word) { return std::rotl((sum ^ word) * kFactor, 29); }
    void addBlock(const char* block);

    std::array<quint64, kLanes> sums_{1, 2, 3, 4};
    quint64 size_ = 0;
};

void Sums::addBlock(const char* block) {
    for (size_t lane = 0; lane < kLanes; ++lane)
        sums_[lane] = mixed(sums_[lane], qFromLittleEndian<quint64>(block + lane * kWord));
}

void Sums::addData(QByteArrayView piece) {
    size_ += quint64(piece.size());
    const qsizetype whole = piece.size() / kBlock * kBlock;
    for (qsizetype at = 0; at < whole; at += kBlock) addBlock(piece.data() + at);
    if (whole == piece.size()) return;
    QByteArray last = piece.sliced(whole).toByteArray();
    addBlock(last.append(kBlock - last.size(), '\0').constData());
}

QByteArray Sums::result() const {
    const quint64 halves[] = {qToLittleEndian(mixed(sums_[0], size_) + mixed(sums_[1], 1)),
                              qToLittleEndian(mixed(sums_[2], size_) + mixed(sums_[3], 1))};
    return {reinterpret_cast<const char*>(halves), sizeof halves};
}

/// What discs were sealed with before.
class Md5 : public QCryptographicHash {
  public:
    Md5() : QCryptographicHash(QCryptographicHash::Md5) {}
};

/// The digest of the first \a size bytes of \a file; empty when they cannot be read.
template <class Digest>
QByteArray digestOf(QFile& file, qint64 size) {
    if (!file.seek(0)) return {};
    Digest digest;
    QByteArray piece(1 << 18, Qt::Uninitialized);
    for (qint64 left = size; left > 0;) {
        const qint64 wanted = std::min<qint64>(left, piece.size());
        if (file.read(piece.data(), wanted) != wanted) return {};
        digest.addData(QByteArrayView(piece).first(wanted));
        left -= wanted;
    }
    return digest.result();
}

template <class Digest>
bool isSealedBy(QFile& file) {
    const QByteArray digest = digestOf<Digest>(file, file.size() - kDigest);
    return digest.size() == kDigest && file.read(kDigest) == digest;
}

}  // namespace

bool sealFile(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite)) return false;
    const QByteArray digest = digestOf<Sums>(file, file.size());
    return file.seek(file.size()) && file.write(digest) == kDigest && file.flush();
}

bool isSealed(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || file.size() <= kDigest) return false;
    return isSealedBy<Sums>(file) || isSealedBy<Md5>(file);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
