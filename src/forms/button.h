#pragma once

#include "forms/control.h"
#include "forms/picture.h"
#include "richtext/surface.h"

namespace sarne {

/// A picture that can be clicked: its face, a frame around it that tells its state, and perhaps a caption.
/// With neither face nor frame it is a hot area on the form's own picture.
class Button : public Control {
    Q_OBJECT
  public:
    enum class Frame { None, Raised, Pressed };

    Button(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Button; }

    void setFace(const Picture& face);
    /// The frame at rest. While the mouse is down on a raised button its frame is the pressed one.
    void setFrame(Frame frame);
    Frame frame() const { return frame_; }
    void setCaption(const QString& caption);
    QString caption() const { return caption_; }
    void setFont(const TextFont& font);
    /// A ground behind face and caption; by default there is none.
    void setGround(const QColor& color);
    /// The frames' pictures; they are drawn as nine patches, so that corners keep their size.
    void setFramePictures(const Picture& raised, const Picture& pressed);

  protected:
    void paint(QPainter& painter) override;
    void changeEvent(QEvent* event) override;

  private:
    Frame shownFrame() const;
    void paintFrame(QPainter& painter, const QRect& place) const;

    Picture face_, raised_, pressed_;
    Frame frame_ = Frame::None;
    QString caption_;
    TextFont font_;
    QColor ground_ = Qt::transparent;
};

}  // namespace sarne
