#pragma once

#include <array>

#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"
#include "print/pagesheet.h"

namespace sarne {

/// The preview: the sheets as they will be printed, to leaf through. Owns the preview it shows.
class frmNahled : public Form {
    Q_OBJECT
  public:
    frmNahled(basSarne& sarne, std::unique_ptr<PagePreview> preview);

    /// Shows number \a sheet, from 0.
    void Zobraz(int sheet = 0);

    int currentSheet() const { return current_; }
    void goBack() override;
    /// What stands on the sheet.
    QString textToRead() const override { return picStrana.flowingText(); }

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;
    bool swiped(int direction) override;

  private:
    void command(int button);
    bool go(int sheet);
    void zoom();
    void layOutMore();
    void showPosition();
    bool scrollKey(int key);

    std::unique_ptr<PagePreview> preview_;
    PageSheet picStrana;
    Label lblStrana;
    std::array<Button*, 4> cmdStrana{};
    Timer Timer1;
    int current_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
