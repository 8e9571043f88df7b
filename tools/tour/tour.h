#pragma once

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <Qt>
#include <functional>
#include <utility>
#include <vector>

#include "contactsheets.h"
#include "looks.h"

class QWidget;

namespace sarne {

class Form;
class Program;
struct TextContrast;

/// Drives a running program as a user does, by mouse and keyboard, and keeps a picture and the texts of every
/// place it stops at. What goes wrong is collected as faults.
class Tour {
  public:
    Tour(Program& program, const QDir& pictures, Looks& looks)
        : program_(program), pictures_(pictures), looks_(looks) {}

    Program& program() { return program_; }

    /// Saves the splash while the intro plays, and ends the intro by a key. To be called before the program
    /// starts.
    void skipIntro();
    /// Expects the form \a form in front and saves it as "form-what.png"; its texts are kept as far as they
    /// can be seen, each has to stand out from its ground, and the whole has to look as it did.
    void stop(const QString& form, const QString& what = {});
    /// Whether the form in front has a control called \a control that can be seen.
    bool has(const QString& control) const;
    Form* front() const;
    /// The name of the form in front.
    QString frontName() const;
    /// Opens the help of the form in front by F1, keeps it as "frmStranka-F1-form", and goes back.
    void visitHelp();
    /// Takes a picture only, of a place whose texts tell the time or are looked at otherwise, and returns it.
    /// A photo is smaller and sooner written than what is exact to the pixel.
    enum class As { Exact, Photo };
    QImage picture(const QString& name, As how = As::Exact);
    void save(const QString& name, const QImage& seen, As how = As::Exact);
    /// From now on only pictures of places whose names match \a names are saved, and those with a fault.
    void keepOnly(const QRegularExpression& names) { kept_ = names; }
    /// Moves the mouse over, or clicks, the control called \a control on the form in front.
    void hover(const QString& control);
    void click(const QString& control);
    void doubleClick(const QString& control);
    /// Draws a finger sideways over the middle of the form in front: 1 for what comes next, -1 for what was
    /// before. The form has to look otherwise then.
    void swipe(int direction);
    /// Clicks the menu item that reads \a label on any open menu level.
    void clickItem(const QString& label);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// The same two without waiting.
    void send(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void press(const QString& control);
    void type(const QString& text);
    /// Does \a what as soon as the program takes events again: for what has to be done while a modal form is
    /// open.
    void later(const std::function<void()>& what);
    /// Lets the program work for \a milliseconds.
    void wait(int milliseconds = 30);

    /// Writes the pictures kept by stop(), small, on sheets "sheet-1.jpg" and on.
    void writeSheets();

    /// All texts kept, stop by stop.
    QString texts() const { return texts_.join(QStringLiteral("\n\n")) + u'\n'; }
    /// What would be read aloud, stop by stop.
    QString readTexts() const { return read_.join(QStringLiteral("\n\n")) + u'\n'; }
    /// The contrast of the text that was hardest to tell from its ground.
    double leastContrast() const { return leastContrast_; }
    const QStringList& faults() const { return faults_; }
    /// From now on texts are asked to have \a ratio to 1 to their grounds.
    void askContrast(double ratio) { readable_ = ratio; }
    void fault(const QString& text) { faults_ << text; }

  private:
    QWidget* find(const QString& control);
    void clickWidget(QWidget& widget) const;
    /// The widget that the mouse meets in the middle of \a aimedAt, and where within it.
    std::pair<QWidget*, QPoint> hitBy(const QWidget& aimedAt) const;
    void check(const QString& form, const QString& name, const QImage& seen);
    void checkNames(const QString& name);
    void checkReading(const QString& name, const std::vector<TextContrast>& painted);
    void checkContrast(const QString& name, const std::vector<TextContrast>& painted);

    Program& program_;
    QDir pictures_;
    Looks& looks_;
    ContactSheets sheets_;
    QRegularExpression kept_;  // all, as long as it is empty
    QStringList texts_, read_, faults_;
    double leastContrast_ = 21;
    double readable_ = 4.5;  // as web pages are asked to keep
};

/// The parts of a tour, each of which begins and ends on the main screen.
QStringList tourParts();
/// Goes through \a parts in their own order; through all, when none is named.
void walk(Tour& tour, const QStringList& parts);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
