#include "forms/button.h"

#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "core/unbreakable.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"
#include "forms/ninepatch.h"
#include "forms/resources.h"

namespace sarne {
namespace {

constexpr int kFrameTwips = 90;                 // thickness of a frame
constexpr int kRingRoom = 60;                   // around a frame, for the ring that shows the keyboard
constexpr int kPressedShift = 15;               // a pressed face moves by one design pixel
constexpr int kTwoLines = 430, kOneLine = 245;  // twips below a square button for its caption
constexpr int kLow = 1000;                      // twips: a lower button has room for one line
constexpr double kFaceSide = .775;              // of the square's side: 60 % of the square
const TextFont kTextFont{QStringLiteral("Arial"), 11, true}, kNameFont{QStringLiteral("Arial"), 9};

}  // namespace

Button::Button(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
    raised_ = form.resources().picture(QStringLiteral("RamVen"));
    pressed_ = form.resources().picture(QStringLiteral("RamDovnitr"));
}

void Button::dressAsText(const QString& caption, const QString& tip) {
    raised_ = form().resources().picture(QStringLiteral("Tlacitko"));
    pressed_ = form().resources().picture(QStringLiteral("TlacitkoStisk"));
    setFrame(Frame::Raised);
    setFont(kTextFont);
    setCaption(caption);
    if (!tip.isEmpty()) setTip(tip);
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

void Button::setCaptionPlace(CaptionPlace place) {
    captionPlace_ = place;
    if (place == CaptionPlace::Below) font_ = kNameFont;
    update();
}

QRect Button::framePlace() const {
    QRect room({0, 0}, twips().size());
    if (captionPlace_ == CaptionPlace::Below) {
        // One line takes from the picture what a larger text needs; on two lines a short name has room.
        const int lines = room.height() < kLow ? int(kOneLine * form().textScale()) : kTwoLines;
        const int side = std::min(room.width(), room.height() - lines);
        room = QRect((room.width() - side) / 2, 0, side, side);
    }
    return frame_ == Frame::None ? room : room.adjusted(kRingRoom, kRingRoom, -kRingRoom, -kRingRoom);
}

QRect Button::facePlace() const {
    const QRect frame = framePlace();
    if (captionPlace_ == CaptionPlace::Below) {
        QRect face({}, QSize(int(frame.width() * kFaceSide), int(frame.height() * kFaceSide)));
        face.moveCenter(frame.center());
        return face;
    }
    QRect inside =
        frame_ == Frame::None ? frame : frame.adjusted(kFrameTwips, kFrameTwips, -kFrameTwips, -kFrameTwips);
    if (captionPlace_ == CaptionPlace::Beside) inside.setWidth(std::min(inside.height(), inside.width() / 2));
    return inside;
}

QRect Button::captionRoom() const {
    const QRect whole({0, 0}, twips().size());
    switch (captionPlace_) {
        case CaptionPlace::Below:
            return whole.adjusted(0, framePlace().bottom() + kRingRoom, 0, 0);
        case CaptionPlace::Beside:
            return face_.isNull() ? whole
                                  : framePlace().adjusted(facePlace().right(), 0, -2 * kFrameTwips, 0);
        default:
            return whole;
    }
}

Button::Frame Button::shownFrame() const {
    return frame_ == Frame::Raised && isDown() ? Frame::Pressed : frame_;
}

void Button::paintFrame(QPainter& painter, const QRect& place) const {
    if (form().eyes().hasContrast() && face_.isNull() && !caption_.isEmpty()) {
        painter.setPen(QPen(Qt::white, shownFrame() == Frame::Pressed ? 75 : 30));
        painter.setBrush(Qt::black);
        return painter.drawRoundedRect(place, 90, 90);
    }
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

int Button::captionFlags() const {
    switch (captionPlace_) {
        case CaptionPlace::Below:
            return Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
        case CaptionPlace::Beside:
            return Qt::AlignCenter | Qt::TextWordWrap;
        default:
            return Qt::AlignCenter | Qt::TextShowMnemonic;
    }
}

/// Buttons of one row or column; their sizes may differ by what a division leaves over.
bool Button::isAlike(const Button& other) const {
    constexpr int kNearly = 15;
    const QSize apart = other.twips().size() - twips().size();
    return other.captionPlace_ == captionPlace_ && other.font_ == font_ &&
           std::abs(apart.width()) < kNearly && std::abs(apart.height()) < kNearly &&
           !other.caption_.isEmpty() && other.isVisibleTo(&form()) == isVisibleTo(&form());
}

double Button::roomToGrow() const {
    // Nothing of the text touches the frame.
    constexpr QSize kOver(2 * (kRingRoom + kFrameTwips), 2 * kRingRoom + 30), kBeside(kRingRoom, kRingRoom);
    const QSize edge = captionPlace_ == CaptionPlace::Over     ? kOver
                       : captionPlace_ == CaptionPlace::Beside ? kBeside
                                                               : QSize(kRingRoom, 0);
    return room_.of(font_, form().textScale(), unbroken(caption_), captionRoom().size() - edge,
                    captionFlags());
}

/// Captions of buttons of one kind are of one size; names below pictures are as large as each can be, for
/// they are the smallest texts that there are.
double Button::growth() const {
    if (form().textScale() <= 1) return 1;
    if (captionPlace_ == CaptionPlace::Below) return roomToGrow();
    return growthOfAlike(*this, &Button::isAlike, &Button::roomToGrow);
}

bool Button::captionIsLarge() const {
    constexpr double kNearly = .9;  // of it: what is a little smaller needs no second name
    return growth() >= kNearly * form().textScale();
}

void Button::paintCaption(QPainter& painter) const {
    painter.setFont(larger(font_, growth()).toQFont());
    painter.setPen(captionPlace_ == CaptionPlace::Below ? colors::kTitle : QColor(Qt::white));
    painter.drawText(captionRoom(), captionFlags(), unbroken(caption_));
}

void Button::paint(QPainter& painter) {
    const QRect frame = framePlace();
    if (!isEnabled()) painter.setOpacity(colors::kDisabledFace);
    if (ground_.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground_);
        painter.drawRoundedRect(QRectF(frame).adjusted(23, 23, -23, -23), 90, 90);
    }
    const int shift = shownFrame() == Frame::Pressed ? kPressedShift : 0;
    face_.draw(painter, facePlace().translated(shift, shift), Fit::Inside);
    if (frame_ != Frame::None) paintFrame(painter, frame);
    if (!caption_.isEmpty()) {
        if (!isEnabled()) painter.setOpacity(colors::kDisabledText);
        paintCaption(painter);
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
