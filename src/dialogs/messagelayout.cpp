#include "dialogs/messagelayout.h"

#include <algorithm>

#include "core/texts.h"
#include "forms/messagebox.h"

namespace sarne {
namespace {

constexpr int kMargin = 180;
constexpr int kTextBesideIcon = 840;
constexpr int kIconSide = 480;
constexpr QSize kButton(1560, 510);
constexpr int kButtonGap = 180;
constexpr QSize kScreen(12000, 9000);

int rowWidth(int buttons) {
    return buttons * kButton.width() + std::max(0, buttons - 1) * kButtonGap;
}

}  // namespace

MessageStyle MessageStyle::split(int style) {
    MessageStyle parts;
    for (; style >= 256; style -= 256) ++parts.defaultButton;
    for (; style >= 16; style -= 16) ++parts.icon;
    parts.buttons = style;
    return parts;
}

std::vector<MessageButton> messageButtons(int buttons) {
    const QString ok = Texts::tr("OK"), yes = Texts::tr("Ano"), no = Texts::tr("Ne"),
                  cancel = Texts::tr("Storno"), retry = Texts::tr("Znovu"), ignore = Texts::tr("Pokračovat");
    switch (buttons) {
        case 0:
            return {{ok, kAnswerOk}};
        case 1:
            return {{yes, kAnswerOk}, {cancel, kAnswerCancel}};
        case 2:
            return {{cancel, kAnswerAbort}, {retry, kAnswerRetry}, {ignore, kAnswerIgnore}};
        case 3:
            return {{yes, kAnswerYes}, {no, kAnswerNo}, {cancel, kAnswerCancel}};
        case 4:
            return {{yes, kAnswerYes}, {no, kAnswerNo}};
        case 5:
            return {{retry, kAnswerRetry}, {cancel, kAnswerCancel}};
        default:
            return {};
    }
}

int escapeButton(int buttons) {
    const auto set = messageButtons(buttons);
    const auto indexOf = [&](int code) {
        const auto found = std::ranges::find(set, code, &MessageButton::code);
        return found == set.end() ? -1 : static_cast<int>(found - set.begin());
    };
    return std::max({indexOf(kAnswerCancel), indexOf(kAnswerNo), 0});
}

MessageGeometry layOutMessage(QSize label, bool hasIcon, int buttonCount) {
    MessageGeometry geometry;
    QPoint labelAt(kMargin, kMargin);
    if (hasIcon) {
        labelAt.setX(kTextBesideIcon);
        const bool lower = label.height() < kIconSide;
        if (lower) labelAt.setY(kMargin + (kIconSide - label.height()) / 2);
        const int iconTop = lower ? kMargin : kMargin + (label.height() - kIconSide) / 2;
        geometry.icon = QRect(kMargin, iconTop, kIconSide, kIconSide);
    }
    geometry.label = QRect(labelAt, label);
    const int contentBottom = kMargin + std::max(label.height(), hasIcon ? kIconSide : 0) + kMargin;
    const int width = std::max(labelAt.x() + label.width() + kMargin, rowWidth(buttonCount) + 2 * kMargin);
    const QSize box(width, contentBottom + kButton.height() + kMargin);
    geometry.box =
        QRect(QPoint((kScreen.width() - box.width()) / 2, (kScreen.height() - box.height()) / 2), box);
    const int left = (width - rowWidth(buttonCount)) / 2;
    for (int i = 0; i < buttonCount; ++i)
        geometry.buttons.emplace_back(QPoint(left + i * (kButton.width() + kButtonGap), contentBottom),
                                      kButton);
    return geometry;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
