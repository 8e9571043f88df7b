#pragma once

#include <QImage>
#include <QSize>

namespace sarne {

/// The finer version of the picture in the file \a bmp (a native path), decoded for being shown in \a pixels:
/// a WebP or JPEG file that lies beside it under the same name and has more pixels. Null when there is none,
/// when it is broken, or when \a pixels are no more than the BMP has itself.
QImage readFiner(const QString& bmp, QSize pixels);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
