#pragma once

#include <QPointer>
#include <optional>
#include <utility>

#include "forms/control.h"

namespace sarne {

class LetterBoard;

/// The small sign at the end of an entry for those who have only a mouse at hand: a click on it opens the
/// keyboard on the screen and closes it; in an entry of numbers its upper half makes the number one more, its
/// lower half one less. The keyboard has no use for it and passes it by.
class EntrySign : public Control {
    Q_OBJECT
  public:
    /// Lies on \a entry, whose cursor is in \a target.
    EntrySign(Control& entry, QWidget& target);

    /// The entry is one of numbers from \a least to \a most.
    void setSteps(int least, int most);
    bool hasSteps() const { return steps_.has_value(); }
    /// The keyboard, while it is open.
    LetterBoard* board() const;

    QAccessible::Role role() const override { return QAccessible::Button; }

  Q_SIGNALS:
    /// The user wants the number \a more larger, and not out of the limits.
    void stepped(int more, int least, int most);

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void use();
    void toggleBoard();
    void paintKeys(QPainter& painter) const;
    void paintSteps(QPainter& painter) const;

    Control& entry_;
    QWidget& target_;
    QPointer<LetterBoard> board_;
    std::optional<std::pair<int, int>> steps_;
    bool upper_ = false;  ///< half pressed last
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
