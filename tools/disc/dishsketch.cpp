#include "dishsketch.h"

#include <QPainter>
#include <QPainterPath>
#include <QSet>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "dishtable.h"
#include "dishthings.h"
#include "dishwords.h"

namespace sarne::disc {
namespace {

/// Draws the lines of a description one after another.
class DishPainter {
  public:
    explicit DishPainter(DishTable& table) : table_(table), things_(table) {}

    void draw(const DishLine& line) {
        static const QHash<QString, void (DishPainter::*)(const DishLine&)> own{
            {QStringLiteral("table"), &DishPainter::ground},
            {QStringLiteral("cloth"), &DishPainter::cloth},
            {QStringLiteral("plate"), &DishPainter::vessel},
            {QStringLiteral("bowl"), &DishPainter::vessel},
            {QStringLiteral("board"), &DishPainter::vessel},
            {QStringLiteral("slate"), &DishPainter::vessel},
            {QStringLiteral("tray"), &DishPainter::vessel},
            {QStringLiteral("silvertray"), &DishPainter::vessel},
            {QStringLiteral("squareplate"), &DishPainter::vessel},
            {QStringLiteral("glassdish"), &DishPainter::vessel},
            {QStringLiteral("casserole"), &DishPainter::vessel},
            {QStringLiteral("pan"), &DishPainter::vessel},
            {QStringLiteral("kettle"), &DishPainter::vessel},
            {QStringLiteral("cup"), &DishPainter::vessel},
            {QStringLiteral("ramekin"), &DishPainter::vessel},
            {QStringLiteral("parcel"), &DishPainter::vessel},
            {QStringLiteral("paper"), &DishPainter::vessel},
            {QStringLiteral("eggplate"), &DishPainter::vessel},
            {QStringLiteral("jar"), &DishPainter::upright},
            {QStringLiteral("jug"), &DishPainter::upright},
            {QStringLiteral("glass"), &DishPainter::upright},
            {QStringLiteral("tumbler"), &DishPainter::upright},
            {QStringLiteral("bottle"), &DishPainter::upright},
            {QStringLiteral("candle"), &DishPainter::upright},
            {QStringLiteral("cone"), &DishPainter::upright},
            {QStringLiteral("pool"), &DishPainter::sauce},
            {QStringLiteral("drape"), &DishPainter::sauce},
            {QStringLiteral("liquid"), &DishPainter::sauce},
            {QStringLiteral("swirl"), &DishPainter::sauce},
            {QStringLiteral("drops"), &DishPainter::sprinkle},
            {QStringLiteral("sprinkle"), &DishPainter::sprinkle}};
        static const QSet<QString> silent{
            QStringLiteral("name"),  QStringLiteral("seed"),   QStringLiteral("camera"),
            QStringLiteral("light"), QStringLiteral("steam"),  QStringLiteral("backdrop"),
            QStringLiteral("line"),  QStringLiteral("string"), QString()};
        if (silent.contains(line.thing)) return;
        if (const auto how = own.value(line.thing))
            (this->*how)(line);
        else
            things(line);
    }

  private:
    /// How high the table or the highest vessel stands at a place.
    double surface(const QPointF& at) const {
        double z = 0;
        for (const Vessel& vessel : vessels_) {
            const double x = (at.x() - vessel.at.x()) / vessel.rx, y = (at.y() - vessel.at.y()) / vessel.ry;
            if (x * x + y * y < 1) z = std::max(z, vessel.z);
        }
        return z;
    }

    void ground(const DishLine& line) {
        const QColor wood = dishColourOf(line, QColor(120, 84, 50));
        QPainter& painter = table_.painter();
        painter.fillRect(QRect({0, 0}, kSketchSize), wood);
        for (int board = -10; board <= 10; ++board) {
            const Outline plank{
                {-40, board * 2.6}, {40, board * 2.6}, {40, board * 2.6 + 2.52}, {-40, board * 2.6 + 2.52}};
            const QPainterPath shape = table_.path(plank, {0, 0}, 0, 0);
            painter.setPen(Qt::NoPen);
            painter.setBrush(wood.darker(qRound(table_.chance(96, 122))));
            painter.drawPath(shape);
        }
    }

    void cloth(const DishLine& line) {
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const double turn = line.value(QStringLiteral("turn"), 0);
        const double sx = line.value(QStringLiteral("sx"), 14), sy = line.value(QStringLiteral("sy"), 10);
        const QColor colour = dishColourOf(line, QColor(216, 204, 176));
        const bool patterned =
            line.words.contains(QStringLiteral("check")) || line.words.contains(QStringLiteral("stripe"));
        table_.shadow(box(sx, sy), at, turn, 0, .3);
        const QPainterPath whole = table_.path(box(sx, sy), at, turn, .02);
        table_.light(whole, patterned ? QColor(238, 232, 220) : colour);
        if (!patterned) return;
        table_.painter().setBrush(QColor(colour.red(), colour.green(), colour.blue(), 120));
        const double s = qSin(qDegreesToRadians(turn)), c = qCos(qDegreesToRadians(turn));
        for (double x = -sx / 2 + .6; x < sx / 2 - .5; x += 1.6)
            table_.painter().drawPath(table_.path(box(.7, sy), at + QPointF(x * c, x * s), turn, .02));
        if (!line.words.contains(QStringLiteral("check"))) return;
        for (double y = -sy / 2 + .6; y < sy / 2 - .5; y += 1.6)
            table_.painter().drawPath(table_.path(box(sx, .7), at + QPointF(-y * s, y * c), turn, .02));
    }

    /// What a glass dish is filled with: clear, so that what lies in it shows.
    void bath(const DishLine& line) {
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const Outline outline =
            box(line.value(QStringLiteral("sx"), 9) - .6, line.value(QStringLiteral("sy"), 6) - .6);
        table_.painter().setPen(Qt::NoPen);
        table_.painter().setBrush(QColor(224, 214, 160, 70));
        table_.painter().drawPath(table_.path(outline, at, line.value(QStringLiteral("turn"), 0),
                                              line.value(QStringLiteral("h"), 1)));
    }

    void vessel(const DishLine& line) {
        if (line.thing == QStringLiteral("glassdish") && line.value(QStringLiteral("level"), 0) > 0)
            return bath(line);
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const double turn = line.value(QStringLiteral("turn"), 0);
        const bool square = line.has(QStringLiteral("sx")) || line.thing == QStringLiteral("squareplate") ||
                            line.thing == QStringLiteral("parcel");
        const double r = line.value(QStringLiteral("r"), line.number(0, 4));
        const double sx = square ? line.value(QStringLiteral("sx"), line.number(0, 8)) / 2
                                 : r * line.value(QStringLiteral("oval"), 1);
        const double sy =
            square ? line.value(QStringLiteral("sy"), line.number(1, line.number(0, 8))) / 2 : r;
        const double height = line.value(QStringLiteral("h"), line.thing == QStringLiteral("plate") ? .25
                                                              : line.number(1, .4) > 3              ? .3
                                                                                       : line.number(1, .4));
        const QColor colour = dishColourOf(line, defaultVesselColour(line.thing));
        const Outline outline = square ? box(sx * 2, sy * 2) : ellipse(sx, sy, 72);
        const QPainterPath top = table_.solid(outline, at, turn, line.value(QStringLiteral("on"), 0), height,
                                              colour, DishTable::Edge::sharp);
        hollow(line, outline, at, turn, height, colour);
        if (line.thing == QStringLiteral("board")) table_.fleck(top, colour, 300, 9);
        vessels_ << Vessel{at, sx, sy, height * (height > .6 ? .45 : .9)};
    }

    static QColor defaultVesselColour(const QString& thing) {
        if (thing == QStringLiteral("board")) return QColor(196, 160, 110);
        if (thing == QStringLiteral("slate")) return QColor(52, 56, 60);
        if (thing == QStringLiteral("silvertray")) return QColor(196, 198, 200);
        if (thing == QStringLiteral("kettle") || thing == QStringLiteral("pan")) return QColor(44, 42, 42);
        if (thing == QStringLiteral("glassdish")) return QColor(204, 220, 220);
        if (thing == QStringLiteral("paper") || thing == QStringLiteral("parcel"))
            return QColor(222, 200, 160);
        return QColor(244, 240, 232);
    }

    void hollow(const DishLine& line, const Outline& outline, const QPointF& at, double turn, double height,
                const QColor& colour) {
        const auto inner = [&](double part) {
            Outline smaller;
            for (const QPointF& p : outline) smaller << p * part;
            return table_.path(smaller, at, turn, height);
        };
        QPainter& painter = table_.painter();
        const QColor rim = dishColour(line.text(QStringLiteral("rim")));
        if (rim.isValid()) {
            painter.setPen(QPen(rim, 9));
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(inner(.96));
        }
        const QColor inside = dishColour(line.text(QStringLiteral("inside")));
        QLinearGradient depth(inner(.9).boundingRect().topLeft(), inner(.9).boundingRect().bottomRight());
        depth.setColorAt(0, (inside.isValid() ? inside : colour).darker(118));
        depth.setColorAt(1, (inside.isValid() ? inside : colour).lighter(106));
        painter.setPen(Qt::NoPen);
        painter.setBrush(depth);
        painter.drawPath(inner(height > .6 ? .93 : .8));
    }

    void upright(const DishLine& line) {
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const bool wide = line.thing == QStringLiteral("jar") || line.thing == QStringLiteral("jug");
        const double r = wide ? line.number(0, 1.2) : line.number(1, .7),
                     h = wide ? line.number(1, 3) : line.number(0, 4);
        const double z = surface(at);
        QColor colour = dishColourOf(line, QColor(222, 226, 220));
        if (line.words.contains(QStringLiteral("beer"))) colour = QColor(222, 160, 40);
        const bool clear = line.thing == QStringLiteral("jar") || line.thing == QStringLiteral("glass");
        colour.setAlpha(clear ? 70 : 255);
        table_.shadow(ellipse(r, r), at, 0, z, r);
        for (int i = 0; i <= 30; ++i) {
            const double up = i / 30.0;
            const double part = line.thing == QStringLiteral("cone") ? .15 + .85 * up : 1;
            QColor layer = colour.darker(qRound(130 - 30 * up));
            if (clear) layer.setAlpha(i == 0 || i == 30 ? 130 : 14);
            table_.painter().setPen(Qt::NoPen);
            table_.painter().setBrush(layer);
            table_.painter().drawPath(table_.path(ellipse(r * part, r * part), at, 0, z + h * up));
        }
    }

    /// An outline that ran as it liked.
    Outline puddle(double rx, double ry) {
        const double a = table_.chance(0, 6), b = table_.chance(0, 6);
        Outline outline;
        for (const QPointF& p : ellipse(rx, ry, 60)) {
            const double angle = std::atan2(p.y(), p.x());
            outline << p * (1 + .06 * qSin(3 * angle + a) + .04 * qSin(5 * angle + b));
        }
        return outline;
    }

    void sauce(const DishLine& line) {
        const QPointF at =
            line.point(QStringLiteral("at"), vessels_.isEmpty() ? QPointF() : vessels_.last().at);
        const double rx = line.has(QStringLiteral("r")) ? line.value(QStringLiteral("r"), 2)
                                                        : line.value(QStringLiteral("sx"), 3) / 2;
        const double ry = line.has(QStringLiteral("r")) ? rx : line.value(QStringLiteral("sy"), 2) / 2;
        const bool liquid = line.thing == QStringLiteral("liquid");
        const Outline outline = liquid ? ellipse(rx, ry, 60) : puddle(rx, ry);
        const double thick = line.value(QStringLiteral("thick"), .1);
        // The soup of smoked fish is pale, smoked fish itself is not.
        const bool smoked = line.words.contains(QStringLiteral("smoked"));
        const QColor colour = smoked ? QColor(234, 220, 188) : dishColourOf(line, QColor(220, 200, 150));
        if (liquid) {
            vessels_ << Vessel{at, rx, ry, line.value(QStringLiteral("level"), .5)};
            const QPainterPath top = table_.path(outline, at, 0, vessels_.last().z);
            table_.light(top, colour);
            table_.fleck(top, colour, 160, 8);
            return;
        }
        const double lift =
            line.thing == QStringLiteral("drape") || line.thing == QStringLiteral("swirl") ? .5 : 0;
        table_.solid(outline, at, 0, surface(at) + lift, thick, colour);
    }

    void sprinkle(const DishLine& line) {
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const QPointF within = line.point(QStringLiteral("within"), {2, 1.5});
        const QColor colour = dishColourOf(line, QColor(60, 90, 40));
        QPainter& painter = table_.painter();
        painter.setPen(Qt::NoPen);
        const bool round =
            line.words.contains(QStringLiteral("roe")) || line.thing == QStringLiteral("drops");
        for (int i = 0; i < line.number(0, 60); ++i) {
            const double a = table_.chance(0, 2 * M_PI), q = std::sqrt(table_.chance(0, 1));
            const QPointF spot = at + QPointF(within.x() * q * qCos(a), within.y() * q * qSin(a));
            painter.setBrush(colour.lighter(qRound(table_.chance(75, 135))));
            painter.save();
            painter.translate(table_.camera()({spot.x(), spot.y(), surface(spot) + table_.chance(.2, .6)}));
            painter.rotate(table_.chance(0, 180));
            painter.drawEllipse(QPointF(0, 0), round ? 7 : table_.chance(3, 9),
                                round ? 6 : table_.chance(2, 4));
            painter.restore();
        }
    }

    void things(const DishLine& line) {
        const int count = qMax(1, qRound(line.value(QStringLiteral("count"), 1)));
        const QPointF at = line.point(QStringLiteral("at"), {0, 0});
        const QPointF within = line.point(QStringLiteral("within"), {1, 1});
        const QPointF step = line.point(QStringLiteral("step"), {0, 0});
        for (int i = 0; i < count; ++i) {
            QPointF spot = at + step * i;
            double turn = line.value(QStringLiteral("turn"), 0);
            if (count > 1 && !line.has(QStringLiteral("step"))) {
                // Sunflower order: even all over, never two in one place.
                const double q = std::sqrt((i + .5) / count), a = i * 2.4;
                spot += QPointF(within.x() * q * qCos(a), within.y() * q * qSin(a));
                turn += table_.chance(-90, 90);
            }
            double z = surface(spot) + line.value(QStringLiteral("lift"), 0);
            if (line.has(QStringLiteral("on"))) z = line.value(QStringLiteral("on"), z);
            if (line.has(QStringLiteral("level")))
                z = line.value(QStringLiteral("level"), z) - line.value(QStringLiteral("sink"), .2);
            things_.draw(line, spot, turn, z);
        }
    }

    struct Vessel {
        QPointF at;
        double rx = 1;
        double ry = 1;
        double z = 0;
    };

    DishTable& table_;
    DishThings things_;
    QList<Vessel> vessels_;
};

/// Lamp light from the left, dusk at the edges.
void evening(QPainter& painter) {
    QRadialGradient lamp(QPointF(560, 420), 1300);
    lamp.setColorAt(0, QColor(255, 214, 150, 40));
    lamp.setColorAt(.55, QColor(0, 0, 0, 0));
    lamp.setColorAt(1, QColor(6, 20, 24, 170));
    painter.fillRect(QRect({0, 0}, kSketchSize), lamp);
}

}  // namespace

QImage sketchDish(const QString& description) {
    QList<DishLine> lines;
    for (const QString& text : description.split(u'\n')) lines << DishLine(text);
    const auto find = [&](const QString& thing) {
        for (const DishLine& line : lines)
            if (line.thing == thing) return line;
        return DishLine(QString());
    };
    if (find(QStringLiteral("camera")).thing.isEmpty()) return {};
    QImage picture(kSketchSize, QImage::Format_RGB32);
    picture.fill(QColor(60, 44, 30));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const DishCamera camera(find(QStringLiteral("camera")));
    DishTable table(painter, camera, static_cast<quint32>(find(QStringLiteral("seed")).number(0, 7)));
    DishPainter dish(table);
    for (const DishLine& line : lines) dish.draw(line);
    evening(painter);
    return picture;
}

}  // namespace sarne::disc
