#pragma once

#include <QImage>
#include <QString>

namespace sarne {

/// Names a row or a column of \a screen that is plain black from end to end, or says nothing: every screen is
/// a place that goes on to the edges of the display.
QString blackLine(const QImage& screen);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
