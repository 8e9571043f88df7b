#include "forms/editmenu.h"

#include "forms/colors.h"

namespace sarne {

QString editMenuStyle(double scale) {
    constexpr QColor kUnusable(150, 170, 165);
    const auto pixels = [scale](int twips) { return QString::number(qMax(1, qRound(twips * scale))); };
    return QStringLiteral(
               "QMenu{background:%1;color:%2;border:%6px solid %3;font-family:Arial;font-size:%7px}"
               "QMenu::item{padding:%8px %9px;background:transparent}"
               "QMenu::item:selected{background:%4;color:white}QMenu::item:disabled{color:%5}"
               "QMenu::separator{height:%6px;background:%3;margin:%6px}")
        .arg(colors::kTeal.name(), colors::kTitle.name(), colors::kCopper.name(), colors::kSelected.name(),
             kUnusable.name())
        .arg(pixels(30), pixels(220), pixels(60), pixels(300));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
