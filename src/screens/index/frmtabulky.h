#pragma once

#include "screens/index/barform.h"
#include "screens/index/tableview.h"

namespace sarne {

/// The screen of tables in which a cook looks something up: the index of keywords and the tables of the
/// cookbook. Made anew each time it is shown.
class FrmTabulky : public BarForm {
    Q_OBJECT
  public:
    explicit FrmTabulky(basSarne& sarne);

    /// Shows the table of menu item \a item. False, and the form is gone, when there is none.
    bool Zobraz(std::int16_t item);

  protected:
    void print() override;
    bool keyDown(QKeyEvent& event) override;
    void eyesChanged() override { layOut(); }
    void paint(QPainter& painter) override;

  private:
    void makeLetters();
    void makeArrows();
    QRect placeLetters(const QRect& room);
    void layOut();
    void jumpToLetter(const QString& letter);
    bool moveKey(int key);
    bool letterKey(const QKeyEvent& event);
    void showPosition();
    void openRow(int row);

    TableView table_;
    Label note_;
    Label position_;
    std::vector<Button*> letters_;
    QRect lettersPlate_;
    std::array<Button*, 4> arrows_{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
