#pragma once

#include "forms/edit.h"
#include "kitchen/shoppinglist.h"
#include "screens/kitchen/kitchenform.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {

class UserFile;

/// The shopping list: on its left the things to buy, department by department, on its right what can be done
/// with them. Every change is stored at once.
class frmNakup : public KitchenForm {
    Q_OBJECT
  public:
    /// Keeps the list in \a file, which outlives the screen. \a askNumber asks for an amount; 0 when
    /// the user gives none.
    using AskNumber = std::function<double(const QString& prompt)>;
    frmNakup(basSarne& sarne, UserFile& file, AskNumber askNumber);

    void Zobraz();
    const ShoppingList& list() const { return list_; }

    void restored() override;

  protected:
    void act(int action) override;
    void print() override;
    bool keyDown(QKeyEvent& event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Action { Add, Amount, Remove, Undo, DropBought, Copy, Save, Home };

    void use(int row);
    TickRow headOf(const ShoppingItem& item) const;
    TickRow rowOf(const ShoppingItem& item) const;
    void showList();
    void showRecipes();
    void showState();
    void changed();
    void addOwn();
    void changeAmount();
    void toggleHome();
    void copy();
    void save();
    /// The item that is selected, by its place on the list; -1 when none is.
    int selectedItem() const;

    UserFile& file_;
    AskNumber askNumber_;
    ShoppingList list_;
    std::vector<int> itemOfRow_;  ///< -1 for rows that are none
    bool showsHome_ = false;
    bool storeFailed_ = false;

    Label recipes_, hint_;
    TickList rows_;
    Edit own_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
