#pragma once

#include <QRect>
#include <QWidget>

namespace sarne {

class Stage;

/// A widget placed and painted in twips. Only the Stage knows how many pixels a twip has; when that changes,
/// every widget re-applies its place and repaints.
class TwipWidget : public QWidget {
    Q_OBJECT
  public:
    /// Puts the widget at \a twips, relative to its parent's upper left corner.
    void place(const QRect& twips);
    void moveTo(QPoint twips) { place({twips, twips_.size()}); }
    const QRect& twips() const { return twips_; }

    /// Pixels of this window per twip.
    double scale() const { return scale_; }
    /// A position in this widget, in pixels, as twips.
    QPoint toTwips(QPointF pixels) const;
    /// Where a twip of this widget lies in the widget, in pixels. For tests and input methods.
    QPoint toPixels(QPoint twips) const;

    /// Where the widget has stops of its own for the keyboard, goes to the next one, \a direction 1 or -1,
    /// or to the first that way. False when there is none any more: the turn of the next widget.
    virtual bool stepInside(int /*direction*/) { return false; }

    /// Re-applies the place of this widget and of all within it.
    virtual void rescale();

  protected:
    explicit TwipWidget(QWidget* parent);

    /// Paints with one unit a twip; 0, 0 is the upper left corner of this widget's place.
    virtual void paint(QPainter& painter);
    /// Whether the widget covers the whole window, beyond its place to all sides. Its twips stay where they
    /// are.
    virtual bool fillsWindow() const { return false; }
    /// How much larger than its place the widget is drawn, with all within it; around the middle of its
    /// place, and whole on the stage. Only what lies on the stage itself is.
    virtual double enlargement() const { return 1; }
    /// What this widget covers, in its twips: its place, or more where it fills the window.
    QRectF covered() const;
    void paintEvent(QPaintEvent* event) override;

  private:
    friend class Stage;

    /// The place on the stage, in its twips, zoomed.
    QRectF enlargedPlace() const;

    QRect twips_;
    double scale_ = 1. / 15;
    QPointF exactOrigin_;  // of the place: pixels from the window's corner, unrounded
    QPoint pixelOrigin_;   // of the widget: pixels from the window's corner
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
