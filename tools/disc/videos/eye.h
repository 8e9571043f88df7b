#pragma once

#include "film.h"

namespace sarne::disc {

/// Where the viewer looks, from one line of a script to the next.
class Eye {
  public:
    explicit Eye(Film& film) : film_(film) {}

    /// A new set begins, seen whole.
    void open() { view_ = {}; }
    /// Goes to \a focus within the line's time, as near as \a nearness says (1 sees the whole set, 0 leaves
    /// the eye where it is), and no farther than the ground reaches.
    void look(QPointF focus, double nearness, double begin, double end);

  private:
    QPointF withinGround(QPointF focus, double near) const;

    Film& film_;
    View view_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
