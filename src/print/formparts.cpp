#include "print/formparts.h"

#include <algorithm>

#include "forms/resources.h"

namespace sarne {

void dressButton(Button& button, const Resources& resources, const QString& caption, const QString& tip) {
    button.setFont(printforms::kButtonFont);
    button.setCaption(caption);
    button.setTip(tip);
    button.setFramePictures(resources.picture(QStringLiteral("Tlacitko")),
                            resources.picture(QStringLiteral("TlacitkoStisk")));
    button.setFrame(Button::Frame::Raised);
}

void dressCheckBox(CheckBox& box, const Resources& resources, const QString& caption) {
    box.setFont(printforms::kTextFont);
    box.setCaption(caption);
    box.setMarkPictures(resources.picture(QStringLiteral("Zaskrtnuto")),
                        resources.picture(QStringLiteral("Nezaskrtnuto")));
}

void dressLabel(Label& label, const TextFont& font, const QColor& color, const QString& text) {
    label.setFont(font);
    label.setColor(color);
    label.setText(text);
}

void moveFocus(const std::vector<Control*>& order, int step) {
    const int count = static_cast<int>(order.size());
    const auto focused =
        std::ranges::find_if(order, [](const Control* control) { return control->hasFocus(); });
    int at = focused == order.end() ? (step > 0 ? -1 : count) : static_cast<int>(focused - order.begin());
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        Control* control = order[static_cast<size_t>(at)];
        if (control->isEnabled() && control->isVisible()) return control->setFocus(Qt::TabFocusReason);
    }
}

bool moveByTab(const std::vector<Control*>& order, int key) {
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab) return false;
    moveFocus(order, key == Qt::Key_Tab ? 1 : -1);
    return true;
}

bool clickFocused(const std::vector<Control*>& order) {
    for (Control* control : order) {
        if (!control->hasFocus() || !qobject_cast<Button*>(control)) continue;
        control->click();
        return true;
    }
    return false;
}

}  // namespace sarne
