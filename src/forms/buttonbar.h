#pragma once

#include <functional>
#include <span>
#include <vector>

#include "forms/button.h"
#include "forms/focusring.h"

namespace sarne {

/// What a button of a bar shows and is called: its picture, the words below it, and its tip, by default the
/// same words.
struct BarFace {
    QStringView picture, caption, tip = caption;
};

/// The things that several screens offer look and are called the same on all of them.
namespace barface {
inline constexpr BarFace kPrint{u"Tisk", u"Tisk"};
inline constexpr BarFace kHelp{u"Help", u"Nápověda"};
inline constexpr BarFace kBack{u"Zpet", u"Zpět"};
inline constexpr BarFace kEnd{u"Konec", u"Konec"};
inline constexpr BarFace kMusic{u"Hudba", u"Hudba a zvuky"};
}  // namespace barface

/// The buttons of a form that do one thing each: framed pictures with their names below.
class ButtonBar {
  public:
    /// Makes a button of \a form for each of \a faces, called \a name with its index ("imgBtn(2)"). A click
    /// on it gives its index to \a command.
    ButtonBar(Form& form, const QString& name, std::span<const BarFace> faces,
              const std::function<void(int)>& command);

    Button& operator[](int index) const { return *buttons_[static_cast<size_t>(index)]; }
    /// The index of \a button; nothing when it is none of the bar's.
    std::optional<int> indexOf(const TwipWidget* button) const;
    int count() const { return static_cast<int>(buttons_.size()); }
    /// Gives button \a index another face.
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
