#include "platform/pagesonsheet.h"

namespace sarne {
namespace {

constexpr int kCutLine = 8;
constexpr int kMargin = 567, kCardMargin = 340;  // 10 and 6 mm

}  // namespace

PagesOnSheet PagesOnSheet::of(Paper paper) {
    switch (paper) {
        case Paper::A4:
            return {};
        case Paper::A5:
            return {QPageSize::A5};
        case Paper::Letter:
            return {QPageSize::Letter};
        case Paper::Card:
            return {QPageSize::A6, QPageLayout::Portrait, 1, 1, true};
        case Paper::TwoA5:
            return {QPageSize::A4, QPageLayout::Landscape, 2, 1};
        case Paper::FourCards:
            return {QPageSize::A4, QPageLayout::Portrait, 2, 2, true};
    }
    return {};
}

QSize PagesOnSheet::page() const {
    QSize size = QPageSize(sheet).sizePixels(kTwipsPerInch);
    if (orientation == QPageLayout::Landscape) size.transpose();
    return {size.width() / across, size.height() / down};
}

QPoint PagesOnSheet::corner(int index) const {
    return {index % across * page().width(), index / across * page().height()};
}

std::vector<QRect> PagesOnSheet::cuts() const {
    if (!card || count() == 1) return {};
    const QSize one = page();
    return {{one.width(), 0, kCutLine, down * one.height()},
            {0, one.height(), across * one.width(), kCutLine}};
}

int PagesOnSheet::margin() const {
    return card ? kCardMargin : kMargin;
}

PageScale PagesOnSheet::scale() const {
    const QSize size = page();
    const int edge = margin();
    return {0, 0, size.width() - 2 * edge, size.height() - 2 * edge, QRect(QPoint(-edge, -edge), size), card};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
