#pragma once

#include "screens/recipe/recipesection.h"

namespace sarne {

/// The photo of the dish, large. A click on it leads to the photo viewer.
class PhotoSection : public RecipeSection {
  public:
    using RecipeSection::RecipeSection;

    void recipeChanged() override { shown_ = false; }
    void setVisible(bool visible) override { visible_ = visible; }
    QRect viewPlace() const override { return recipelayout::kPhotoView; }
    void draw() override;
    bool opensView() const override;
    void viewClicked() override;

  private:
    void show();

    bool visible_ = false;
    bool shown_ = false;  // the photo has been read
};

/// Rich texts of the recipe, one below the other.
class TextSection : public RecipeSection {
  public:
    using Fields = std::vector<const char*>;

    TextSection(const SectionRoom& room, Fields fields) : RecipeSection(room), fields_(std::move(fields)) {}

    void draw() override;

  private:
    Fields fields_;
};

/// The wine that goes with the dish, and wine to look at where the text leaves room.
class WineSection : public TextSection {
  public:
    explicit WineSection(const SectionRoom& room) : TextSection(room, {"vino"}) {}

    void draw() override;
};

/// The kitchen tools that the recipe needs; beside their list those of them as pictures that the disc has
/// some of, "foto\pomucky\" with the tool's name as a file is called, or else the dish. A click on the
/// pictures does nothing.
class ToolSection : public RecipeSection {
  public:
    using RecipeSection::RecipeSection;

    void draw() override;

  private:
    struct Tool {
        QString name;
        Picture picture;
    };

    std::vector<Tool> shownTools(const QStringList& names) const;
    void showTools(const std::vector<Tool>& tools, int textWidth) const;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
