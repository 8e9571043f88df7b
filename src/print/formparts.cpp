#include "print/formparts.h"

#include "forms/resources.h"

namespace sarne {

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

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
