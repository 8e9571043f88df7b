#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "../textfile.h"

namespace sarne::disc {

/// How a thing of a film stands at one moment: its properties, and the seconds since the film began, by which
/// water ripples and steam rises.
struct Pose {
    QHash<QString, double> values;
    double seconds = 0;

    double of(const QString& property, double missing = 0) const { return values.value(property, missing); }
};

/// A property that goes from one value to another between two shares of a step, slowly at both ends.
struct Move {
    QString property;
    double from = 0;
    double to = 1;
    double first = 0;
    double last = 1;
};

/// A movement there and back, several times between two shares of a step.
struct Swing {
    double times = 4;
    double dx = 0;
    double dy = 0;
    double turn = 0;
    double from = 0;
    double to = 1;
};

/// A thing that is drawn: its kind ("kapr", "nůž" …) and how it stands at first.
struct Actor {
    Place place;
    QString name;
    QString kind;
    QHash<QString, double> start;
};

struct SoundCue {
    Place place;
    QString effect;
    double share = 0;
    double loudness = -10;
};

/// One caption, spoken and written, and what happens meanwhile.
struct Step {
    Place place;
    QString caption;
    /// At least so many seconds; the spoken caption may need more.
    double seconds = 2.5;
    QHash<QString, QList<Move>> moves{};
    QHash<QString, QList<Swing>> swings{};
    QList<SoundCue> sounds{};
    /// The times in the film, known when the captions have been spoken.
    double begin = 0;
    double end = 0;
};

struct Film {
    Place place;
    QString title;
    QString scene;
    /// Second of the background music from which it sounds under the film; negative for none.
    double music = -1;
    QList<Actor> actors;
    QList<Step> steps;

    double seconds() const { return steps.isEmpty() ? 0 : steps.last().end; }
    /// How the actor stands at \a seconds.
    Pose pose(const Actor& actor, double seconds) const;
};

/// Reads a film's script:
///   scéna: prkno
///   věc: ryba kapr x=400 y=300            a name and a kind; the things in front come last
///   == The caption.
///   trvá: 4
///   nůž: od=0 do=0,5 x=100>300 otočení=-40
///   nůž: od=0,5 do=1 kmitů=4 dx=30
///   zvuk: 0,3 nalévání hlas=-12
/// Whatever is unknown or wrong is reported with its line.
Film readFilm(const Lines& lines, const QString& title, Problems& problems);

}  // namespace sarne::disc
