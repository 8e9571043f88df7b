#include "cookbook.h"

namespace sarne::disc {
namespace {

template <typename List>
int idByName(const List& list, const QString& name) {
    for (qsizetype i = 0; i < list.size(); ++i)
        if (list[i].name == name) return static_cast<int>(i) + 1;
    return 0;
}

}  // namespace

int Cookbook::ingredientId(const QString& name) const {
    return idByName(ingredients, name);
}
int Cookbook::wineId(const QString& name) const {
    return idByName(wines, name);
}

QString Cookbook::keywordName(const Article& auxiliary) {
    return auxiliary.name + QStringLiteral(" – recept");
}

int Cookbook::auxiliaryId(const QString& name) const {
    for (const Article& article : auxiliary)
        if (article.name == name) return article.id;
    return 0;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
