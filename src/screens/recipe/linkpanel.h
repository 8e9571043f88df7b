#pragma once

#include <optional>
#include <vector>

#include "db/companions.h"
#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/textview.h"

namespace sarne {

class basSarne;

/// The links of the recipe on the screen: an option for each, and the text of the chosen one. Its controls
/// are the form's.
class LinkPanel {
  public:
    LinkPanel(Form& form, basSarne& app, TextView& view);

    /// The links of \a recipe are shown from now on, the first one chosen.
    void setRecipe(int recipe);
    bool isEmpty() const { return links_.empty(); }
    void setVisible(bool visible);
    /// Draws the text of the chosen link, or says that there is none.
    void draw();
    /// What a click on an option does.
    void optionClick(int index);
    /// Moves the keyboard to the next option and says its name.
    void step(int direction);
    /// The chosen option; null where there are no links.
    Control* chosen() const;
    bool owns(const Control* control) const;
    /// The place of the drawing surface beside the options.
    QRect viewPlace() const;

    static QString noneText();

  private:
    void placeOptions();
    void scrollRows(int rows);
    void showRow(int row);
    int rowCount() const;
    void setArrow(Button& arrow, int rows);

    Form& form_;
    basSarne& app_;
    TextView& view_;
    std::vector<RecipeLink> links_;
    std::vector<OptionButton*> options_;
    Button *up_, *down_;
    int chosen_ = 0;
    int firstRow_ = 0;
    bool visible_ = false;
};

}  // namespace sarne
