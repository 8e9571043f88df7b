#pragma once

#include <optional>
#include <vector>

#include "film.h"

namespace sarne::disc {

/// A thing as it is at the moment that the script has come to.
struct Standing {
    QString name;
    const Role* role = nullptr;
    int actor = 0;
    QPointF place;
    double angle = 0;
};

/// What is on the stage while a script is gone through, and the film's actors that show it.
class Stage {
  public:
    Stage(Film& film, const Cast& cast) : film_(film), cast_(cast) {}

    Standing* find(const QString& name);
    QStringList names() const;
    Actor& actorOf(const Standing& one) { return film_.actors[one.actor]; }
    const Picture& layerOf(const Standing& one) const;

    /// Puts a thing on the stage, not to be seen yet. \a isBelow: under all of its kind.
    Standing& enter(const QString& name, const Role& role, const QString& look, QPointF place, double angle,
                    bool isBelow);
    /// Puts a thing in another's place, showing the same part of the same picture.
    Standing& enterLike(const Standing& other, const QString& name, const Role& role);
    /// The same, below everything that lies there.
    Standing& enterBelow(const Standing& other, const QString& name, const Role& role);
    /// Gives the thing another picture at the same place; its earlier actor stays as it is.
    void change(Standing& one, const QString& look);
    /// Takes it off; what its actor shows is told by its glides.
    void leave(const QString& name);
    void clear() { standing_.clear(); }

    /// Where a spot is at the moment; nothing when no such thing is on the stage.
    std::optional<QPointF> spot(const Spot& spot) const;
    /// A thing's own line with that word, on the stage; empty when there is none.
    QPolygonF line(const QString& word) const;

  private:
    const Standing* havingPlace(const QString& thing, const QString& word) const;

    Film& film_;
    const Cast& cast_;
    std::vector<Standing> standing_;
    int entered_ = 0;
};

/// \a point of a thing turned by \a angle degrees.
QPointF turned(QPointF point, double angle);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
