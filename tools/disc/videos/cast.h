#pragma once

#include <QHash>
#include <QList>
#include <QPolygonF>
#include <QSize>
#include <QString>
#include <QStringList>

#include "../textfile.h"

namespace sarne::disc {

/// A rendered picture with transparency. Lengths on the films' stage are centimetres, x to the right, y
/// towards the viewer; (0, 0) of a picture is the place that stays when one picture takes another's turn.
struct Picture {
    QString file;
    QSize size;
    QPointF anchor;
    double perCentimetre = 1;

    /// Where a place given in hundredths of the picture's width and height lies.
    QPointF fromHundredths(QPointF place) const;
    double left() const { return -anchor.x() / perCentimetre; }
    double right() const { return (size.width() - anchor.x()) / perCentimetre; }
};

/// What decides which thing lies above which.
enum class Kind { vessel, food, tool };

/// A thing that may play in a film: by which words the scripts call it, how it may look and its places.
struct Role {
    Place place;
    /// The name first, then its other grammatical forms.
    QStringList forms;
    Kind kind = Kind::food;
    /// The looks by name, in the order of the file; the first is the usual one.
    QList<std::pair<QString, QString>> looks;
    /// A place has one point, a line several; by each of its words.
    QHash<QString, QPolygonF> places;
    /// The point that is led along a line or set on a place: the edge of a knife.
    QPointF edge;
    QPointF tip;
    double size = 1;

    const QString& name() const { return forms.first(); }
    /// The layer that shows a look; empty when the role does not have it.
    QString layerOf(const QString& look) const;
    QStringList lookNames() const;
};

/// Everything that may be seen in the films: content/videa/obsazeni.txt over the rendered layers.
struct Cast {
    QHash<QString, Picture> layers;
    QList<Role> roles;

    /// The role that \a words call, by any form, a number behind it left aside.
    const Role* find(const QString& words) const;
    QStringList names() const;
};

/// The list of layers that stands beside them: "name file width height x y length pixels", a unit being
/// 3.5 cm.
QHash<QString, Picture> readLayers(const Lines& lines, Problems& problems);

/// Reads the roles:
///   == nůž, nože, nožem | nástroj
///   vzhled: obyčejný = nuz
///   ostří: 70 50                              in hundredths of the first look's width and height
///   od hlavy, k hlavě, hlavu: 22 50           a place, by its forms
///   po páteři: 24 45, 60 48, 90 50            a line
///   velikost: 80                              in hundredths
Cast readCast(const Lines& lines, const QHash<QString, Picture>& layers, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
