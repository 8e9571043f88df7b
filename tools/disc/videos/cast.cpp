#include "cast.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>

#include "../nearword.h"
#include "../sounds/parameters.h"

namespace sarne::disc {
namespace {

constexpr double kUnit = 3.5;

const QMap<QString, Kind>& kinds() {
    static const QMap<QString, Kind> names{{QStringLiteral("nádobí"), Kind::vessel},
                                           {QStringLiteral("jídlo"), Kind::food},
                                           {QStringLiteral("nástroj"), Kind::tool}};
    return names;
}

/// Reads the lines of one role.
class RoleReader {
  public:
    RoleReader(const Section& section, const QHash<QString, Picture>& layers, Problems& problems)
        : layers_(layers), problems_(problems) {
        const Row title = tableRows({{section.place, section.title}}).value(0);
        role_.place = section.place;
        role_.forms = trimmedParts(title.at(0), u',');
        if (role_.forms.isEmpty()) role_.forms << QString();
        if (!kinds().contains(title.at(1)))
            problems_.error(section.place, QStringLiteral("věc není nádobí, jídlo ani nástroj"));
        role_.kind = kinds().value(title.at(1));
        for (const Line& line : section.lines)
            if (!line.isBlank()) entry(keyValue(line));
        if (role_.looks.isEmpty()) problems_.error(section.place, QStringLiteral("věc nemá vzhled"));
    }

    Role role() const { return role_; }

  private:
    void entry(const KeyValue& entry) {
        if (entry.key == QStringLiteral("vzhled"))
            looks(entry);
        else if (entry.key == QStringLiteral("velikost"))
            role_.size = numbers(entry.place, entry.value).value(0, 100) / 100;
        else if (entry.key == QStringLiteral("ostří"))
            role_.edge = points(entry).value(0);
        else if (entry.key == QStringLiteral("špička"))
            role_.tip = points(entry).value(0);
        else
            for (const QString& form : trimmedParts(entry.key, u','))
                role_.places.insert(form, points(entry));
    }

    void looks(const KeyValue& entry) {
        for (const QString& part : trimmedParts(entry.value, u',')) {
            const QString name = part.section(u'=', 0, 0).trimmed();
            const QString layer = part.section(u'=', 1).trimmed();
            if (!layers_.contains(layer))
                problems_.error(entry.place, QStringLiteral("obrázek „%1“ neexistuje").arg(layer) +
                                                 didYouMean(layer, layers_.keys()));
            role_.looks.append({name, layer});
        }
    }

    QList<double> numbers(const Place& place, const QString& text) {
        QList<double> all;
        for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
            double value = 0;
            if (!readNumber(word, value)) problems_.error(place, QStringLiteral("„%1“ není číslo").arg(word));
            all << value;
        }
        return all;
    }

    QPolygonF points(const KeyValue& entry) {
        const Picture layer = layers_.value(role_.looks.isEmpty() ? QString() : role_.looks.first().second);
        QPolygonF all;
        for (const QString& pair : entry.value.split(QStringLiteral(", "))) {
            const QList<double> values = numbers(entry.place, pair);
            if (values.size() != 2)
                problems_.error(entry.place, QStringLiteral("místo má dvě čísla: %1").arg(pair));
            else
                all << layer.fromHundredths({values[0], values[1]}) * role_.size;
        }
        return all;
    }

    const QHash<QString, Picture>& layers_;
    Problems& problems_;
    Role role_;
};

}  // namespace

QPointF Picture::fromHundredths(QPointF place) const {
    return QPointF(place.x() * size.width() / 100 - anchor.x(),
                   place.y() * size.height() / 100 - anchor.y()) /
           perCentimetre;
}

QString Role::layerOf(const QString& look) const {
    const auto found =
        std::find_if(looks.cbegin(), looks.cend(), [&](const auto& one) { return one.first == look; });
    return found == looks.cend() ? QString() : found->second;
}

QStringList Role::lookNames() const {
    QStringList names;
    for (const auto& look : looks) names << look.first;
    return names;
}

const Role* Cast::find(const QString& words) const {
    static const QRegularExpression number(QStringLiteral(" \\d+$"));
    const QString name = QString(words).remove(number);
    for (const Role& role : roles)
        if (role.forms.contains(name)) return &role;
    return nullptr;
}

QStringList Cast::names() const {
    QStringList all;
    for (const Role& role : roles) all << role.name();
    return all;
}

QHash<QString, Picture> readLayers(const Lines& lines, Problems& problems) {
    QHash<QString, Picture> layers;
    for (const Line& line : lines) {
        const QStringList words = line.text.split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty() || line.text.startsWith(u'#')) continue;
        const Picture layer{words.value(1),
                            {words.value(2).toInt(), words.value(3).toInt()},
                            {words.value(4).toDouble(), words.value(5).toDouble()},
                            words.value(7).toDouble() / kUnit};
        if (layer.size.isEmpty() || layer.perCentimetre <= 0)
            problems.error(line.place, QStringLiteral("řádek obrázku nemá rozměry"));
        else
            layers.insert(words.first(), layer);
    }
    return layers;
}

Cast readCast(const Lines& lines, const QHash<QString, Picture>& layers, Problems& problems) {
    Cast cast{layers, {}};
    for (const Section& section : sections(lines).mid(1)) {
        const Role role = RoleReader(section, layers, problems).role();
        for (const QString& form : role.forms)
            if (cast.find(form))
                problems.error(section.place, QStringLiteral("„%1“ tu stojí podruhé").arg(form));
        cast.roles << role;
    }
    return cast;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
