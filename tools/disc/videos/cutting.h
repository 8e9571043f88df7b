#pragma once

#include "performance.h"

namespace sarne::disc {

/// The deeds of a line after which there is more on the stage than before: what is cut and what was under it.
class Cutting {
  public:
    explicit Cutting(Performance& now) : now_(now) {}

    /// One thing becomes two at a place of it.
    void divides();
    /// A knife cuts a thing into equal slices, one after the other.
    void slices();
    /// What lies below looks like what is about to be taken away.
    void uncovers();

  private:
    QList<double> pieces(const Standing& whole, const Role& role);
    void sliceWith(Standing& knife, const Standing& whole, const QList<double>& cuts);
    void stroke(Standing& knife, QPointF place, double begin, double each);
    void push(const QString& name, double begin);

    Performance& now_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
