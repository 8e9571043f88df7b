#include "app/kitchenscreens.h"

#include "app/program.h"
#include "core/czech.h"
#include "core/texts.h"
#include "db/ingredients.h"
#include "db/queries.h"
#include "db/recipemarks.h"
#include "dialogs/frmdialog.h"
#include "kitchen/shoppingstore.h"
#include "screens/kitchen/frmvarime.h"

namespace sarne {

const Goods& KitchenScreens::goods() {
    if (!goods_) goods_.emplace(program_.Db());
    return *goods_;
}

KitchenPlates& KitchenScreens::plates() {
    if (!plates_) plates_ = std::make_unique<KitchenPlates>(program_, timers_, program_.userFile());
    return *plates_;
}

bool KitchenScreens::canCook(std::int16_t id) const {
    return queries::recipeSteps(program_.Db(), id).RecordCount() > 0;
}

void KitchenScreens::cook(std::int16_t id, const Serving& serving) {
    if (plates_) plates_->hush();
    auto* screen = new frmVarime(program_, program_.userFile(),
                                 [this](const QString& name, int seconds) { plates().start(name, seconds); });
    screen->Zobraz(id, serving, QDate::currentDate());
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
    QStringList added;
    for (const std::int16_t id : ids) {
        int base = 0;
        const auto one = recipe(id, serving.portions, base);
        if (!one) continue;
        list.addRecipe(shoppingNeeds(readIngredients(program_.Db(), id), goods(), *one, base));
        added << one->name + QStringLiteral(" – ") + counted(one->portions, portionNoun(), program_.Locale);
    }
    if (added.isEmpty()) return;
    const bool stored = storeShoppingList(program_.userFile(), list);
    plates().say(stored ? Texts::tr("Na nákupním seznamu: %1.\nSeznam otevře Shift+F3 nebo klepnutí sem.")
                              .arg(added.join(QStringLiteral(", ")))
                        : Texts::tr("Nákupní seznam se nepodařilo uložit na disk."),
                 [this] { showShoppingList(); });
}

bool KitchenScreens::isBack(Form* screen) {
    if (!screen || !program_.FormStack.contains(*screen)) return false;
    const auto isNeighbour = [this](Form* form) {
        return form && (form == shopping_ || form == pantry_ || form == ownBook_ || form == feast_);
    };
    for (Form* top = program_.FormStack.top(); top != screen; top = program_.FormStack.top()) {
        if (!isNeighbour(top)) return false;
        program_.PopScreen(*top);
    }
    return true;
}

void KitchenScreens::showShoppingList() {
    if (!program_.FormStack.top() || goods().isEmpty()) return;
    if (plates_) plates_->hush();
    if (isBack(shopping_)) return;
    const auto ask = [this](const QString& prompt) { return askNumber(program_, prompt); };
    shopping_ = new frmNakup(program_, program_.userFile(), ask);
    shopping_->Zobraz();
}

void KitchenScreens::showPantry() {
    if (!program_.FormStack.top() || isBack(pantry_)) return;
    pantry_ = new frmDoma(program_, program_.userFile());
    pantry_->Zobraz();
}

void KitchenScreens::showOwnCookbook() {
    if (!program_.FormStack.top() || isBack(ownBook_)) return;
    ownBook_ = new frmKucharka(program_, program_.userFile(), QDate::currentDate());
    ownBook_->Zobraz();
}

void KitchenScreens::showFeast() {
    if (!program_.FormStack.top() || isBack(feast_)) return;
    feast_ = new frmHostina(program_, program_.userFile(),
                            {[this](const QString& prompt) { return askNumber(program_, prompt); },
                             [this](const QString& prompt) { return askText(program_, prompt); }},
                            QDate::currentDate().month());
    feast_->Zobraz();
}

QString KitchenScreens::nameOf(std::int16_t id) const {
    Recordset rows = program_.Db().OpenTable(QStringLiteral("Recepty"));
    return RecordExists(rows, id) ? rows.field(QStringLiteral("Nazev")).toString() : QString();
}

int KitchenScreens::starsOf(std::int16_t id) {
    const QString name = nameOf(id);
    return name.isEmpty() ? -1 : RecipeMarks(program_.userFile()).stars(id, name);
}

void KitchenScreens::giveStars(std::int16_t id, int stars) {
    const QString name = nameOf(id);
    if (name.isEmpty() || !RecipeMarks(program_.userFile()).setStars(id, name, stars)) program_.Beep();
}

void KitchenScreens::opened(std::int16_t id) {
    const QString name = nameOf(id);
    if (!name.isEmpty()) RecipeMarks(program_.userFile()).keepOpened(id, name, QDateTime::currentDateTime());
}

void KitchenScreens::ended() {
    if (plates_) plates_->giveUp();
}

void KitchenScreens::stopRinging() {
    if (plates_) plates_->stopRinging();
}

bool KitchenScreens::readyToEnd() {
    return !plates_ || plates_->readyToEnd();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
