#pragma once

#include <QMouseEvent>
#include <QPointer>

#include "forms/letterkeys.h"
#include "forms/twipwidget.h"

namespace sarne {

class Control;
class Stage;

/// The keyboard on the screen, over everything else, beside the entry that it types into. It never takes the
/// keyboard from the entry, and goes when the entry loses it or is not in sight any more.
class LetterBoard : public TwipWidget {
    Q_OBJECT
  public:
    /// Types into \a target, the widget with the cursor in \a entry.
    LetterBoard(Stage& stage, Control& entry, QWidget& target);

    const LetterKeys& keys() const { return keys_; }
    void close();

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void point(int key);
    void paintKey(QPainter& painter, int key) const;
    void use(int key);
    void sendKey(int key);
    void write(const QString& text, int inPlaceOf = 0);
    QString before() const;
    bool hasSelection() const;

    Stage& stage_;
    QPointer<QWidget> target_;
    LetterKeys keys_;
    int hovered_ = -1;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
