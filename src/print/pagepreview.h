#pragma once

#include <memory>

#include "platform/pagesonsheet.h"
#include "print/pagecomposer.h"
#include "richtext/qttextmetrics.h"

namespace sarne {

/// The pages that printing would make, laid out bit by bit so that the first one shows at once, as they lie
/// on their sheets.
class PagePreview {
  public:
    PagePreview(const PrintSource& source, const PageScale& scale, PrintMaterial material,
                const PrintOptions& options, const PagesOnSheet& onSheet = {});

    const PageScale& scale() const { return scale_; }
    const PagesOnSheet& onSheet() const { return onSheet_; }
    /// The size of a sheet in twips: of one page, or of those that lie on it together.
    QSize sheetSize() const;
    /// Lays out the next recipe or text. False when all are laid out.
    bool layOutMore();
    bool isComplete() const { return next_ == material_.count(); }

    int sheetCount() const { return (pageCount() + onSheet_.count() - 1) / onSheet_.count(); }
    int firstPageOf(int sheet) const { return sheet * onSheet_.count(); }
    /// Behind the last page of \a sheet.
    int endOfPages(int sheet) const { return qMin(firstPageOf(sheet + 1), pageCount()); }

    int pageCount() const { return static_cast<int>(pages_.size()); }
    const PrintedPage& page(int index) const { return pages_.at(static_cast<size_t>(index)); }

  private:
    PageScale scale_;
    PagesOnSheet onSheet_;
    PrintMaterial material_;
    PrintOptions options_;
    QtTextMetrics metrics_;
    PageComposer composer_;
    std::vector<PrintedPage> pages_;
    int next_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
