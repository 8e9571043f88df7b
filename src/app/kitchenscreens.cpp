#include "app/kitchenscreens.h"

#include "app/program.h"
#include "core/czech.h"
#include "core/texts.h"
#include "db/ingredients.h"
#include "db/queries.h"
#include "dialogs/frmdialog.h"
#include "kitchen/shoppingstore.h"
#include "screens/kitchen/frmvarime.h"

namespace sarne {

const Goods& KitchenScreens::goods() {
    if (!goods_) goods_.emplace(program_.Db());
    return *goods_;
}

KitchenPlates& KitchenScreens::plates() {
    if (!plates_) plates_ = std::make_unique<KitchenPlates>(program_, timers_);
    return *plates_;
}

bool KitchenScreens::canCook(std::int16_t id) const {
    return queries::recipeSteps(program_.Db(), id).RecordCount() > 0;
}

void KitchenScreens::cook(std::int16_t id, const Serving& serving) {
    if (plates_) plates_->hush();
    auto* screen = new frmVarime(program_, program_.userFile(),
                                 [this](const QString& name, int seconds) { plates().start(name, seconds); });
    screen->Zobraz(id, serving);
}

std::optional<ShoppingRecipe> KitchenScreens::recipe(std::int16_t id, double portions, int& base) const {
    Recordset rows = program_.Db().OpenTable(QStringLiteral("Recepty"));
    if (!RecordExists(rows, id)) return std::nullopt;
    base = rows.field(QStringLiteral("Porce")).toInt();
    return ShoppingRecipe{id, rows.field(QStringLiteral("Nazev")).toString(), portions > 0 ? portions : base};
}

void KitchenScreens::addToShoppingList(const std::vector<std::int16_t>& ids, const Serving& serving) {
    if (goods().isEmpty()) return;
    ShoppingList list = readShoppingList(program_.userFile());
    const Noun portions{Texts::tr("porce"), Texts::tr("porce"), Texts::tr("porcí"), Texts::tr("porce")};
    QStringList added;
    for (const std::int16_t id : ids) {
        int base = 0;
        const auto one = recipe(id, serving.portions, base);
        if (!one) continue;
        list.addRecipe(shoppingNeeds(readIngredients(program_.Db(), id), goods(), *one, base));
        added << one->name + QStringLiteral(" – ") + counted(one->portions, portions, program_.Locale);
    }
    if (added.isEmpty()) return;
    const bool stored = storeShoppingList(program_.userFile(), list);
    plates().say(stored ? Texts::tr("Na nákupním seznamu: %1.\nSeznam otevře Shift+F3 nebo klepnutí sem.")
                              .arg(added.join(QStringLiteral(", ")))
                        : Texts::tr("Nákupní seznam se nepodařilo uložit na disk."),
                 [this] { showShoppingList(); });
}

void KitchenScreens::showShoppingList() {
    if (!program_.FormStack.top() || (shopping_ && program_.FormStack.contains(*shopping_))) return;
    if (goods().isEmpty()) return;
    const auto ask = [this](const QString& prompt) { return askNumber(program_, prompt); };
    if (plates_) plates_->hush();
    shopping_ = new frmNakup(program_, program_.userFile(), ask);
    shopping_->Zobraz();
}

void KitchenScreens::showPantry() {
    if (!program_.FormStack.top() || (pantry_ && program_.FormStack.contains(*pantry_))) return;
    pantry_ = new frmDoma(program_, program_.userFile());
    pantry_->Zobraz();
}

void KitchenScreens::stopRinging() {
    if (plates_) plates_->stopRinging();
}

bool KitchenScreens::readyToEnd() {
    return !plates_ || plates_->readyToEnd();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
