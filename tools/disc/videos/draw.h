#pragma once

#include <QImage>
#include <QMap>
#include <QPainter>
#include <QPainterPath>

#include "film.h"

namespace sarne::disc {

/// Films are drawn in pixels of this size; the light comes from the left.
constexpr int kFilmWidth = 800;
constexpr int kFilmHeight = 600;

/// A kind of thing: how it is drawn around its own origin, and the properties it has beside place, turn, size
/// and opacity.
struct ActorKind {
    void (*draw)(QPainter&, const Pose&) = nullptr;
    QStringList properties;
};
const QMap<QString, ActorKind>& actorKinds();

const QStringList& sceneNames();
/// The ground of a scene. The pond is the splash screen's picture where \a art has it.
QImage drawScene(const QString& name, const QString& art);

/// One frame: the ground, the actors, the title and the caption.
QImage drawFrame(const Film& film, const QImage& ground, double seconds);

// The kinds, by file.
void drawCarp(QPainter& painter, const Pose& pose);
void drawTrout(QPainter& painter, const Pose& pose);
void drawKnife(QPainter& painter, const Pose& pose);
void drawScaler(QPainter& painter, const Pose& pose);
void drawFork(QPainter& painter, const Pose& pose);
void drawLadle(QPainter& painter, const Pose& pose);
void drawHand(QPainter& painter, const Pose& pose);
void drawWater(QPainter& painter, const Pose& pose);
void drawFlyingScales(QPainter& painter, const Pose& pose);
void drawRipples(QPainter& painter, const Pose& pose);
void drawBowl(QPainter& painter, const Pose& pose);
void drawPiece(QPainter& painter, const Pose& pose);
void drawPan(QPainter& painter, const Pose& pose);
void drawPlate(QPainter& painter, const Pose& pose);
void drawPotBack(QPainter& painter, const Pose& pose);
void drawPotFront(QPainter& painter, const Pose& pose);
void drawThermometer(QPainter& painter, const Pose& pose);
void drawAspic(QPainter& painter, const Pose& pose);
void drawMould(QPainter& painter, const Pose& pose);
void drawLemon(QPainter& painter, const Pose& pose);
void drawSign(QPainter& painter, const Pose& pose);

// Helpers that the kinds share.
QColor between(const QColor& from, const QColor& to, double share);
/// A number between 0 and 1 that looks random and is the same every time.
double scatter(int index, int salt = 0);
QPainterPath smoothPath(const QList<QPointF>& points, bool isClosed);
void dropShadow(QPainter& painter, const QPainterPath& shape, QPointF offset = {8, 11}, int alpha = 60);
void softSpot(QPainter& painter, QPointF centre, double radiusX, double radiusY, const QColor& colour);

}  // namespace sarne::disc
