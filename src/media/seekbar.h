#pragma once

#include "forms/control.h"

namespace sarne {

/// A thin bar that shows how far something has played and takes clicks to go elsewhere.
class SeekBar : public Control {
    Q_OBJECT
  public:
    SeekBar(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Slider; }
    /// Both in milliseconds; a \a length of 0 means that nothing is known.
    void show(qint64 position, qint64 length);

    /// The position that a click \a x twips from the left end asks for.
    qint64 positionAt(int x) const;

  Q_SIGNALS:
    void sought(qint64 milliseconds);

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    qint64 position_ = 0, length_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
