#pragma once

#include <QCache>
#include <QPixmap>
#include <QSize>

namespace sarne {

/// The pictures as they were drawn last, each in its sizes, so that drawing them again is quick. They share
/// one room: what was not drawn for the longest time makes way, so what is kept does not grow with what was
/// seen. They belong to the thread that paints: what another thread decodes is handed over to it as an image.
class DrawnPictures {
  public:
    static DrawnPictures& shared();

    /// Keeps as much as fills a display of \a pixels three times: a screen's ground, what lies on it, and
    /// those of the screen before.
    void setDisplay(QSize pixels);

    /// What is kept of \a source in \a pixels; null when there is none.
    const QPixmap* find(const void* source, QSize pixels) const;
    /// Keeps \a drawn, unless it is larger than all the room.
    void keep(const void* source, const QPixmap& drawn);
    /// Takes away all sizes of \a source, which may not stand in for another one made in its place.
    void forget(const void* source);

    /// Of all that is kept, at four bytes a pixel.
    qint64 bytes() const { return qint64(kept_.totalCost()) * 1024; }

  private:
    struct Key {
        const void* source;
        QSize pixels;
        bool operator==(const Key&) const = default;
        friend size_t qHash(const Key& key, size_t seed) noexcept {
            return qHashMulti(seed, key.source, key.pixels.width(), key.pixels.height());
        }
    };
    static qsizetype kilobytes(QSize pixels);

    QCache<Key, QPixmap> kept_{3 * kilobytes({1920, 1080})};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
