#include <QMap>

#include "effects.h"
#include "parameters.h"

namespace sarne::disc {
namespace {

/// The value that \a name has in \a names; an error when it has none.
template <typename Value>
Value chosen(const QMap<QString, Value>& names, const QString& name, const Place& place, Problems& problems) {
    if (!names.contains(name))
        problems.error(place, QStringLiteral("%1 není žádné z: %2")
                                  .arg(name, QStringList(names.keys()).join(QStringLiteral(", "))));
    return names.value(name);
}

const QMap<QString, Voice>& voices() {
    static const QMap<QString, Voice> names{{QStringLiteral("tón"), Voice::tone},
                                            {QStringLiteral("šum"), Voice::noise},
                                            {QStringLiteral("úder"), Voice::strike},
                                            {QStringLiteral("zrna"), Voice::grains},
                                            {QStringLiteral("skřípot"), Voice::creak}};
    return names;
}

const QMap<QString, Material>& materials() {
    static const QMap<QString, Material> names{{QStringLiteral("dřevo"), Material::wood},
                                               {QStringLiteral("kov"), Material::metal},
                                               {QStringLiteral("sklo"), Material::glass},
                                               {QStringLiteral("zvon"), Material::bell},
                                               {QStringLiteral("kámen"), Material::stone}};
    return names;
}

const QMap<QString, Grain>& grains() {
    static const QMap<QString, Grain> names{{QStringLiteral("bublina"), Grain::bubble},
                                            {QStringLiteral("praskot"), Grain::crackle},
                                            {QStringLiteral("křup"), Grain::crunch},
                                            {QStringLiteral("tik"), Grain::tick}};
    return names;
}

Layer readLayer(const Line& line, Problems& problems) {
    Parameters words(line.text, line.place, problems);
    Layer layer;
    layer.voice = chosen(voices(), words.names().value(0), line.place, problems);
    if (words.has(QStringLiteral("látka")))
        layer.material = chosen(materials(), words.text(QStringLiteral("látka")), line.place, problems);
    if (words.has(QStringLiteral("zrno")))
        layer.grain = chosen(grains(), words.text(QStringLiteral("zrno")), line.place, problems);
    layer.from = words.number(QStringLiteral("od"), layer.from);
    layer.length = words.number(QStringLiteral("délka"), layer.length);
    layer.pitch = words.glide(QStringLiteral("výška"), layer.pitch.first);
    layer.loudness = words.number(QStringLiteral("hlas"), layer.loudness);
    layer.attack = words.number(QStringLiteral("náběh"), layer.attack);
    layer.decay = words.number(QStringLiteral("doznění"), layer.decay);
    layer.width = words.number(QStringLiteral("šíře"), layer.width);
    layer.count = static_cast<int>(words.number(QStringLiteral("počet"), layer.count));
    layer.isEven = words.names().contains(QStringLiteral("pravidelně"));
    layer.tremolo = words.number(QStringLiteral("chvění"), layer.tremolo);
    words.reportUnknown();
    return layer;
}

void checkEffect(const Effect& effect, Problems& problems) {
    if (effect.layers.isEmpty()) problems.error(effect.place, QStringLiteral("efekt nemá vrstvu"));
    if (effect.length < 0.05 || effect.length > 5)
        problems.error(effect.place, QStringLiteral("efekt netrvá 0,05 až 5 s"));
    if (effect.peak > -3) problems.error(effect.place, QStringLiteral("špička efektu je nad -3 dB"));
    for (const Layer& layer : effect.layers)
        if (layer.pitch.first <= 0 || layer.pitch.second <= 0 || layer.length <= 0 || layer.from < 0)
            problems.error(effect.place, QStringLiteral("vrstva nemá výšku nebo délku"));
}

Effect readEffect(const Section& section, Problems& problems) {
    const Row title = tableRows({{section.place, section.title}}).value(0);
    Effect effect{section.place, title.at(0).toInt(), title.at(1)};
    if (!readNumber(title.at(2), effect.length) ||
        (!title.at(3).isEmpty() && !readNumber(title.at(3), effect.peak)))
        problems.error(section.place, QStringLiteral("tohle není „číslo | název | vteřiny | špička“"));
    for (const Line& line : section.lines)
        if (!line.isBlank()) effect.layers << readLayer(line, problems);
    checkEffect(effect, problems);
    return effect;
}

}  // namespace

QList<Effect> readEffects(const Lines& lines, Problems& problems) {
    QList<Effect> effects;
    QStringList names;
    for (const Section& section : sections(lines).mid(1)) {
        effects << readEffect(section, problems);
        for (const QString& name : {effects.last().name, QString::number(effects.last().number)}) {
            if (name != QStringLiteral("0") && names.contains(name))
                problems.error(section.place, QStringLiteral("efekt %1 tu stojí podruhé").arg(name));
            names << name;
        }
    }
    return effects;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
