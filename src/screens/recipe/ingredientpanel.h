#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/button.h"
#include "forms/label.h"
#include "forms/textview.h"
#include "richtext/qttextmetrics.h"
#include "screens/recipe/portions.h"

namespace sarne {

class basSarne;
class Database;

/// The ingredients of the recipe on the screen: the cutlery pictures, the toggle between the unit systems and
/// the list. Its controls are the form's.
class IngredientPanel {
  public:
    /// Asks the user for a number; 0 when the user gives none.
    using AskNumber = std::function<double(const QString& prompt)>;

    IngredientPanel(Form& form, basSarne& app, TextView& view, AskNumber ask);

    /// A recipe whose amounts are given for \a base portions is shown from now on, by weights.
    void setRecipe(int recipe, int base);
    void setVisible(bool visible);
    /// Draws the list anew, from the database.
    void draw();

    /// What a click on a cutlery picture does.
    void portionClick(int index);
    void unitToggle();
    /// Steps to the next picture with the keyboard and says what it does.
    void step(int direction);
    /// The pictures in the order in which the keyboard steps over them.
    std::vector<Control*> stops() const;

    const Portions& portions() const { return portions_; }
    UnitSystem units() const { return units_; }
    Quantities quantities() const;

  private:
    Button& addButton(const QString& name, const QRect& place);
    void showCutlery(int index, Button::Frame frame);
    void showUnits();
    void showPortions();
    int lineWidth(const QString& line);

    Form& form_;
    basSarne& app_;
    TextView& view_;
    AskNumber ask_;
    std::vector<Button*> cutlery_;
    Button* toggle_;
    PictureBox* symbol_;
    Label* portionText_;
    int recipe_ = 0;
    Portions portions_;
    UnitSystem units_ = UnitSystem::Weights;
    PanelPosition position_;
    QtTextMetrics metrics_;
};

}  // namespace sarne
