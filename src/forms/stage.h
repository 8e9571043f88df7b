#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "forms/eyes.h"

namespace sarne {

class Fingers;
class Form;
class NamePlate;

/// The program's one window. It fits the 4:3 design of 12000 x 9000 twips into whatever size it is given: in
/// the middle, scaled evenly, the rest black. Forms are its children.
class Stage : public QWidget {
    Q_OBJECT
  public:
    static constexpr int kWidth = 12000;
    static constexpr int kHeight = 9000;

    Stage();
    ~Stage() override;

    /// Pixels of this window per twip.
    double scale() const { return scale_; }
    /// Where the design's upper left corner lies, in pixels.
    QPointF designOrigin() const { return origin_; }
    /// What the window shows, in twips.
    QRectF covered() const { return {-origin_ / scale_, QSizeF(size()) / scale_}; }

    /// Fits the design into the window: by itself when it is shown, called when that is wanted sooner.
    void fit();

    /// All loaded forms, in the order in which they were loaded.
    std::vector<Form*> forms() const;
    /// The form that has the keyboard, or nothing.
    Form* focusForm() const;

    /// Lets nothing but \a form take input until leaveModal() of the same form.
    void enterModal(Form& form);
    void leaveModal(Form& form);
    Form* modalForm() const;

    /// Shows the pointer of what lies under the mouse now. Something that appears there would otherwise wait
    /// for the mouse's next move.
    void refreshPointer();

    /// Whether the last input came from the keyboard: focus is shown then, and not while the mouse is used.
    bool keyboardInUse() const { return keyboardInUse_; }
    /// What eyes that need more are shown.
    Eyes& eyes() { return eyes_; }
    const Eyes& eyes() const { return eyes_; }
    /// The plate that names what is pointed at or has the focus.
    const NamePlate& namePlate() const { return *namePlate_; }

  Q_SIGNALS:
    /// The user asked the window system to close the window.
    void closeRequested();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void raiseModal();
    void showToEyes();
    void watchInput(const QEvent& event);
    bool isPartOfThis(const QObject* watched) const;
    static void followFocus(QObject* watched, QEvent::Type type);

    Eyes eyes_;
    double scale_ = 1. / 15;
    QPointF origin_;
    QWidget* shield_;  // lies below the modal form and takes the mouse meant for the others
    NamePlate* namePlate_;
    Fingers* fingers_;
    std::vector<QPointer<Form>> modal_;
    bool keyboardInUse_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
