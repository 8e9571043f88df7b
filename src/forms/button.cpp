#include "forms/button.h"

#include <QPainter>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/form.h"
#include "forms/ninepatch.h"

namespace sarne {
namespace {

constexpr int kFrameTwips = 90;    // thickness of a frame
constexpr int kPressedShift = 15;  // a pressed face moves by one design pixel

}  // namespace

Button::Button(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void Button::setFace(const Picture& face) {
    face_ = face;
    update();
}

void Button::setFrame(Frame frame) {
    if (frame_ == frame) return;
    frame_ = frame;
    update();
}

void Button::setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(QString(caption).remove(u'&'));
    update();
}

void Button::setFont(const TextFont& font) {
    font_ = font;
    update();
}

void Button::setGround(const QColor& color) {
    ground_ = color;
    update();
}

void Button::setFramePictures(const Picture& raised, const Picture& pressed) {
    raised_ = raised;
    pressed_ = pressed;
}

Button::Frame Button::shownFrame() const {
    return frame_ == Frame::Raised && isDown() ? Frame::Pressed : frame_;
}

void Button::paintFrame(QPainter& painter, const QRect& place) const {
    const bool pressed = shownFrame() == Frame::Pressed;
    const Picture& picture = pressed ? pressed_ : raised_;
    if (!picture.isNull()) return drawNinePatch(painter, picture, place, kFrameTwips);
    // Without its picture a frame is drawn: light from the upper left, the other way round when pressed.
    const QColor light = colors::kCopper.lighter(140), dark = colors::kCopper.darker(220);
    QLinearGradient slope(place.topLeft(), place.bottomRight());
    slope.setColorAt(0, pressed ? dark : light);
    slope.setColorAt(1, pressed ? light : dark);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QBrush(slope), 45));
    painter.drawRoundedRect(QRectF(place).adjusted(23, 23, -23, -23), 90, 90);
}

void Button::changeEvent(QEvent* event) {
    Control::changeEvent(event);
    if (event->type() != QEvent::EnabledChange) return;
    // A button that does nothing shows its form's pointer: the way back, while another screen is open above.
    if (isEnabled())
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void Button::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    if (!isEnabled()) painter.setOpacity(colors::kDisabledFace);
    const bool pressed = shownFrame() == Frame::Pressed;
    QRect inside =
        frame_ == Frame::None ? place : place.adjusted(kFrameTwips, kFrameTwips, -kFrameTwips, -kFrameTwips);
    if (pressed) inside.translate(kPressedShift, kPressedShift);
    if (ground_.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground_);
        painter.drawRoundedRect(QRectF(place).adjusted(23, 23, -23, -23), 90, 90);
    }
    face_.draw(painter, inside, Fit::Inside);
    if (frame_ != Frame::None) paintFrame(painter, place);
    if (!caption_.isEmpty()) {
        if (!isEnabled()) painter.setOpacity(colors::kDisabledText);
        painter.setFont(font_.toQFont());
        painter.setPen(colors::kPaper);
        painter.drawText(inside, Qt::AlignCenter | Qt::TextShowMnemonic, caption_);
    }
    if (showsFocus()) paintFocusRing(painter, place);
}

}  // namespace sarne
