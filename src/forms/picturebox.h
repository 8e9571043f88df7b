#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <functional>
#include <optional>
#include <vector>

#include "forms/control.h"
#include "forms/picture.h"
#include "forms/readabletext.h"
#include "richtext/surface.h"

namespace sarne {

/// A drawing surface that remembers what was drawn, so that it can be shown at any scale and scrolled.
/// Content may be taller than the box.
class PictureBox : public Control, public Surface {
    Q_OBJECT
  public:
    /// Paints content of its own; gets the part that shows, in twips of the content.
    using Painter = std::function<void(QPainter&, const QRect& visible)>;

    PictureBox(Form& form, const QString& name);

    /// Forgets everything drawn and goes back to the upper left corner and the top.
    virtual void Cls();
    void setPicture(const Picture& picture, Fit fit = Fit::Inside);
    void drawPicture(const Picture& picture, const QRect& place, Fit fit = Fit::Inside);
    /// Adds content that paints itself, \a height twips tall.
    void addPainted(Painter painter, int height);
    /// The texts drawn since Cls(), top to bottom, one a line; for tests and for a screen reader.
    virtual QString drawnText() const;
    /// The same with the places on the surface.
    virtual ReadableText readableText() const;
    QAccessible::Role role() const override;

    int contentHeight() const { return contentHeight_; }
    int scrolled() const { return scrolled_; }
    /// Shows the content from \a y on, as far as there is content.
    void scrollTo(int y);
    void scrollBy(int twips) { scrollTo(scrolled_ + twips); }
    int scrollRange() const { return std::max(0, contentHeight_ - twips().height()); }

    /// Keeps \a twips at the right edge free of texts that are wrapped.
    void setRightMargin(int twips) { rightMargin_ = twips; }
    int scaleWidth() const override { return twips().width() - rightMargin_; }
    int scaleHeight() const override { return twips().height(); }
    int currentX() const override { return x_; }
    int currentY() const override { return y_; }
    void setCurrentX(int x) override { x_ = x; }
    void setCurrentY(int y) override { y_ = y; }
    const TextFont& font() const override { return font_; }
    void setFont(const TextFont& font) override;
    void setForeColor(const QColor& color) override { color_ = color; }
    int textWidth(const QString& text) const override;
    int textHeight(const QString& text) const override;
    int textAscent() const override;
    void print(const QString& text) override;
    void textOut(int x, int baseline, const QString& text) override;

  Q_SIGNALS:
    void scrolledTo(int y);

  protected:
    void paint(QPainter& painter) override;
    void wheelEvent(QWheelEvent* event) override;

    /// Called after content was added or cleared.
    virtual void contentChanged() {}
    /// How much larger than asked for its texts are.
    virtual double textScale() const { return 1; }

  private:
    struct Text {
        int x, baseline, top, bottom;
        QString text;
        TextFont font;
        QColor color;
    };
    struct Placed {
        Picture picture;
        QRect place;
        Fit fit;
    };
    void grow(int bottom);
    const QFontMetricsF& metrics() const;

    std::vector<Text> texts_;
    std::vector<Placed> pictures_;
    std::vector<Painter> painters_;
    int contentHeight_ = 0, scrolled_ = 0;
    int x_ = 0, y_ = 0, rightMargin_ = 0;
    TextFont font_;
    mutable std::optional<QFontMetricsF> metrics_;  // of the font, when they have been asked for
    QColor color_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
