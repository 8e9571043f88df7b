#include "markdown.h"

namespace sarne::disc {

QString toMarkdown(const SharedRecipe& recipe) {
    QString text = QStringLiteral("# %1\n\n").arg(recipe.longName.isEmpty() ? recipe.name : recipe.longName);
    for (const SharedText& one : recipe.texts)
        if (one.title == u"Úvod") text += readableText(one.text) + QStringLiteral("\n\n");
    text += QStringLiteral("%1 porce, %2 minut\n\n## Suroviny\n\n").arg(recipe.portions).arg(recipe.minutes);
    for (const SharedIngredient& one : recipe.ingredients) text += QStringLiteral("- %1\n").arg(one.line());
    text += QStringLiteral("\n## Postup\n\n");
    for (qsizetype i = 0; i < recipe.steps.size(); ++i)
        text += QStringLiteral("%1. %2\n").arg(i + 1).arg(readableText(recipe.steps[i]));
    for (const SharedText& one : recipe.texts)
        if (one.title != u"Úvod")
            text += QStringLiteral("\n## %1\n\n%2\n").arg(one.title, readableText(one.text));
    return text;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
