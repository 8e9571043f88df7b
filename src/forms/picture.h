#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <memory>

class QPainter;
class QPixmap;

namespace sarne {

enum class Fit {
    Stretch,  ///< fills the place
    Inside,   ///< as large as fits, proportions kept, in the middle
    Cover,    ///< fills the place, proportions kept, what stands over cut off
};

/// A picture that is decoded only when it is drawn, at the size that it is drawn in. Copies share it. An
/// empty or broken one draws nothing.
class Picture {
  public:
    Picture() = default;
    /// From the bytes of a BMP, JPEG or PNG file.
    static Picture fromData(const QByteArray& encoded);
    /// From a file with a native path or a resource path; empty when there is none.
    static Picture fromFile(const QString& file);
    static Picture fromImage(const QImage& image);

    bool isNull() const { return !source_; }
    /// The picture's own size in its own pixels; empty when it is broken.
    QSize size() const;

    /// Draws into \a place, in the painter's units.
    void draw(QPainter& painter, const QRectF& place, Fit fit = Fit::Stretch) const;
    /// Draws the picture's own pixels into exactly \a place, which may begin and end within a pixel: for a
    /// picture that continues another one below it. draw() is sharper, and takes whole pixels.
    void drawExactly(QPainter& painter, const QRectF& place) const;
    QImage image() const;
    /// The picture in exactly \a pixels, decoded for this once and not kept. Null when it is broken.
    QImage scaled(QSize pixels) const;
    /// The \a part of what scaled() would give for \a whole.
    QImage scaledPart(QSize whole, const QRect& part) const;
    QPixmap pixmap(QSize pixels) const;

    /// Where a picture of \a picture's proportions lies in \a place.
    static QRectF fitted(QSizeF picture, const QRectF& place, Fit fit);

  private:
    struct Source;
    std::shared_ptr<Source> source_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
