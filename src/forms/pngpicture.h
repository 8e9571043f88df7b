#pragma once

#include <QByteArrayView>
#include <QImage>

namespace sarne {

/// The PNG picture in \a encoded, decoded at once: the toolkit would first load its decoders of all other
/// formats, and most of the program's pictures are PNG. Null when it is broken, or too large for a picture of
/// this program.
QImage decodePng(QByteArrayView encoded);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
