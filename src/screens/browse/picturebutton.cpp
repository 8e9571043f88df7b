#include "screens/browse/picturebutton.h"

#include <QPainter>

#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/resources.h"

namespace sarne {
namespace {

constexpr int kInset = 110;  // from the button's edge to its face, so that a frame has room
constexpr int kShift = 15;   // how far a pressed face moves
constexpr int kRounding = 150;
constexpr double kWordPoints = 12;

}  // namespace

PictureButton::PictureButton(Form& form, const QString& name) : Button(form, name) {}

void PictureButton::dress(basSarne& app, const QString& face, const QString& word, Word shown) {
    Resources& resources = app.resources();
    face_ = resources.picture(face);
    word_ = word;
    shown_ = shown;
    setFramePictures(resources.picture(QStringLiteral("RamVen")),
                     resources.picture(QStringLiteral("RamDovnitr")));
    update();
}

void PictureButton::setLatched(bool latched) {
    latched_ = latched;
    chooseFrame();
}

void PictureButton::chooseFrame() {
    setFrame(latched_ ? Frame::Pressed : hovered_ ? Frame::Raised : Frame::None);
}

void PictureButton::enterEvent(QEnterEvent* event) {
    Button::enterEvent(event);
    hovered_ = true;
    chooseFrame();
}

void PictureButton::leaveEvent(QEvent* event) {
    Button::leaveEvent(event);
    hovered_ = false;
    chooseFrame();
}

void PictureButton::paint(QPainter& painter) {
    const QRect whole({0, 0}, twips().size());
    painter.save();
    if (!isEnabled()) painter.setOpacity(colors::kDisabledFace);
    QRect inside = whole.adjusted(kInset, kInset, -kInset, -kInset);
    if (isDown() || latched_) inside.translate(kShift, kShift);
    QRect face = inside, word = whole;
    const bool beside = shown_ == Word::Beside && !face_.isNull();
    if (beside) {
        face.setWidth(std::min(inside.height(), inside.width() / 2));
        word.setLeft(face.right());
    }
    face_.draw(painter, face, Fit::Inside);
    if (beside || face_.isNull()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors::kCopper, 15));
        painter.drawRoundedRect(whole.adjusted(45, 45, -45, -45), kRounding, kRounding);
        if (!isEnabled()) painter.setOpacity(colors::kDisabledText);
        painter.setFont(TextFont{QStringLiteral("Arial"), kWordPoints}.toQFont());
        painter.setPen(colors::kTitle);
        painter.drawText(word, Qt::AlignCenter | Qt::TextWordWrap, word_);
    }
    painter.restore();
    Button::paint(painter);
}

}  // namespace sarne
