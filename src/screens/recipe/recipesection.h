#pragma once

#include <functional>
#include <vector>

#include "db/recordset.h"
#include "forms/form.h"
#include "forms/textview.h"
#include "screens/recipe/portions.h"
#include "screens/recipe/recipelayout.h"

namespace sarne {

class basSarne;

/// The recipe on the screen: what its sections read, and how the user looks at it.
struct ShownRecipe {
    std::int16_t id = 0;
    Recordset row;  ///< its record, kept open; closed where there is no such recipe
    Picture photo;
    Portions portions;
    UnitSystem units = UnitSystem::Weights;

    QString field(const char* name) const { return row.field(QString::fromLatin1(name)).toString(); }
    Serving serving() const { return {portions.number(), units}; }
};

/// Asks the user for a number; 0 when the user gives none.
using AskNumber = std::function<double(const QString& prompt)>;

/// What a section works with. All of it outlives the section.
struct SectionRoom {
    Form& form;
    basSarne& sarne;
    TextView& view;  ///< the drawing surface
    PictureBox&
        picture;  ///< a picture beside a text that leaves room for it; hidden until a section shows it
    ShownRecipe& recipe;
    Serving& lookedAt;  ///< told how the user looks at a recipe
    AskNumber askNumber;
    std::function<void()> giveKeyboardBack;  ///< to the button of the section that is shown
};

/// One section of the recipe screen. It draws on the screen's drawing surface and may have controls of its
/// own around it, which are the form's.
class RecipeSection {
  public:
    explicit RecipeSection(const SectionRoom& room) : room_(room) {}
    virtual ~RecipeSection() = default;

    /// The recipe on the screen is another one.
    virtual void recipeChanged() {}
    /// Shows or hides the section's own controls.
    virtual void setVisible(bool /*visible*/) {}
    /// Where the drawing surface stands while the section is shown.
    virtual QRect viewPlace() const { return recipelayout::kView; }
    /// Draws on the drawing surface, which is clear.
    virtual void draw() = 0;

    /// Where Tab stops among the section's own controls.
    virtual std::vector<FocusGroup> stops() const { return {}; }
    /// An arrow key, forwards (1) or backwards (-1). True when the section has used it.
    virtual bool step(bool /*sideways*/, int /*direction*/) { return false; }
    /// What is said to those who come to the section by keyboard when there is nothing in it.
    virtual QString nothingHere() const { return {}; }

    /// Whether a click on the drawing surface does something, and that click.
    virtual bool opensView() const { return false; }
    virtual void viewClicked() {}

    /// The screen is on top again; another one may have changed the recipe's record.
    virtual void shownAgain() {}
    /// The user goes elsewhere. False when the section has to stay.
    virtual bool leave() { return true; }
    /// As leave(), where the screen is closed in any case.
    virtual void abandon() {}
    /// The program is about to end, or not: false when the user wants to stay.
    virtual bool readyToEnd() { return true; }
    virtual void beforePrint() {}
    /// The program ends without asking: what was typed and not stored is to be kept.
    virtual void keepUnsaved() {}

  protected:
    /// Shows \a picture beside a text of \a textWidth until another section is opened, its upper edge where
    /// the text's is.
    void showBeside(const Picture& picture, int textWidth = recipelayout::kHalfView.width()) const;
    void showPicture(const Picture& picture, const QRect& place) const;

    SectionRoom room_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
