#pragma once

#include <memory>

#include "print/pagecomposer.h"
#include "richtext/qttextmetrics.h"

namespace sarne {

/// The pages that printing would make, laid out bit by bit so that the first one shows at once.
class PagePreview {
  public:
    PagePreview(const PrintSource& source, const PageScale& scale, PrintMaterial material,
                const PrintOptions& options);

    const PageScale& scale() const { return scale_; }
    /// Lays out the next recipe or text. False when all are laid out.
    bool layOutMore();
    bool isComplete() const { return next_ == material_.count(); }

    int pageCount() const { return static_cast<int>(pages_.size()); }
    const PrintedPage& page(int index) const { return pages_.at(static_cast<size_t>(index)); }

  private:
    PageScale scale_;
    PrintMaterial material_;
    PrintOptions options_;
    QtTextMetrics metrics_;
    PageComposer composer_;
    std::vector<PrintedPage> pages_;
    int next_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
