#pragma once

#include <QImage>
#include <QString>

namespace sarne::disc {

/// What stands in for the photo of a dish that has none: a plain plate with the dish's name, 1440 x 1080.
QImage plainPlate(const QString& name);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
