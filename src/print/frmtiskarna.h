#pragma once

#include <optional>

#include "forms/checkbox.h"
#include "forms/edit.h"
#include "platform/printer.h"
#include "print/printdialog.h"

namespace sarne {

/// The dialog in which the user chooses the printer, the paper and how to print on it; or a file.
class frmTiskarna : public PrintDialog {
    Q_OBJECT
  public:
    /// Offers \a printers beside the file and begins with \a choice. \a usualFile is what a file is called
    /// when nothing else is typed.
    frmTiskarna(basSarne& sarne, const QStringList& printers, const PrinterChoice& choice,
                const QString& usualFile);

    /// Shows the dialog and returns when it was closed; nothing when it was left without OK.
    std::optional<PrinterChoice> ask();

    void goBack() override { close(false); }
    void closeRequested() override { close(false); }

  private:
    void enterPressed() override;
    void makeLists(const QStringList& printers);
    void makeOptions();
    void show(const PrinterChoice& choice);
    PrinterChoice shown() const;
    void printerChanged();
    void close(bool accepted);
    bool toFile() const { return lstTiskarny.listIndex() <= 0; }

    QString usualFile_;
    bool accepted_ = false;

    Label lblTiskarny, lblPapir;
    ListBox lstTiskarny, lstPapir;
    Label lblKopie, lblSlozka, lblSoubor;
    Edit txtKopie, txtSlozka, txtSoubor;
    CheckBox chkOboustranne, chkBarevne;
    std::array<Button*, 2> cmdOkStorno{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
