#pragma once

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QRandomGenerator>
#include <QSize>

#include "dishwords.h"

class QPainter;

namespace sarne::disc {

inline constexpr QSize kSketchSize(1600, 1200);

struct Spot {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Where a point above the table appears in the picture, by a description's "camera" line.
class DishCamera {
  public:
    explicit DishCamera(const DishLine& line);
    QPointF operator()(const Spot& spot) const;

  private:
    double turn_, high_, far_, lens_;
    QPointF aim_;
    double up_;
};

/// Closed outlines around 0, 0 in the description's unit.
using Outline = QList<QPointF>;
Outline ellipse(double rx, double ry, int corners = 40);
Outline box(double length, double width);
Outline fishOutline(double length, double width);
Outline horseshoeOutline(double radius);
Outline leafOutline(double length, double width);
Outline scaled(const Outline& outline, double factor);

/// Paints things as solids on a table: a soft shadow, sides, a top lit from the left.
class DishTable {
  public:
    DishTable(QPainter& painter, const DishCamera& camera, quint32 seed)
        : painter_(painter), camera_(camera), random_(seed) {}

    double chance(double from, double to) { return from + random_.generateDouble() * (to - from); }

    QPainterPath path(const Outline& outline, const QPointF& at, double turn, double z) const;
    void shadow(const Outline& outline, const QPointF& at, double turn, double z, double height);
    enum class Edge { soft, sharp };
    /// A body on \a outline; its top, for what is painted on it.
    QPainterPath solid(const Outline& outline, const QPointF& at, double turn, double z, double height,
                       const QColor& colour, Edge edge = Edge::soft);
    void light(const QPainterPath& top, const QColor& colour);
    /// A ball, pressed flat by \a flat (1 = not at all).
    void ball(const QPointF& at, double z, double radius, const QColor& colour, double flat = 1);
    /// Small flecks all over \a where: crumb, skin, grain.
    void fleck(const QPainterPath& where, const QColor& colour, int count, double size);

    QPainter& painter() { return painter_; }
    const DishCamera& camera() const { return camera_; }

  private:
    QPainter& painter_;
    const DishCamera& camera_;
    QRandomGenerator random_;
};

}  // namespace sarne::disc
