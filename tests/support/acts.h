#pragma once

#include <QPoint>
#include <QStringList>

namespace sarne {

class Control;
class FakeSarne;
class Form;

namespace test {

/// Lets all that was begun be done.
void settle();
/// The form in front of \a run; null where none shows.
Form* front(const FakeSarne& run);
void pressKey(FakeSarne& run, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// The mouse comes to \a twips of the control of \a form called \a name and clicks what lies there.
void click(const FakeSarne& run, const Form* form, const QString& name, QPoint twips, bool twice);

/// Whether \a control is there to be pressed, by the keyboard, too.
bool canBePressed(const Control& control);
/// The names of the controls of the form in front that say that they can be pressed, by the keyboard, too.
QStringList pressables(const FakeSarne& run);
/// Those of them to which the arrows do not lead from where the keyboard is.
QStringList outOfReach(const FakeSarne& run);

/// Whether a screen reader listens, which without a display none does.
void setReader(bool listens);

/// Does what \a word says: a key ("Down", "Shift+Tab"), or a verb with what it is about.
///   click:NAME double:NAME hover:NAME  the mouse in the middle of a control of the form that is highest up,
///                                      or of its part ("picText.2"); "^NAME" is of the one below, "300,580"
///                                      are pixels of the stage
///   wheel:NAME  the wheel over a control of the form in front, a notch down
///   press:NAME  a screen reader presses a control, or a part of it ("lstSeznam.2")
///   reader      a screen reader listens from now on
///   type:letters
///   held:Space  one more time by a key that is held down
///   hide:NAME   that control goes
///   voice       a voice that can read is found
///   answer:7    what the next question is answered
///   wait:5000   milliseconds of the clock
///   tick        every timer that runs
///   letters:150 how large the eyes want texts, in percent
///   lowest      the keyboard comes to the form below all others
///   contrast    they want it
///   size:1600x1200 of the window
///   over, pop   another screen comes over it and goes again
void perform(FakeSarne& run, const QString& word);

}  // namespace test
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
