#pragma once

#include <QImageReader>

#include "forms/picturefile.h"

namespace sarne {

/// Reads a picture, with no other decoder loaded than its own where the toolkit keeps decoders apart.
class PictureReader {
  public:
    /// \a file is a native path or a resource path.
    explicit PictureReader(const QString& file);
    explicit PictureReader(const QByteArray& encoded);

    QSize size() const { return file_.pixels().isEmpty() ? reader_.size() : file_.pixels(); }
    /// The picture decoded for being shown in \a pixels (none: in its own): exactly those where the decoder
    /// gives them, or somewhat larger or smaller where that is quicker. Null when it is broken.
    QImage read(QSize pixels = {});
    /// The \a part of the picture, scaled to the size \a whole. Null when it is broken.
    QImage readPart(QSize whole, const QRect& part);

  private:
    void begin();
    /// The picture where the file is cut off is black: the decoder of BMP leaves there what the memory held.
    QImage readOver();

    PictureFile file_;
    QImageReader reader_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
