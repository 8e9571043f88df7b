#include "platform/desktopwishes.h"

namespace sarne {

DesktopWishes desktopWishes(const QMap<QString, QVariantMap>& settings) {
    const QVariantMap all = settings.value(kAppearanceGroup), gnome = settings.value(kGnomeGroup);
    const QVariant moves = gnome.value(QStringLiteral("enable-animations"));
    DesktopWishes wishes;
    wishes.calm = all.value(QStringLiteral("reduced-motion")).toUInt() == 1 ||
                  (moves.typeId() == QMetaType::Bool && !moves.toBool());
    wishes.contrast = all.value(QStringLiteral("contrast")).toUInt() == 1 ||
                      settings.value(kGnomeAccessGroup).value(QStringLiteral("high-contrast")).toBool();
    return wishes;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
