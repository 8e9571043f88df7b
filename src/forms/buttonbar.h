#pragma once

#include <functional>
#include <span>
#include <vector>

#include "forms/button.h"
#include "forms/form.h"

namespace sarne {

/// What a button of a bar shows and is called: its picture, the words below it if it has any, and its tip, by
/// default the same words. What every form can do needs no command of the bar's owner.
struct BarFace {
    const char *picture, *caption, *tip = caption;
    void (Form::*does)() = nullptr;
};

/// The things that several screens offer look, are called and do the same on all of them.
namespace barface {
inline constexpr BarFace kPrint{"Tisk", QT_TRANSLATE_NOOP("Texts", "Tisk")};
inline constexpr BarFace kHelp{"Help", QT_TRANSLATE_NOOP("Texts", "Nápověda"),
                               QT_TRANSLATE_NOOP("Texts", "Nápověda"), &Form::help};
inline constexpr BarFace kBack{"Zpet", QT_TRANSLATE_NOOP("Texts", "Zpět"), QT_TRANSLATE_NOOP("Texts", "Zpět"),
                               &Form::goBack};
inline constexpr BarFace kEnd{"Konec", QT_TRANSLATE_NOOP("Texts", "Konec"),
                              QT_TRANSLATE_NOOP("Texts", "Konec"), &Form::endProgram};
inline constexpr BarFace kMusic{"Hudba", QT_TRANSLATE_NOOP("Texts", "Hudba a zvuky"),
                                QT_TRANSLATE_NOOP("Texts", "Hudba a zvuky"), &Form::musicSettings};
}  // namespace barface

/// The buttons of a form that do one thing each: framed pictures with their names below.
class ButtonBar {
  public:
    /// Makes a button of \a form for each of \a faces, called \a name with its index ("imgBtn(2)"). A click
    /// on it does what its face says, or else gives its index to \a command.
    ButtonBar(Form& form, const QString& name, std::span<const BarFace> faces,
              const std::function<void(int)>& command);

    Button& operator[](int index) const { return *buttons_[static_cast<size_t>(index)]; }
    /// The index of \a button; nothing when it is none of the bar's.
    std::optional<int> indexOf(const TwipWidget* button) const;
    int count() const { return static_cast<int>(buttons_.size()); }
    /// Gives button \a index another face, for the same command.
    void setFace(int index, const BarFace& face);
    /// Places the buttons that are not hidden side by side in \a room, in the order of their indices.
    void placeRow(const QRect& room);
    /// The buttons as they are read on the screen: the way of Tab through them.
    std::vector<TwipWidget*> stops() const;

  private:
    Form& form_;
    std::vector<Button*> buttons_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
