#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

#include "dishtable.h"
#include "dishwords.h"

namespace sarne::disc {

/// Draws what lies on plates: each thing at a place, turned by \a turn degrees, standing on the height \a z.
class DishThings {
  public:
    explicit DishThings(DishTable& table) : table_(table) {}

    /// Draws the thing that \a line names, in the size that the line gives it.
    void draw(const DishLine& line, const QPointF& at, double turn, double z);

  private:
    void shape(const DishThing& how, const DishLine& line, const QPointF& at, double turn, double z,
               double length, double width, const QColor& colour);
    /// Chunks of eel with sage between them.
    void skewer(int chunks, const QPointF& at, double turn, double z);
    /// What lies on, or shows in, a slice.
    void garnish(const QString& thing, const DishThing& how, const QPointF& at, double turn, double z);
    void disc(const DishThing& how, const QPointF& at, double turn, double z, double length, double width,
              const QColor& colour);
    void mound(const QPointF& at, double z, double radius, double height, const QColor& colour);
    /// A heap of fried strips.
    void strips(const QPointF& at, double z);
    void ring(const QPointF& at, double z, double radius, const QColor& colour);
    void leaf(const QPointF& at, double turn, double z, double length, double width, const QColor& colour);
    void sprig(const QPointF& at, double turn, double z, double length, const QColor& colour);
    void egg(const DishThing& how, const QPointF& at, double turn, double z, double size,
             const QColor& colour);
    void fish(const DishThing& how, const DishLine& line, const QPointF& at, double turn, double z,
              double length, const QColor& colour);
    void horseshoe(const DishThing& how, const QPointF& at, double turn, double z, double size,
                   const QColor& colour);
    void crust(const DishThing& how, const QPointF& at, double turn, double z, double length, double width,
               const QColor& colour);

    DishTable& table_;
};

}  // namespace sarne::disc
