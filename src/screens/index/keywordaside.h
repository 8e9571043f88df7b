#pragma once

#include <QString>
#include <vector>

#include "forms/button.h"
#include "forms/label.h"
#include "forms/picturebox.h"

namespace sarne {

class basSarne;

/// What stands beside a keyword's text, at the right edge of its paper: a picture with what it shows, a
/// button that lists the recipes that use the word, a button for the film. A part that the keyword does not
/// have is not shown, and what is below moves up.
class KeywordAside {
  public:
    KeywordAside(Form& form, basSarne& sarne);

    /// Shows what there is for the keyword \a name; nothing when the cookbook has nothing.
    void show(int keyword, const QString& name);
    bool isEmpty() const { return !picture_.isVisibleTo(picture_.parentWidget()) && buttons().empty(); }
    /// The buttons that are shown, from the top.
    std::vector<Button*> buttons() const;
    /// What is left of \a text, a place that has the whole paper, for the text beside all this.
    QRect besideIt(const QRect& text) const;

  private:
    int showPicture(const QString& file, const QString& caption, int top);
    int showButton(Button& button, bool isThere, int top);
    void setRecipes(const QString& recipes);

    basSarne& app_;
    PictureBox& picture_;
    Label& caption_;
    Button& recipesButton_;
    Button& filmButton_;
    QString name_;
    QString recipes_;  // as a list of recipes is asked for: "7,12,"
    std::int16_t film_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
