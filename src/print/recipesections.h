#pragma once

#include "db/recordset.h"
#include "print/linkmentions.h"
#include "print/pagecomposer.h"
#include "print/recipeflow.h"

namespace sarne {

/// Sets one recipe: its name and the sections that are wanted, in their order. \a recipe's current row is the
/// recipe. Everything must outlive it.
class RecipeSections {
  public:
    struct Context {
        const PrintSource& source;
        const PrintOptions& options;
        PrintProgress& progress;
        int pageRoom;  ///< the height of a page's texts
    };

    RecipeSections(const Recordset& recipe, RecipeFlow& flow, const Context& context)
        : recipe_(recipe), flow_(flow), context_(context) {}

    void set();
    /// The essence for a card: name, photo, ingredients, and the steps in so many \a sentences each.
    void setCard(int sentences);
    /// Links the texts of \a lines, the recipe's, with its linked texts and back.
    void linkTexts(std::vector<FlowLine>& lines) const { mentions_.mark(lines, placeName()); }

  private:
    void setName();
    void shortSteps(int sentences);
    void setSection(PrintSection section);
    void texts();
    void photo();
    void ingredients();
    void ownNote();
    void tools();
    void links();
    QString placeName() const { return QStringLiteral("recept%1").arg(id()); }
    void richField(const QString& field, const QString& status);
    void status(const QString& text) { context_.progress.status(text); }
    void gap();
    QString field(const QString& name) const { return recipe_.field(name).toString(); }
    int id() const { return recipe_.field(QStringLiteral("ID")).toInt(); }

    const Recordset& recipe_;
    RecipeFlow& flow_;
    Context context_;
    LinkMentions mentions_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
