#pragma once

#include <QPainter>

#include "print/printedpage.h"
#include "print/printprogress.h"

namespace sarne {

/// Paints \a page, asking between lines whether to go on; false when it was stopped. \a painter maps one unit
/// to one twip, its origin is that of the printer's scale; its font and pen change. Pictures that \a printer,
/// where there is one, takes as they are stored are left to it.
bool paintPage(QPainter& painter, const PrintedPage& page, PrintProgress& progress,
               Printer* printer = nullptr);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
