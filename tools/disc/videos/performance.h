#pragma once

#include <optional>

#include "../problems.h"
#include "eye.h"
#include "stage.h"

namespace sarne::disc {

/// What carrying out one line of a script has to hand: the line and its time, the stage, and the small steps
/// of which all deeds are made. Faults are reported with the line.
class Performance {
  public:
    Performance(Film& made, const Cast& players, Problems& found)
        : film(made), cast(players), problems(found), stage(made, players), eye(made) {}

    void error(const QString& text) { problems.error(line->place, text); }
    /// What the line speaks of; null, and an error, when it is not on the stage.
    Standing* subject();
    /// Where a spot of the line is, the line's shift added; an error when nothing there has it.
    std::optional<QPointF> at(const std::optional<Spot>& spot);
    /// What of a thing is led to a place: a tool's edge or its tip, else its own middle.
    QPointF leading(const Role& role, double angle) const;

    void glide(const Standing& one, Property property, double from, double to, double first, double last) {
        stage.actorOf(one).glides << Glide{property, from, to, first, last};
    }
    void appear(const Standing& one, double from, double to) {
        glide(one, Property::opacity, from, to, 0, 1);
    }
    void hide(const Standing& one, double when) { glide(one, Property::opacity, when, when, 0, 0); }
    /// Turns a thing to \a angle from where it points.
    void turn(const Standing& one, double angle, double from, double to) {
        if (angle != one.angle) glide(one, Property::angle, from, to, one.angle, angle);
    }
    void look(QPointF focus) { eye.look(focus, line->nearness, begin, end); }

    Film& film;
    const Cast& cast;
    Problems& problems;
    Stage stage;
    Eye eye;
    const Sentence* line = nullptr;
    double begin = 0;
    double end = 0;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
