#include "print/pagepreview.h"

#include <algorithm>
#include <iterator>

namespace sarne {

PagePreview::PagePreview(const PrintSource& source, const PageScale& scale, PrintMaterial material,
                         const PrintOptions& options, const PagesOnSheet& onSheet)
    : scale_(scale),
      onSheet_(onSheet),
      material_(std::move(material)),
      options_(options),
      composer_(source, scale, metrics_) {}

QSize PagePreview::sheetSize() const {
    return {onSheet_.across * scale_.sheet.width(), onSheet_.down * scale_.sheet.height()};
}

bool PagePreview::layOutMore() {
    if (isComplete()) return false;
    SilentProgress silent;
    std::vector<PrintedPage> more = composer_.item(material_, next_++, options_, silent);
    std::ranges::move(more, std::back_inserter(pages_));
    return !isComplete();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
