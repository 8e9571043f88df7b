#include "forms/buttonbar.h"

#include <algorithm>

#include "core/texts.h"
#include "forms/resources.h"

namespace sarne {

ButtonBar::ButtonBar(Form& form, const QString& name, std::span<const BarFace> faces,
                     const std::function<void(int)>& command)
    : form_(form) {
    for (const BarFace& face : faces) {
        const int index = count();
        auto* button = new Button(form, QStringLiteral("%1(%2)").arg(name).arg(index));
        button->setFrame(Button::Frame::Raised);
        button->setCaptionPlace(Button::CaptionPlace::Below);
        QObject::connect(button, &Button::clicked, &form, [&form, command, does = face.does, index] {
            does ? (form.*does)() : command(index);
        });
        buttons_.push_back(button);
        setFace(index, face);
    }
}

std::optional<int> ButtonBar::indexOf(const TwipWidget* button) const {
    const auto found = std::ranges::find(buttons_, button);
    if (found == buttons_.end()) return {};
    return static_cast<int>(found - buttons_.begin());
}

void ButtonBar::setFace(int index, const BarFace& face) {
    Button& button = (*this)[index];
    button.setFace(form_.resources().picture(QString::fromUtf8(face.picture)));
    button.setCaption(face.caption ? Texts::tr(face.caption) : QString());
    button.setTip(Texts::tr(face.tip));
}

void ButtonBar::placeRow(const QRect& room) {
    const auto shown =
        std::ranges::count_if(buttons_, [](const Button* button) { return !button->isHidden(); });
    int at = 0;
    for (Button* button : buttons_) {
        if (button->isHidden()) continue;
        const int width = room.width() / static_cast<int>(shown);
        button->place({room.x() + at++ * width, room.y(), width, room.height()});
    }
}

std::vector<TwipWidget*> ButtonBar::stops() const {
    std::vector<QRect> places;
    for (const Button* button : buttons_) places.push_back(button->twips());
    std::vector<TwipWidget*> stops;
    for (const int at : readingOrder(places)) stops.push_back(buttons_[static_cast<size_t>(at)]);
    return stops;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
