#pragma once

#include "forms/control.h"
#include "forms/largertext.h"
#include "richtext/surface.h"

namespace sarne {

/// A text of one font and colour. It lets the mouse through unless it is made clickable.
class Label : public Control {
    Q_OBJECT
  public:
    Label(Form& form, const QString& name);

    void setText(const QString& text);
    const QString& text() const { return text_; }
    void setFont(const TextFont& font);
    void setColor(const QColor& color);
    void setAlignment(Qt::Alignment alignment);
    /// A ground behind the text; by default there is none.
    void setGround(const QColor& color);
    void setWordWrap(bool wraps);
    /// A clickable label takes the mouse, shows a hand and lights up under it.
    void setClickable(bool clickable);
    /// By default a text is drawn larger for eyes that want that, as far as its place has room, and labels of
    /// one kind alike. Not so where the form has seen to the font's size.
    void setGrows(bool grows);
    /// Empty room at the text's ends.
    void setMargins(int left, int right);

    /// The size in twips that \a text takes: on its lines as they stand, or wrapped at \a width.
    static QSize measure(const QString& text, const TextFont& font, int width = 0);
    /// Grows or shrinks to the text: to its natural width, or, where \a width is given, to that width and as
    /// many lines as it needs.
    void autoSize(int width = 0);

  protected:
    void paint(QPainter& painter) override;
    void changeEvent(QEvent* event) override;
    const QColor& color() const { return color_; }
    const TextFont& font() const { return font_; }

  private:
    void showPointer();
    int flags() const;
    QRect textRoom() const;
    bool isAlike(const Label& other) const;
    double roomToGrow() const;
    double growth() const;

    QString text_;
    TextFont font_;
    QColor color_;
    QColor ground_ = Qt::transparent;
    Qt::Alignment alignment_ = Qt::AlignLeft | Qt::AlignTop;
    int left_ = 0, right_ = 0;
    bool wraps_ = false, clickable_ = false, grows_ = true;
    RoomToGrow room_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
