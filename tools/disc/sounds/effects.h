#pragma once

#include <QHash>
#include <QList>
#include <utility>

#include "../textfile.h"
#include "sound.h"

namespace sarne::disc {

/// What a layer of an effect is made of.
enum class Voice { tone, noise, strike, grains, creak };
/// What is struck: it decides which overtones sound and how long.
enum class Material { wood, metal, glass, bell, stone };
/// What a cloud of grains consists of.
enum class Grain { bubble, crackle, crunch, tick };

/// One sound within an effect. Times in seconds, pitches in hertz, loudness in decibels.
struct Layer {
    Voice voice = Voice::tone;
    Material material = Material::wood;
    Grain grain = Grain::bubble;
    double from = 0;
    double length = 0.3;
    std::pair<double, double> pitch{440, 440};
    double loudness = 0;
    double attack = 0.002;
    /// The time in which it falls to 37 %; 0 keeps it up to the end.
    double decay = 0;
    /// How wide a noise is, in octaves.
    double width = 1;
    int count = 10;
    /// Even grains come like clockwork, the others at random.
    bool isEven = false;
    /// How often a second the loudness swells, 0 for never.
    double tremolo = 0;
};

struct Effect {
    Place place;
    /// The number of the resource; 0 when it is only used within music.
    int number = 0;
    QString name;
    double length = 0;
    /// The largest deflection in decibels.
    double peak = -6;
    QList<Layer> layers{};
};

/// Reads descriptions of effects: "== number | name | seconds | peak", then a layer a line, such as
/// "úder látka=dřevo výška=420 doznění=0,08". Whatever is wrong is reported with its line.
QList<Effect> readEffects(const Lines& lines, Problems& problems);

/// The effect as sound: mono, at rest at both ends. The same description always gives the same samples.
Sound renderEffect(const Effect& effect);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
