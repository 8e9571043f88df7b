#pragma once

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace sarne {

/// Reads a picture in a format that it has found out itself. A reader that is left to find out loads every
/// decoder that this machine has, which takes longer than the picture.
class PictureReader {
  public:
    /// \a file is a native path or a resource path.
    explicit PictureReader(const QString& file);
    explicit PictureReader(const QByteArray& encoded);

    QSize size() const { return reader_.size(); }
    /// The picture decoded for being shown in \a pixels (none: in its own): exactly those where the decoder
    /// gives them, or somewhat larger or smaller where that is quicker. Null when it is broken.
    QImage read(QSize pixels = {});
    /// The \a part of the picture, scaled to the size \a whole. Null when it is broken.
    QImage readPart(QSize whole, const QRect& part);

  private:
    void begin(QIODevice& device);

    QBuffer buffer_;
    QFile file_;
    QImageReader reader_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
