#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QString>

namespace sarne::disc {

/// Pictures drawn for what the art does not have yet, so that the program runs from the first day.

/// A plate with a fish in the colours of the recipe's kind of dish, its name below; 1600 x 1200.
QImage standInDish(int id, const QString& name, const QString& course);

/// The calm ground of a screen, in evening teal, with a paper field in the middle; 1600 x 1200.
QImage standInGround(const QString& title);

/// A named place of a picture, in twips of a screen.
struct NamedPlace {
    QRect place;
    QString name;
};

/// The ground of a screen whose things are still to be painted: a plate with its name at each place.
QImage standInPlaces(const QList<NamedPlace>& places);

/// A small object for a button: a copper plate with \a caption.
QImage standInObject(const QString& caption);

}  // namespace sarne::disc
