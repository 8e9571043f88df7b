#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QString>
#include <QStringList>

namespace sarne::disc {

/// One line of a dish's description: the thing, the plain words and numbers behind it, and its named values
/// ("at 1 2", "turn 30", "rim blue").
class DishLine {
  public:
    explicit DishLine(const QString& text);

    QString thing;
    QStringList words;
    QList<double> numbers;

    bool has(const QString& key) const { return values_.contains(key); }
    double value(const QString& key, double otherwise) const;
    QPointF point(const QString& key, const QPointF& otherwise) const;
    QString text(const QString& key) const { return values_.value(key).value(0); }
    double number(int index, double otherwise) const { return numbers.value(index, otherwise); }

  private:
    QHash<QString, QStringList> values_;
};

enum class DishShape {
    heap,
    ball,
    disc,
    slab,
    ring,
    stick,
    wedge,
    leaf,
    sprig,
    egg,
    fish,
    horseshoe,
    mound,
    crust
};

/// How a thing is drawn when its line does not say otherwise. Lengths are in the description's unit.
struct DishThing {
    DishShape shape = DishShape::heap;
    QRgb colour = 0xffb89468;
    double size = 0.5;
    double ratio = 1;
    double height = 0.3;
};

DishThing dishThing(const QString& name);
/// The colour that a word of the line stands for ("carrot", "roasted", "5a3016"); invalid when none.
QColor dishColour(const QString& word);
/// The colour that a line asks for, \a otherwise when it asks for none.
QColor dishColourOf(const DishLine& line, const QColor& otherwise);

}  // namespace sarne::disc
