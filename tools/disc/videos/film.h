#pragma once

#include <QList>
#include <QPolygonF>
#include <QString>

#include "../problems.h"
#include "script.h"

namespace sarne::disc {

/// The film's stage in centimetres: what the whole view shows, (0, 0) being the middle of the part that no
/// caption covers.
constexpr double kStageWidth = 40;
/// How much of it lies above the middle; what it shows is four to three.
constexpr double kStageAbove = 0.3075 * kStageWidth;

/// What of a thing changes with time.
enum class Property { angle, opacity, reveal, lift, squash, count };

/// A property that goes from one value to another, slowly at both ends. Times are seconds of the film.
struct Glide {
    Property property = Property::opacity;
    double begin = 0;
    double end = 0;
    double from = 0;
    double to = 0;
};

/// A way that a thing goes, with the same gentle start and end.
struct Walk {
    double begin = 0;
    double end = 0;
    QPolygonF way;
};

/// A small movement there and back, many times: sawing, scraping, stirring, trembling.
struct Swing {
    double begin = 0;
    double end = 0;
    double perSecond = 3;
    QPointF reach;
    double turn = 0;
};

/// A picture on the stage.
struct Actor {
    QString name;
    QString layer;
    /// What has more lies above what has less.
    double level = 0;
    double size = 1;
    /// What of the picture is there, centimetres from its anchor; where one was cut, each half has its part.
    double left = -1000;
    double right = 1000;
    /// Where a picture that appears little by little has its edge at the beginning and at the end; equal ones
    /// show it at once.
    double revealFrom = 0;
    double revealTo = 0;
    /// Before this it lies in the shadow of the picture whose place it takes.
    double shadowFrom = 0;
    int set = 0;
    QList<Glide> glides;
    QList<Walk> walks;
    QList<Swing> swings;
};

/// How an actor stands at one moment.
struct Pose {
    QPointF place;
    double values[static_cast<int>(Property::count)] = {0, 0, 1, 0, 1};

    double& of(Property property) { return values[static_cast<int>(property)]; }
    double of(Property property) const { return values[static_cast<int>(property)]; }
    bool operator==(const Pose&) const = default;
};
Pose poseOf(const Actor& actor, double seconds);

/// Something that flows, flies or rises for a while about a place.
struct Show {
    Spectacle kind = Spectacle::water;
    double begin = 0;
    double end = 0;
    /// The place, or the actor that it goes with, -1 for none.
    QPointF place;
    int actor = -1;
    int set = 0;
};

/// A short text beside a place.
struct Tag {
    QString text;
    QPointF place;
    double begin = 0;
    double end = 0;
    int set = 0;
};

/// Where the eye is: the middle of what it sees and how much nearer than the whole view.
struct View {
    QPointF middle;
    double nearness = 1;
    bool operator==(const View&) const = default;
};

struct ViewMove {
    double begin = 0;
    double end = 0;
    View to;
};

/// A ground and since when it is seen.
struct Set {
    QString ground;
    double begin = 0;
    QList<ViewMove> views;
};
View viewOf(const Set& set, double seconds);

struct Cue {
    Place place;
    QString effect;
    double begin = 0;
    double end = 0;
};

struct Caption {
    QString text;
    /// "2 · Žábry": the chapter that it belongs to, empty in a film of one.
    QString chapter;
    double begin = 0;
    double end = 0;
};

/// A part of the film that can be gone to.
struct Chapter {
    QString title;
    double begin = 0;
};

/// What a script came to: everything has its time.
struct Film {
    QString title;
    double seconds = 0;
    QList<Set> sets;
    QList<Actor> actors;
    QList<Show> shows;
    QList<Tag> tags;
    QList<Cue> cues;
    QList<Caption> captions;
    QList<Chapter> chapters;
};

/// 0 to 1 within the times, slowly at both ends.
double easedShare(double seconds, double begin, double end);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
