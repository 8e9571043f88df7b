// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <span>

#include "forms/buttonbar.h"
#include "forms/form.h"
#include "forms/label.h"

namespace sarne {

class TickList;

/// A button with words that does something with what a kitchen screen shows.
struct KitchenAction {
    const char *caption, *tip = caption;
};

/// What the screens of the kitchen have in common: a header with a picture, a title and how things stand; at
/// the bottom left what leads to the other ones, as far as the book has what they need, at the bottom right
/// the buttons that every screen has; and a column of actions.
class KitchenForm : public Form {
    Q_OBJECT
  public:
    void goBack() override;

  protected:
    /// Which screen of the kitchen it is.
    enum class Place { Shopping, Pantry, OwnBook, Feast, Stove };
    /// What the bar at the bottom begins with.
    enum class Bar { Plain, WithPrint };

    /// Shows \a title beside the picture of \a place. The screen at the stove leads to no other.
    KitchenForm(basSarne& sarne, const QString& name, Place place, const QString& title, Bar bar);

    /// Makes a button for each of \a texts, one below the other from \a first on, \a step twips apart.
    void makeActions(std::span<const KitchenAction> texts, const QRect& first, int step);
    /// Button \a action of the column was pressed.
    virtual void act(int /*action*/) {}
    virtual void print() {}
    /// Shows the screen over the others.
    void open();
    /// Says the title and how things stand.
    void sayState();
    /// Does what a key does in \a list where that has the keyboard: Enter does \a enter, by default what
    /// Space does, once however long it is held; the others move, and the new row is said.
    bool listKey(TickList& list, const QKeyEvent& event, const std::function<void()>& enter = {});
    /// A group of one thing.
    static FocusGroup alone(TwipWidget& thing) { return FocusGroup(std::array<TwipWidget*, 1>{&thing}); }
    /// \a groups, then the actions, the way to the other screens, the bar.
    void setStops(std::vector<FocusGroup> groups);
    /// The ground with its header, and plates below what lies at the bottom.
    void paintGround(QPainter& painter);

    /// Writes \a text in small letters on the screen's plates.
    static void dress(Label& label, const QRect& place, double points, bool bold = false,
                      Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);

    Label title_, state_;
    std::vector<Button*> actions_;
    ButtonBar bar_, aside_;

  private:
    void showNeighbour(int index);

    Place place_;
};

}  // namespace sarne
