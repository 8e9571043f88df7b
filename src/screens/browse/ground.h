#pragma once

#include <QPainter>
#include <functional>

#include "forms/picture.h"
#include "forms/twipwidget.h"

namespace sarne {

/// A calm dark ground behind buttons and light texts.
void paintPlate(QPainter& painter, const QRectF& place);
/// A calm light ground behind dark texts.
void paintPaper(QPainter& painter, const QRectF& place);
/// A thin sheet of paper that lets the picture below show through, yet keeps dark texts readable on any.
void paintSheet(QPainter& painter, const QRectF& place);

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
