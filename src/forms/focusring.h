#pragma once

#include <QPointer>
#include <optional>
#include <vector>

#include "forms/focusorder.h"
#include "forms/twipwidget.h"

class QKeyEvent;

namespace sarne {

class basSarne;
class Control;
class Form;

/// Stops of the keyboard that Tab takes as one; within it the arrow keys move.
struct FocusGroup {
    FocusGroup() = default;
    template <typename Controls>
    explicit FocusGroup(const Controls& controls, TwipWidget* in = nullptr)
        : members(controls.begin(), controls.end()), entry(in) {}

    std::vector<QPointer<TwipWidget>> members;
    QPointer<TwipWidget> entry;  ///< where Tab comes in; by default the first that can take the keyboard
};

/// The order in which the keyboard goes through a form's controls, and the memory of where it was: every form
/// has one. What is disabled or hidden is passed over, also when that changes later; a stop that is deleted
/// is forgotten. The form itself may be a stop, for what is on it without being a control.
class FocusRing {
  public:
    /// Which arrow keys move along the ring besides Tab.
    enum class Arrows { None, Sideways, All };

    FocusRing(Form& form, basSarne& sarne) : form_(form), app_(sarne) {}

    /// The stops in the order of Tab.
    void setStops(const std::vector<TwipWidget*>& stops);
    void setGroups(std::vector<FocusGroup> groups) { groups_ = std::move(groups); }
    void setArrows(Arrows arrows) { arrows_ = arrows; }

    /// The control that has the keyboard, or had it last; the form where that is a stop; null before the
    /// first.
    TwipWidget* current() const { return last_; }
    /// The place of current() in the order of the stops; nothing when it is none of them.
    std::optional<int> position() const;
    bool isAt(const TwipWidget* stop) const { return last_ == stop; }

    /// Gives \a stop the keyboard without a word.
    void focus(TwipWidget& stop);
    /// Gives \a stop the keyboard because the user went there: says its name.
    void goTo(TwipWidget& stop);
    /// Says the name of \a control, at which the user is without its having the keyboard.
    void say(const Control& control);
    /// Says \a part of \a control, or its current one, to which the user has come: where a screen reader
    /// listens by an event of the part's own, else as a text.
    void sayPart(const Control& control, int part);
    void sayPart(const Control& control);
    /// Says \a text where no screen reader says it by itself, as it does what a dialog asks.
    void sayWithoutReader(const QString& text);
    /// To the next group's entry, \a direction 1 or -1; round at the ends.
    void step(int direction);
    /// To the next member of the group that has the keyboard. False when no group has it.
    bool stepWithin(int direction);
    /// To the nearest that way of \a among; sideways it stays at the outermost. False when the keyboard is at
    /// none of them, or nothing lies above or below.
    bool stepTowards(Direction direction, const std::vector<TwipWidget*>& among);
    /// To the next stop, or back to the one before, whichever group they belong to; round at the ends.
    void walk(int direction);
    /// The same for an arrow that nothing else has a use for: with arrows and Enter alone everything is
    /// reached.
    void walk(const QKeyEvent& event);
    /// Clicks what has the keyboard where that is a button or a check box, else returns false.
    bool press();

    /// Does what Tab, Shift+Tab, the arrows in use, Enter and Space do; false for any other key, for one that
    /// finds nothing to press, and with Alt, Ctrl or Meta. Tab also goes through the stops inside a stop.
    bool keyDown(const QKeyEvent& event);

    /// Gives the keyboard back to what had it last, or to the first stop that can take it.
    void restore();
    /// Says that \a control, of this form, has got the keyboard.
    void arrived(TwipWidget& control) { last_ = &control; }
    /// From now on restore() starts at \a stop; null: at the first one.
    void startAt(TwipWidget* stop) { last_ = stop; }

  private:
    bool isUsable(const TwipWidget* stop) const;
    TwipWidget* entryOf(const FocusGroup& group) const;
    std::optional<int> groupAt() const;
    bool arrow(Direction direction);
    void tab(int direction);

    Form& form_;
    basSarne& app_;
    std::vector<FocusGroup> groups_;
    Arrows arrows_ = Arrows::None;
    QPointer<TwipWidget> last_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
