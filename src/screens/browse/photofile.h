#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace sarne {

/// The photo in the file at the native path \a file; a null image when the file is missing, broken or cut
/// short.
QImage readPhoto(const QString& file);

/// The same, or its finer version where that shows more, scaled smoothly and undistorted to fit into \a room
/// pixels, in the format of the screen.
QImage readPhoto(const QString& file, QSize room);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
