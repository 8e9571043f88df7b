#pragma once

#include "forms/control.h"
#include "forms/largertext.h"
#include "forms/picture.h"
#include "richtext/surface.h"

namespace sarne {

/// A picture that can be clicked: its face, a frame around it that tells its state, and perhaps a caption.
/// With neither face nor frame it is a hot area on the form's own picture.
class Button : public Control {
    Q_OBJECT
  public:
    enum class Frame { None, Raised, Pressed };
    enum class CaptionPlace {
        Over,   ///< in the middle of the button
        Below,  ///< below a square button, on up to two lines, on one below a low button; the face fills 60 %
                ///< of the square
        Beside,  ///< right of the face
    };

    Button(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Button; }
    QRect focusPlace() const override { return framePlace(); }

    void setFace(const Picture& face);
    /// The frame at rest. While the mouse is down on a raised button its frame is the pressed one.
    void setFrame(Frame frame);
    Frame frame() const { return frame_; }
    /// \a pressed for good, as long as what the button opens is what shows; else raised.
    void setLatched(bool pressed) { setFrame(pressed ? Frame::Pressed : Frame::Raised); }
    void setCaption(const QString& caption);
    QString caption() const { return caption_; }
    /// Whether the caption is as large as the eyes want texts.
    bool captionIsLarge() const;
    void setCaptionPlace(CaptionPlace place);
    void setFont(const TextFont& font);
    /// A ground behind face and caption; by default there is none.
    void setGround(const QColor& color);
    /// Makes it a button with \a caption on the program's plate for texts, instead of a framed picture.
    void dressAsText(const QString& caption, const QString& tip = {});

    /// Where the frame, or without one the face, is drawn, in twips of the button.
    QRect framePlace() const;
    /// Where the face is drawn.
    QRect facePlace() const;

  protected:
    void paint(QPainter& painter) override;
    void changeEvent(QEvent* event) override;

  private:
    Frame shownFrame() const;
    QRect captionRoom() const;
    void paintFrame(QPainter& painter, const QRect& place) const;
    void paintCaption(QPainter& painter) const;
    int captionFlags() const;
    bool isAlike(const Button& other) const;
    double roomToGrow() const;
    double growth() const;

    Picture face_, raised_, pressed_;
    Frame frame_ = Frame::None;
    QString caption_;
    CaptionPlace captionPlace_ = CaptionPlace::Over;
    TextFont font_;
    QColor ground_ = Qt::transparent;
    RoomToGrow room_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
