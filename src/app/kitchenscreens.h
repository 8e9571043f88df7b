#pragma once

#include <QPointer>
#include <memory>
#include <optional>

#include "kitchen/goods.h"
#include "screens/kitchen/frmdoma.h"
#include "screens/kitchen/frmhostina.h"
#include "screens/kitchen/frmkucharka.h"
#include "screens/kitchen/frmnakup.h"
#include "screens/kitchen/kitchenplates.h"

namespace sarne {

class Program;
struct Serving;

/// What leads from reading to cooking, and lives longer than a screen: the timers, the shopping list.
class KitchenScreens {
  public:
    explicit KitchenScreens(Program& program) : program_(program) {}

    bool canCook(std::int16_t id) const;
    void cook(std::int16_t id, const Serving& serving);
    void addToShoppingList(const std::vector<std::int16_t>& ids, const Serving& serving);
    void showShoppingList();
    /// Recipes by what is at home.
    void showPantry();
    void showOwnCookbook();
    void showFeast();
    /// Whether the book knows what the shopping list needs.
    bool knowsGoods() { return !goods().isEmpty(); }
    /// The stars of a recipe; negative where there is no such recipe.
    int starsOf(std::int16_t id);
    void giveStars(std::int16_t id, int stars);
    /// A recipe is being looked at.
    void opened(std::int16_t id);
    /// Goes on with the timers of a run that was cut off.
    void resumeTimers() { plates().resume(); }
    /// The program ends: what runs is given up.
    void ended();
    void stopRinging();
    /// Asks about timers that run.
    bool readyToEnd();

  private:
    const Goods& goods();
    KitchenPlates& plates();
    QString nameOf(std::int16_t id) const;
    /// Goes back to \a screen where nothing but the kitchen's other screens lies above it. False otherwise.
    bool isBack(Form* screen);
    std::optional<ShoppingRecipe> recipe(std::int16_t id, double portions, int& base) const;

    Program& program_;
    std::optional<Goods> goods_;
    KitchenTimers timers_;
    std::unique_ptr<KitchenPlates> plates_;
    QPointer<frmNakup> shopping_;
    QPointer<frmDoma> pantry_;
    QPointer<frmKucharka> ownBook_;
    QPointer<frmHostina> feast_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
