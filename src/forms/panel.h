#pragma once

#include <QPainter>

#include "forms/picture.h"

namespace sarne {

/// The ground of dialogs and menus: dark teal, calm enough for texts, in a copper frame. \a ground, where
/// there is one, shows through.
void paintPanel(QPainter& painter, const QRect& place, const Picture& ground = {});
/// A calm dark ground behind buttons and light texts.
void paintPlate(QPainter& painter, const QRectF& place);
/// Paper with a copper edge, for dark texts to stand on.
void paintPaper(QPainter& painter, const QRectF& place);
/// A frame around the row \a place of a list on paper that is the selected one: its colour alone would not be
/// seen by everybody.
void paintRowFrame(QPainter& painter, const QRect& place);
/// A thin sheet of paper that lets the picture below show through, yet keeps dark texts readable on any.
void paintSheet(QPainter& painter, const QRectF& place);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
