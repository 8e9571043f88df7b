#pragma once

#include <QMap>
#include <QPointF>
#include <QString>
#include <QStringList>

#include "script.h"

namespace sarne::disc {

// The words that scripts may use, each list with its meaning.
const QMap<QString, Deed>& verbs();
const QMap<QString, Spectacle>& shows();
/// Where something comes from, goes to or is shifted, one centimetre long.
const QMap<QString, QPointF>& sides();
/// Places of the stage, in centimetres.
const QMap<QString, QPointF>& stageSpots();
const QStringList& prepositions();
/// How near the eye is, the whole view being 1.
const QMap<QString, double>& nearnesses();
/// How a tool is held, in degrees; 0 points to the right.
const QMap<QString, double>& angles();

/// A movement there and back: along the tool and across it in centimetres, how often a second.
struct Habit {
    QPointF reach;
    double perSecond = 3;
    double turn = 0;
};
const QMap<QString, Habit>& swings();

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
