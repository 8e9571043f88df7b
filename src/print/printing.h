#pragma once

#include <QPointer>

#include "forms/screens.h"
#include "platform/printer.h"
#include "print/frmprint.h"

namespace sarne {

/// Opens the forms of printing. Made once by the program; the printer must outlive it.
class Printing {
  public:
    /// \a memory keeps which printer the user chose.
    Printing(basSarne& sarne, Printer& printer, PrinterMemory memory = {})
        : app_(sarne), printer_(printer), memory_(std::move(memory)) {}

    /// Lets the user choose among \a entries and prints the choice; returns when the choice was made. Their
    /// items are recipes; in the mode "Help" they are text pages.
    void showSelection(const std::vector<PrintEntry>& entries, const QString& mode, const Serving& serving);
    /// Shows the printing form for the recipes, or prints them at once where it is open already.
    void printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving);
    /// Shows the printing form for one text.
    void printText(const QString& title, const QString& richText);

  private:
    frmPrint& form();
    void printPages(const std::vector<std::int16_t>& ids);

    basSarne& app_;
    Printer& printer_;
    PrinterMemory memory_;
    QPointer<frmPrint> form_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
