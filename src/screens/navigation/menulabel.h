#pragma once

#include <QPainter>

#include "forms/colors.h"
#include "forms/label.h"
#include "screens/navigation/menulayout.h"

namespace sarne {

/// One line of a menu: its text and, drawn beside it and no part of it, a triangle on the side on which its
/// submenu opens, or a note at the right end.
class MenuLabel : public Label {
  public:
    enum class Arrow { None, Left, Right };
    /// How much of the line a triangle takes.
    static constexpr int kArrowRoom = 240;

    using Label::Label;

    void setArrow(Arrow arrow) { arrow_ = arrow; }
    Arrow arrow() const { return arrow_; }
    void setNote(const QString& note) { note_ = note; }
    const QString& note() const { return note_; }
    /// The line that one is at has a frame, beside its ground.
    void setMarked(bool marked) {
        marked_ = marked;
        update();
    }

  protected:
    void paint(QPainter& painter) override {
        Label::paint(painter);
        if (marked_) paintMark(painter);
        const QRect place = QRect({0, 0}, twips().size()).adjusted(kMenuItemMargin, 0, -kMenuItemMargin, 0);
        if (arrow_ != Arrow::None) paintArrow(painter, place);
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, note_);
    }

  private:
    void paintMark(QPainter& painter) const {
        constexpr int kLine = 30;  // twips
        painter.save();
        painter.setPen(QPen(colors::kPaper, kLine, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(
            QRect({0, 0}, twips().size()).adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2));
        painter.restore();
    }
    void paintArrow(QPainter& painter, const QRect& place) const {
        const bool left = arrow_ == Arrow::Left;
        const QPointF tip(left ? place.left() : place.right(), place.center().y());
        const double back = left ? 90 : -90;
        painter.save();
        painter.setPen(Qt::NoPen);
        painter.setBrush(color() == colors::kPaper ? colors::kPaper : colors::kCopper);
        painter.drawPolygon(QPolygonF{tip, tip + QPointF(back, -75), tip + QPointF(back, 75)});
        painter.restore();
    }

    Arrow arrow_ = Arrow::None;
    QString note_;
    bool marked_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
