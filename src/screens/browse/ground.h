#pragma once

#include <QPainter>
#include <functional>

#include "forms/panel.h"
#include "forms/picture.h"
#include "forms/twipwidget.h"

namespace sarne {

/// What lies behind a screen's controls and seldom changes, kept as it was painted: painting a part of the
/// screen anew then copies that part.
class Ground {
  public:
    /// Draws into \a place what \a paint paints, which is asked again only for another size or after
    /// forget().
    void draw(QPainter& painter, const QRectF& place, const std::function<void(QPainter&)>& paint);
    void forget() { kept_ = Picture(); }

  private:
    Picture kept_;
};

/// Has \a twips of \a widget painted anew.
void updatePart(TwipWidget& widget, const QRect& twips);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
