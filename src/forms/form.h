#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

#include "forms/focusring.h"
#include "forms/room.h"
#include "forms/twipwidget.h"

class QEventLoop;

namespace sarne {

class basSarne;
class Control;
class Eyes;
class FocusFrame;
class Resources;

enum class Pointer { Normal, Back, Hourglass };

/// One screen or dialog: a thin shell that owns controls and forwards events. A form is loaded when it is
/// made and until it is unloaded; it is deleted by the event loop afterwards, so that it may unload itself in
/// a handler.
class Form : public TwipWidget {
    Q_OBJECT
  public:
    /// A form called \a name ("frmRecept") that fills the stage, hidden.
    Form(basSarne& sarne, const QString& name);
    ~Form() override;

    QString name() const { return objectName(); }
    /// For a screen reader: a screen is where things are; a form that does not fill the display is a dialog.
    virtual QAccessible::Role role() const;
    bool isLoaded() const { return loaded_; }

    /// Shows the form in front of the others and gives it the keyboard.
    void showForm();
    void hideForm();
    /// Shows the form and returns when it is hidden; nothing else takes input meanwhile. False when the
    /// program ends, however often it is asked for then.
    bool showModal();
    /// Hides the form and takes it out of the loaded ones.
    virtual void unload();
    void bringToFront();

    /// Disables or enables every control of the form, whatever its state was.
    void enableControls(bool enabled);
    /// Called when the form is on top again and all its controls have been enabled: the place to disable
    /// again what is to stay disabled. Gives the keyboard back to what had it.
    virtual void restored() { ring_.restore(); }

    const Resources& resources() const;
    /// The way of the keyboard through the form's controls.
    FocusRing& ring() { return ring_; }
    /// What shows where the keyboard is.
    FocusFrame& focusFrame() const { return *focusFrame_; }

    void setPointer(Pointer pointer);

    /// What the shared keys do. C closes the screen as its back button does, X ends the program as its end
    /// button does, F1 opens the help for the screen.
    virtual void goBack() {}
    virtual void endProgram();
    virtual void help();
    virtual void musicSettings();
    virtual void eyeSettings();
    /// What the eyes that look at the form need.
    const Eyes& eyes() const;
    /// How much larger than designed the form draws its texts. A form that is itself drawn larger has done
    /// part of that already, or all.
    double textScale() const;
    /// The eyes need other things than before: lays texts out anew, in the new size.
    virtual void eyesChanged() {}
    /// What F9 reads aloud: by default all texts that show, from the top left to the bottom right.
    virtual QString textToRead() const;
    /// Asks what there is to ask before the program ends; false when the user wants to stay. Asked of every
    /// screen, before the program's own question.
    virtual bool readyToEnd() { return true; }
    /// The program is about to end without asking: words that were typed and not stored are to be kept.
    virtual void keepUnsaved() {}
    /// A finger has gone over the form sideways: \a direction is 1 for what comes next, -1 for what was
    /// before. True when the form has turned to that.
    virtual bool swiped(int /*direction*/) { return false; }
    /// The window's close button or Alt+F4.
    virtual void closeRequested() { endProgram(); }

    void rescale() override;

  protected:
    basSarne& app() const { return app_; }

    /// A key pressed anywhere on the form that no control has used. True when the form has used it; otherwise
    /// the shared keys are tried. Escape goes back, the rest are the ring's.
    virtual bool keyDown(QKeyEvent& event);
    /// The form has got the keyboard, as by a click on what shows of it: the screen on top takes it.
    virtual void gotFocus();

    /// Whether the form is drawn larger for eyes that want larger texts: what does not fill the display has
    /// room for that, up to its edges.
    virtual bool growsWithTexts() const { return !fillsWindow(); }
    double enlargement() const override;

    /// A form with the design's own place fills the display: the room around the design area is its own, too.
    bool fillsWindow() const override;
    /// Paints \a ground up to the edges of the display.
    void paintRoom(QPainter& painter, const Room& ground) const;

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent* event) override;

  private:
    bool sharedKey(const QKeyEvent& event);
    bool textSizeKey(const QKeyEvent& event);

    basSarne& app_;
    FocusRing ring_;
    FocusFrame* focusFrame_;
    Pointer pointer_ = Pointer::Normal;
    QEventLoop* modalLoop_ = nullptr;
    bool loaded_ = true;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
