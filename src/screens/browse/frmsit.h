#pragma once

#include <array>
#include <vector>

#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"
#include "screens/browse/ground.h"
#include "screens/browse/photogrid.h"

namespace sarne {

/// The photos of all recipes as one composite picture with an invisible button over each, and the groups that
/// narrow it.
class frmSit : public Form {
    Q_OBJECT
  public:
    explicit frmSit(basSarne& sarne);

    /// Opens the whole grid over the current screen.
    void Zobraz();

    const PhotoGrid& grid() const { return grid_; }

    void goBack() override;
    void restored() override;
    QString textToRead() const override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    bool swiped(int direction) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paint(QPainter& painter) override;

  private:
    void buildCells();
    void buildGroups();
    void setFocusOrder();
    void readNames();
    void nameGroups();

    void setGroup(int group);
    void applyGroup();
    void hoverOver(int cell);
    void clickOn(int cell);
    void showChoice();
    void paintGround(QPainter& painter) const;
    void showPhoto();
    void showRecipe();
    bool needsCell();

    bool moveByKey(int key);
    bool groupByKey(int key);
    static TextFont nameFont();
    static QRect frameOf(int cell);

    PhotoGrid grid_;
    std::array<QString, kGridCells + 1> names_;
    std::array<Picture, kGridGroups + 1> composites_;  // the groups', then the whole
    Ground ground_;
    int framedCell_ = 0;
    std::vector<Button*> imgFoto;  // cell 1 first
    std::vector<Button*> imgSkupina;
    Button* imgCela;
    ButtonBar imgBtnHlavni;
    Label Label1;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
