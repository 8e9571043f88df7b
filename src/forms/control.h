#pragma once

#include <QAccessible>
#include <optional>

#include "forms/accessiblepart.h"
#include "forms/twipwidget.h"

namespace sarne {

class Form;

/// What all controls share: a place in twips, a name for people who do not see it, focus that can be seen,
/// and the mouse. Keys that a control does not use go to its form.
class Control : public TwipWidget {
    Q_OBJECT
  public:
    /// A control of \a form called \a name ("imgBtn(2)").
    Control(Form& form, const QString& name);

    Form& form() const { return form_; }
    virtual QAccessible::Role role() const { return QAccessible::StaticText; }
    /// What a screen reader says beside the name: the current entry, how far a bar is.
    virtual QString accessibleValue() const { return {}; }
    /// How much of what the control is; nothing where it is no matter of more or less.
    virtual std::optional<AccessibleRange> accessibleRange() const { return {}; }
    /// Does what the user does to make it \a value.
    virtual void setAccessibleValue(double /*value*/) {}
    virtual void addAccessibleState(QAccessible::State&) const {}
    /// The things within the control that a screen reader comes to one by one, whether in sight or not. Of a
    /// table they go row by row, headings first, in partColumns() columns.
    virtual int partCount() const { return 0; }
    virtual AccessiblePart part(int /*index*/) const { return {}; }
    virtual int partColumns() const { return 1; }
    /// The part that the user is at; -1 for none.
    virtual int currentPart() const { return -1; }
    /// Does what Enter or a click does to a part.
    virtual void usePart(int /*index*/) {}
    /// A control that is only for the eye, or is told of elsewhere, is left out of what is heard.
    void setUnheard(bool unheard) { unheard_ = unheard; }
    bool isUnheard() const { return unheard_; }
    /// Whether Enter and Space do what a click does.
    bool isPressable() const;

    /// What the thing is called: the text of its name plate, and its name for a screen reader.
    void setTip(const QString& tip);
    /// Does what a click does. Nothing while the control is disabled.
    void click();
    /// Forgets that it is being pressed: the release will not click.
    void letGo();

    /// Whether the control should show that it has the keyboard.
    bool showsFocus() const;
    /// What of the control the ring goes around that shows the keyboard, in its twips; it may reach beyond
    /// the control. Empty where the control shows the keyboard by itself.
    virtual QRect focusPlace() const { return {}; }

  Q_SIGNALS:
    void pressed();
    void released();
    void clicked();
    void doubleClicked();
    /// The mouse moved over the control, at \a twips from its upper left corner.
    void hovered(QPoint twips);
    void left();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool isDown() const { return down_; }
    /// Whether the mouse has come to the control; what appears under a resting mouse is not pointed at.
    bool isPointedAt() const { return pointedAt_; }

  private:
    Form& form_;
    void setPointedAt(bool pointedAt);

    bool down_ = false, pointedAt_ = false, unheard_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
