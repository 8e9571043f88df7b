#pragma once

#include <QByteArray>
#include <QImage>
#include <QRegion>
#include <QSize>

namespace sarne::disc {

/// A picture as films store it: a plane of brightness, then two of colour, which are half as wide and high
/// (planar YUV 4:2:0 of ITU-R BT.601, 16 to 235). Only what changed is converted again.
class PlanarFrame {
  public:
    /// A black picture; \a size is even both ways.
    explicit PlanarFrame(const QSize& size);

    /// Takes over what lies in \a changed of a picture of this size with 32 bits a pixel.
    void update(const QImage& picture, const QRegion& changed);
    /// The planes one behind the other; valid until the next change.
    const QByteArray& bytes() const { return bytes_; }

  private:
    void convertBlockRow(const QImage& picture, int y, int left, int right);

    QSize size_;
    QByteArray bytes_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
