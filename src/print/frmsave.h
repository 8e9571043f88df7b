#pragma once

#include <functional>

#include "print/printchoice.h"
#include "print/printdialog.h"

namespace sarne {

/// The dialog in which the user chooses what to print of a list. It unloads itself when it is closed.
class frmSave : public PrintDialog {
    Q_OBJECT
  public:
    /// Gets the ids that were chosen, in their order.
    using Handover = std::function<void(const std::vector<std::int16_t>&)>;

    /// \a entries are what can be chosen; \a print is called with the choice.
    frmSave(basSarne& sarne, std::vector<PrintEntry> entries, Handover print);

    /// Shows the dialog and returns when it was closed. In the ordinary \a mode, "", OK closes it and prints;
    /// in any other it stays, to choose again.
    void Zobraz(const QString& mode = {});

    QString mode() const { return mode_; }
    void goBack() override { cmdOkEndClick(1); }
    void closeRequested() override { cmdOkEndClick(1); }

  private:
    bool otherKey(QKeyEvent& event) override;
    void makeLists();
    void cmdRukaClick(int index);
    void cmdOkEndClick(int index);
    void addMarked();
    void addAndGoOn();
    void removeMarked();
    void markStart();
    void showChosen();
    void enterPressed() override;
    bool isOrdinary() const { return mode_.isEmpty(); }

    Handover print_;
    PrintChoice choice_;
    QString mode_;
    bool closed_ = false;
    bool accepted_ = false;

    Label Label2, lblSeznam, lblVybrano;
    ListBox lstSeznam, lstVybrano;
    std::array<Button*, 4> cmdRuka{};
    std::array<Button*, 2> cmdOkEnd{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
