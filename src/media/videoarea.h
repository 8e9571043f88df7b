#pragma once

#include "forms/control.h"

namespace sarne {

class MultimediaControl;

/// Where a player's picture shows, its proportions kept, black around it.
class VideoArea : public Control {
    Q_OBJECT
  public:
    /// \a player may be null: then the area stays black.
    VideoArea(Form& form, const QString& name, MultimediaControl* player);

    QAccessible::Role role() const override { return QAccessible::Animation; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    MultimediaControl* player_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
