// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/cookingrecipe.h"

#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "db/companions.h"
#include "db/database.h"

namespace sarne {

QString CookingRecipe::portionsText() const {
    return counted(serving.portions, portionNoun(), locale);
}

QString CookingRecipe::needsOf(const CookingStep& step) const {
    QStringList lines;
    for (const StepNeed& need : step.needs) {
        if (need.line < 0 || need.line >= static_cast<int>(ingredients.size())) continue;
        const Ingredient& ingredient = ingredients[static_cast<size_t>(need.line)];
        lines << (need.share > 0 ? needText(ingredient, need.share, serving.units, quantities, locale)
                                 : ingredient.name);
    }
    return lines.join(u'\n');
}

QString CookingRecipe::counterOf(const CookingPage& page) const {
    const CookingStep& step = steps[static_cast<size_t>(page.step)];
    const auto numbered =
        std::count_if(steps.begin(), steps.end(), [](const CookingStep& one) { return one.title.isEmpty(); });
    const QString counter =
        step.title.isEmpty() ? Texts::tr("Krok %1 z %2").arg(page.step + 1).arg(numbered) : step.title;
    return page.parts > 1 ? counter + Texts::tr(" (část %1 ze %2)").arg(page.part + 1).arg(page.parts)
                          : counter;
}

QString CookingRecipe::timerName(const CookingPage& page) const {
    const CookingStep& step = steps[static_cast<size_t>(page.step)];
    const QString which = step.title.isEmpty() ? Texts::tr("Krok %1").arg(page.step + 1) : step.title;
    return which + QStringLiteral(", ") + name;
}

CookingRecipe readCookingRecipe(Database& db, int recipe, const Serving& serving, const QLocale& locale) {
    CookingRecipe cooked;
    cooked.id = recipe;
    cooked.locale = locale;
    Recordset row = db.OpenTable(QStringLiteral("Recepty"));
    if (!RecordExists(row, recipe)) return cooked;
    cooked.name = row.field(QStringLiteral("Nazev")).toString();
    const int base = row.field(QStringLiteral("Porce")).toInt();
    cooked.serving = serving;
    if (cooked.serving.portions <= 0) cooked.serving.portions = base;
    cooked.quantities = Quantities(cooked.serving.portions, base, locale);
    cooked.ingredients = readIngredients(db, recipe);
    cooked.tools = recipeTools(db, recipe);
    cooked.steps = readSteps(db, recipe);
    return cooked;
}

}  // namespace sarne
