#pragma once

#include <QPageLayout>
#include <vector>

#include "platform/printer.h"

namespace sarne {

inline constexpr int kTwipsPerInch = 1440;

/// How the pages of one kind of paper lie on its sheets.
struct PagesOnSheet {
    QPageSize::PageSizeId sheet = QPageSize::A4;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    int across = 1, down = 1;
    bool card = false;

    static PagesOnSheet of(Paper paper);
    int count() const { return across * down; }
    /// The size of one page, in twips.
    QSize page() const;
    /// Where page number \a index (from 0) of a sheet begins, in twips from the sheet's corner.
    QPoint corner(int index) const;
    /// The lines along which cards are cut apart, in twips from the sheet's corner.
    std::vector<QRect> cuts() const;
    /// Around the texts of a page, in twips, where the printer demands no other margin.
    int margin() const;
    /// A page with the usual margin.
    PageScale scale() const;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
