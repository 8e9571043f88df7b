#pragma once

#include <QList>
#include <QMap>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <optional>

#include "../textfile.h"
#include "cast.h"

namespace sarne::disc {

/// What a line of a script does.
enum class Deed {
    lies,
    comes,
    goes,
    turns,
    flips,
    becomes,
    divides,
    slices,
    uncovers,
    leaves,
    show,
    view,
    tag
};

/// What flows, flies or rises.
enum class Spectacle { water, scales, steam, bubbles, simmer, flour, salt, drops, pouring };

/// A place as the line names it: of a thing's own places one, the thing itself, or one of the stage.
struct Spot {
    /// The name of the thing as it plays, empty when any thing with such a place will do.
    QString thing;
    /// The place's word, empty for the thing's own middle.
    QString place;
    /// The place on the stage, when it is none of a thing.
    std::optional<QPointF> stage;
};

/// One line of a script, understood.
struct Sentence {
    Place place;
    /// Begins together with the line before.
    bool isTogether = false;
    QString subject;
    Deed deed = Deed::lies;
    Spectacle show = Spectacle::water;
    std::optional<Spot> from;
    std::optional<Spot> to;
    QString line;
    /// From where or to where, off the stage: one unit long, or zero.
    QPointF side;
    /// How far to the side, centimetres; 0: off the stage.
    double far = 0;
    QPointF shift;
    QStringList parts;
    int count = 0;
    /// Seconds; negative when the line does not say, 0 for "until the speech ends".
    double seconds = -1;
    bool isElastic = false;
    std::optional<double> angle;
    double nearness = 0;
    QString look;
    QString swing;
    QString effect;
    bool effectAtEnd = false;
    bool byTip = false;
    bool isBelow = false;
    /// Stays on what it lies on while it goes.
    bool isSliding = false;
    QString text;
};

/// A caption, what is said and what happens meanwhile.
struct Scene {
    Place place;
    QString caption;
    QString speech;
    /// The ground, where the film cuts to another.
    QString ground;
    QList<Sentence> sentences;
    /// The title of the chapter that begins here, empty within a chapter.
    QString chapter;
};

struct Script {
    Place place;
    QString title;
    /// Second of the background music from which it sounds under the film; negative for none.
    double music = -1;
    QString ground;
    QList<Scene> scenes;
};

/// What a film plays on: a picture below the art's folder; a room fills the frame, a table goes on beyond it.
struct Ground {
    QString picture;
    bool isRoom = false;
};
/// The grounds that scripts may ask for, by name.
const QMap<QString, Ground>& grounds();

/// Reads a script; content/README.md has the language. Whatever is unknown is reported with its line.
Script readScript(const Lines& lines, const QString& title, const Cast& cast, Problems& problems);

/// Understands one line of a scene.
Sentence readSentence(const Line& line, const Cast& cast, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
