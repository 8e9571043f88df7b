#include <algorithm>
#include <cmath>

#include "draw.h"

namespace sarne::disc {
namespace {

constexpr double kFade = 0.3;

QFont textFont(const QString& family, int pixels) {
    QFont font(family);
    font.setPixelSize(pixels);
    return font;
}

void drawTitle(QPainter& painter, const QString& title, double opacity) {
    if (title.isEmpty()) return;
    painter.setOpacity(opacity);
    QFont font = textFont(QStringLiteral("Liberation Serif"), 30);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(14, 58, 64, 225));
    painter.drawRect(QRectF(0, 0, kFilmWidth, 58));
    painter.setBrush(QColor(208, 143, 80));
    painter.drawRect(QRectF(0, 58, kFilmWidth, 3));
    painter.setPen(QColor(225, 225, 125));
    painter.drawText(QRectF(0, 0, kFilmWidth, 56), Qt::AlignCenter, title);
}

void drawCaption(QPainter& painter, const Step& step, double seconds) {
    const double opacity = std::clamp(std::min(seconds - step.begin, step.end - seconds) / kFade, 0.0, 1.0);
    painter.setOpacity(opacity);
    painter.setPen(QPen(QColor(208, 143, 80), 2));
    painter.setBrush(QColor(244, 234, 210, 245));
    const QRectF paper(40, 502, 720, 84);
    painter.drawRoundedRect(paper, 12, 12);
    painter.setFont(textFont(QStringLiteral("Liberation Sans"), 27));
    painter.setPen(QColor(43, 29, 18));
    painter.drawText(paper.adjusted(18, 4, -18, -4), Qt::AlignCenter | Qt::TextWordWrap, step.caption);
}

void drawActor(QPainter& painter, const Actor& actor, const Pose& pose) {
    const double opacity = pose.of(QStringLiteral("vidět"), 1);
    const auto kind = actorKinds().constFind(actor.kind);
    if (opacity <= 0 || kind == actorKinds().cend()) return;
    painter.save();
    painter.setOpacity(std::min(1.0, opacity));
    painter.translate(pose.of(QStringLiteral("x")), pose.of(QStringLiteral("y")));
    painter.rotate(pose.of(QStringLiteral("otočení")));
    const double scale = pose.of(QStringLiteral("měřítko"), 1);
    painter.scale(scale, scale);
    kind->draw(painter, pose);
    painter.restore();
}

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

const QMap<QString, ActorKind>& actorKinds() {
    static const QStringList fish = words(
        "očištěná ploutve převrácená řez otevřená vnitřnosti zářez podélně filet odložený kostra stažená "
        "pečená krájená porce stín");
    static const QMap<QString, ActorKind> kinds{
        {QStringLiteral("kapr"), {drawCarp, fish}},
        {QStringLiteral("pstruh"), {drawTrout, fish.mid(1)}},
        {QStringLiteral("nůž"), {drawKnife, {}}},
        {QStringLiteral("škrabka"), {drawScaler, {}}},
        {QStringLiteral("vidlička"), {drawFork, {}}},
        {QStringLiteral("naběračka"), {drawLadle, words("proud")}},
        {QStringLiteral("ruka"), {drawHand, {}}},
        {QStringLiteral("voda"), {drawWater, words("síla")}},
        {QStringLiteral("šupiny"), {drawFlyingScales, words("síla")}},
        {QStringLiteral("kruhy"), {drawRipples, words("síla")}},
        {QStringLiteral("miska"), {drawBowl, words("obsah")}},
        {QStringLiteral("kousek"), {drawPiece, words("mouka vejce strouhanka smažená uvařená")}},
        {QStringLiteral("pánev"), {drawPan, words("bublá pára")}},
        {QStringLiteral("talíř"), {drawPlate, {}}},
        {QStringLiteral("hrnec"), {drawPotBack, words("bublá")}},
        {QStringLiteral("okraj"), {drawPotFront, words("pára")}},
        {QStringLiteral("teploměr"), {drawThermometer, words("teplota")}},
        {QStringLiteral("aspik"), {drawAspic, words("výška kousky tuhý")}},
        {QStringLiteral("forma"), {drawMould, {}}},
        {QStringLiteral("citron"), {drawLemon, {}}},
        {QStringLiteral("nápis"), {drawSign, words("číslo")}},
    };
    return kinds;
}

QImage drawFrame(const Film& film, const QImage& ground, double seconds) {
    QImage image = ground;
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (const Actor& actor : film.actors) drawActor(painter, actor, film.pose(actor, seconds));
    drawTitle(painter, film.title, std::clamp(seconds / (2 * kFade), 0.0, 1.0));
    for (const Step& step : film.steps)
        if (seconds >= step.begin && seconds < step.end) drawCaption(painter, step, seconds);
    return image;
}

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mixed = [&](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * std::clamp(share, 0.0, 1.0)));
    };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue()),
            mixed(from.alpha(), to.alpha())};
}

double scatter(int index, int salt) {
    quint32 x =
        static_cast<quint32>(index) * 2654435761U + static_cast<quint32>(salt) * 40503U * 65537U + 12345U;
    x ^= x >> 15;
    x *= 2246822519U;
    x ^= x >> 13;
    x *= 3266489917U;
    x ^= x >> 16;
    return x / 4294967296.0;
}

/// A curve through all points (Catmull and Rom's), closed or open.
QPainterPath smoothPath(const QList<QPointF>& points, bool isClosed) {
    const auto count = points.size();
    const auto at = [&](qsizetype i) {
        return isClosed ? points[(i + count) % count] : points[std::clamp<qsizetype>(i, 0, count - 1)];
    };
    QPainterPath path(points.first());
    for (qsizetype i = 0; i < count - (isClosed ? 0 : 1); ++i)
        path.cubicTo(at(i) + (at(i + 1) - at(i - 1)) / 6, at(i + 1) - (at(i + 2) - at(i)) / 6, at(i + 1));
    if (isClosed) path.closeSubpath();
    return path;
}

void dropShadow(QPainter& painter, const QPainterPath& shape, QPointF offset, int alpha) {
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 10, 4, alpha / 2));
    painter.drawPath(shape.translated(offset));
    painter.drawPath(shape.translated(offset * 0.6));
    painter.restore();
}

void softSpot(QPainter& painter, QPointF centre, double radiusX, double radiusY, const QColor& colour) {
    painter.save();
    painter.translate(centre);
    painter.scale(radiusX, radiusY);
    QRadialGradient paint(QPointF(0, 0), 1);
    QColor none = colour;
    none.setAlpha(0);
    paint.setColorAt(0, colour);
    paint.setColorAt(1, none);
    painter.setPen(Qt::NoPen);
    painter.setBrush(paint);
    painter.drawEllipse(QPointF(0, 0), 1, 1);
    painter.restore();
}

}  // namespace sarne::disc
