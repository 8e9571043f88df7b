#include "dishwords.h"

#include <QSet>

namespace sarne::disc {
namespace {

const QSet<QString>& pointKeys() {
    static const QSet<QString> keys{QStringLiteral("at"), QStringLiteral("within"), QStringLiteral("step")};
    return keys;
}

const QSet<QString>& valueKeys() {
    static const QSet<QString> keys = [] {
        QSet<QString> all;
        for (const char* key :
             {"turn",   "size",   "on",       "count",   "tilt",     "roll",  "lift", "sink",  "radius",
              "level",  "spin",   "stepturn", "r",       "h",        "sx",    "sy",   "thick", "col",
              "rim",    "inside", "oval",     "deep",    "kind",     "seed",  "bend", "cuts",  "skin",
              "handle", "length", "high",     "far",     "up",       "lens",  "blur", "turns", "w",
              "folds",  "minz",   "smooth",   "crumple", "rounding", "steep", "focus"})
            all.insert(QLatin1String(key));
        return all;
    }();
    return keys;
}

struct Named {
    const char* name;
    DishThing thing;
};

using enum DishShape;
const Named kThings[] = {{"almond", {disc, 0xffdcb98a, .34, .55, .12}},
                         {"apple_slice", {wedge, 0xffe9dcae, 1, .5, .25}},
                         {"asparagus", {stick, 0xff6f8f3a, 2.6, .1, .2}},
                         {"asparagus_bundle", {slab, 0xff6f8f3a, 5.4, .22, .5}},
                         {"aspic_cube", {slab, 0xffd9a648, .42, 1, .4}},
                         {"aspic_mould", {mound, 0xffd29a3c, 1.95, 1, 1.6}},
                         {"aubergine_slice", {disc, 0xff8a7a52, .9, 1, .15}},
                         {"bacon", {slab, 0xffa83c2c, 2, .22, .08}},
                         {"baconwrap", {disc, 0xffb5563c, 3.5, .42, .7}},
                         {"basketlemon", {ball, 0xffe9c52e, .8, 1, .8}},
                         {"battered", {disc, 0xffd1902e, 5, .34, .9}},
                         {"block", {slab, 0xffe58a62, 3.4, .55, 1}},
                         {"bread", {crust, 0xffe5d2a8, 3.6, .72, .4}},
                         {"breaded", {disc, 0xffc98a34, 3.3, .6, .5}},
                         {"butter", {slab, 0xfff2dc84, .9, .8, .3}},
                         {"butter_curl", {ball, 0xfff2dc84, .4, 1, .4}},
                         {"caper", {ball, 0xff5d6b30, .15, 1, .15}},
                         {"carrot_slice", {disc, 0xffe07c1e, .42, 1, .08}},
                         {"carrot_star", {disc, 0xffe07c1e, .4, 1, .08}},
                         {"cherry_tomato", {ball, 0xffc8281a, .45, 1, .45}},
                         {"chip", {stick, 0xffe0b04a, 2.3, .12, .25}},
                         {"chlebicek", {crust, 0xfff0e4c4, 2.6, .6, .5}},
                         {"coldfish", {fish, 0xfff0e2b6, 9.5, .26, .7}},
                         {"corn", {disc, 0xffeabf2e, 3.4, .32, .55}},
                         {"courgette_slice", {disc, 0xff8aa24c, .8, 1, .2}},
                         {"cranberry", {ball, 0xff8a141a, .18, 1, .18}},
                         {"crouton", {slab, 0xffc8913c, .3, 1, .3}},
                         {"cube", {slab, 0xfff2e8d4, .85, .9, .6}},
                         {"cutlet", {horseshoe, 0xffee9a72, 1.4, 1, .5}},
                         {"dice", {slab, 0xffe0b04a, .4, 1, .35}},
                         {"dumpling_ball", {ball, 0xfff2ead2, .4, 1, .4}},
                         {"dumpling_slice", {disc, 0xfff4ecd4, 1.25, 1, .35}},
                         {"egg_half", {egg, 0xfffaf6ea, .65, .75, .35}},
                         {"egg_piped", {egg, 0xfffaf6ea, .78, .75, .5}},
                         {"egg_slice", {egg, 0xfffaf6ea, .62, .9, .1}},
                         {"elbow", {stick, 0xffe8cc7c, .6, .35, .2}},
                         {"fillet", {disc, 0xfff0e6d2, 4, .42, .5}},
                         {"fish", {fish, 0xff8a8468, 7, .28, .7}},
                         {"flake", {disc, 0xffe6c4a0, .8, .6, .2}},
                         {"fork", {stick, 0xffc8c4bc, 5.4, .06, .1}},
                         {"garlic", {ball, 0xfff2ead8, .3, 1, .3}},
                         {"gherkin", {stick, 0xff6f7f2e, 1.4, .35, .4}},
                         {"gherkin_fan", {leaf, 0xff7f8f34, 2.1, .6, .2}},
                         {"herb_butter", {disc, 0xffe6dc8c, .55, 1, .2}},
                         {"horseshoe", {horseshoe, 0xffb8863e, 1.25, 1, .55}},
                         {"jarroll", {ball, 0xffb4b2a4, .8, 1, .8}},
                         {"knife", {stick, 0xffc8c4bc, 5.6, .08, .1}},
                         {"leaf", {leaf, 0xff4e6b2c, 1.2, .45, .03}},
                         {"leek_ring", {ring, 0xffa8c06c, .45, 1, .1}},
                         {"lemon_half", {disc, 0xfff0d84a, .85, 1, .5}},
                         {"lemon_slice", {disc, 0xfff2de62, .75, 1, .08}},
                         {"lemon_wedge", {wedge, 0xfff0d23a, 1, .5, .5}},
                         {"lentils", {mound, 0xff7a5a34, 2.9, .8, .5}},
                         {"lettuce", {leaf, 0xff7fa03c, 2.4, .8, .2}},
                         {"loaf", {slab, 0xffb07a3c, 4.6, .55, 2}},
                         {"loafslice", {crust, 0xfff0e8cc, 2.5, .85, .4}},
                         {"milt", {ball, 0xfff6f0e2, .6, 1, .3}},
                         {"mushroom_slice", {disc, 0xffc49a66, 1, .7, .12}},
                         {"olive", {ball, 0xff2a2028, .28, 1, .28}},
                         {"onion_ring", {ring, 0xfff2eee4, .6, 1, .08}},
                         {"patty", {disc, 0xffa8702c, 1.2, 1, .6}},
                         {"pea", {ball, 0xff6f9a2c, .18, 1, .18}},
                         {"pepper_piece", {slab, 0xffc22a1a, 1.1, .7, .15}},
                         {"pepper_ring", {ring, 0xffc22a1a, .5, 1, .1}},
                         {"pinksalad", {mound, 0xffc24a7a, 2.7, 1, 1.4}},
                         {"potato", {ball, 0xffe8cc72, .65, 1, .6}},
                         {"potato_half", {ball, 0xffecd684, .78, 1, .5}},
                         {"potatoes_mash", {mound, 0xfff2e2a4, 1.7, 1, .9}},
                         {"prune", {ball, 0xff2e1a16, .35, 1, .3}},
                         {"radish_slice", {disc, 0xfff0d8dc, .42, 1, .06}},
                         {"raisin", {ball, 0xff4a2a18, .16, 1, .12}},
                         {"rice", {mound, 0xfff6f2e6, 2.2, 1, 1.3}},
                         {"roll", {disc, 0xffc8923e, 3.4, .34, .7}},
                         {"rolled", {disc, 0xffa8aaa6, 1.6, .8, .8}},
                         {"rose", {ball, 0xffe87c50, 1, 1, .5}},
                         {"salad_heap", {mound, 0xfff0e2b0, 1.7, 1, .8}},
                         {"skewer", {stick, 0xff7a5428, 6, .2, .6}},
                         {"slice_cured", {disc, 0xffea7c4c, 3, .5, .08}},
                         {"smallherring", {fish, 0xff8a6a42, 4.6, .24, .5}},
                         {"smokedpiece", {disc, 0xff9a6a34, 1.7, .6, .6}},
                         {"spaghetti", {mound, 0xffecd080, 2.6, 1, 1.3}},
                         {"splitfish", {fish, 0xff7c8048, 5.2, .34, .5}},
                         {"spoon", {stick, 0xffc8c4bc, 6, .1, .1}},
                         {"sprig", {sprig, 0xff4e7a2a, 1.6, .6, .1}},
                         {"stick", {stick, 0xffc8a050, 2, .05, .1}},
                         {"strip", {stick, 0xffe07c1e, 1.6, .08, .1}},
                         {"strip_pile", {mound, 0xffc88a34, 1.75, 1, 1.5}},
                         {"stuffing", {disc, 0xffb08a4c, 3.8, .3, .6}},
                         {"tart", {crust, 0xffe8cc7c, 8.4, 1, 1}},
                         {"tartare", {mound, 0xffea7648, 1.55, 1, 1.35}},
                         {"terrineslice", {crust, 0xfff2d8c4, 2.8, .75, .38}},
                         {"toast_triangle", {wedge, 0xffd8a450, 1.5, 1, .15}},
                         {"tomato_slice", {disc, 0xffc83420, .82, 1, .12}},
                         {"tomato_wedge", {wedge, 0xffc8301c, .85, .55, .4}},
                         {"walnut", {ball, 0xff8a5a2c, .4, 1, .3}},
                         {"wedge", {crust, 0xffe8cc7c, 3.2, .8, 1}},
                         {"yolk", {ball, 0xfff0a81e, .5, 1, .4}}};

struct NamedColour {
    const char* name;
    QRgb colour;
};
const NamedColour kColours[] = {
    // materials
    {"carrot", 0xffe07c1e},
    {"celeriac", 0xfff0e6c4},
    {"leek", 0xff9cb85c},
    {"pepper", 0xffc22a1a},
    {"greenpepper", 0xff5d8a2a},
    {"yellowpepper", 0xffe8b820},
    {"potato", 0xffecd684},
    {"pink", 0xffee9a72},
    {"tuna", 0xffc89a7c},
    {"grey", 0xffb0b0aa},
    {"trout", 0xff8c7a52},
    {"mackerel", 0xff3c5a66},
    {"perch", 0xff6c7a3a},
    {"herring", 0xff8c9ca6},
    {"carp", 0xff9a7430},
    {"flatfish", 0xff8a6236},
    {"tench", 0xff6e7434},
    {"roasted", 0xffb8803a},
    {"grilled", 0xffb48a52},
    {"breaded", 0xffcc8c34},
    {"blue", 0xff7c98a8},
    {"eel", 0xff7a5228},
    {"rye", 0xffb08a5a},
    {"dark", 0xff5c3a22},
    {"toast", 0xffd8a450},
    {"red", 0xff8a2a4a},
    {"basil", 0xff3f7a2a},
    {"sage", 0xff8a9a78},
    {"bay", 0xff5a6a34},
    {"fir", 0xff24502e},
    {"rosemary", 0xff4e6a4a},
    {"thyme", 0xff5e7a44},
    {"mint", 0xff3f8a44},
    {"cured", 0xffea7c4c},
    {"smoked", 0xffe0743c},
    {"gold", 0xffd0a84c},
    {"cucumber", 0xff7fa050},
    {"salmon", 0xffee9a72},
    // sauces
    {"cream", 0xfff0e2bc},
    {"dill", 0xffd4d8a2},
    {"paprika", 0xffce6426},
    {"butter", 0xffc8862c},
    {"mustard", 0xffd0a43c},
    {"hollandaise", 0xffeecc58},
    {"tartar", 0xfff0ebd8},
    {"mayonnaise", 0xfff2e8c4},
    {"curry", 0xffe0aa30},
    {"tomato", 0xffb43218},
    {"soured", 0xfff5f2ea},
    {"peas", 0xff80a03c},
    {"spread", 0xffe0cca8},
    {"horseradish", 0xfff4efe4},
    {"oil", 0xffd0b24c},
    {"juice", 0xffd0a44a},
    {"green", 0xff6f8a28},
    {"honeymustard", 0xffc89228},
    {"fishsoup", 0xffd4a856},
    {"christmas", 0xffead6a4},
    {"halaszle", 0xffa4280c},
    {"broth", 0xffd29a3a},
    {"vinegar", 0xffe0d6a8},
    // what is sprinkled
    {"parsley", 0xff3f7a26},
    {"chives", 0xff4e8a30},
    {"caraway", 0xff4a3018},
    {"marjoram", 0xff6a7a44},
    {"fat", 0xffe6bc4c},
    {"roe", 0xffe8741c},
    {"caviar", 0xff1c1a1e},
    {"cheese", 0xffe8b44a},
    {"crumbs", 0xffc8923e},
    {"mustardseed", 0xffd0a43c},
    {"peppercorns", 0xff2c2420},
    {"pinkpepper", 0xffc8505c},
    // tables, cloths and rims
    {"oak", 0xff9a6c3c},
    {"walnut", 0xff5a3820},
    {"pale", 0xffc8a878},
    {"teal", 0xff1c5a62},
    {"linen", 0xffd8ccb0},
    {"check", 0xffb04438},
    {"stripe", 0xffd4c8b8},
    {"damask", 0xfff0ebe2},
    {"ochre", 0xffc8983c},
    {"white", 0xfff4efe4},
    {"copper", 0xffd08f50},
    {"brown", 0xff6a4426},
    {"iron", 0xff2c2a2a},
    {"steel", 0xff8a8e92}};

}  // namespace

DishLine::DishLine(const QString& text) {
    const QStringList parts = text.section(u'#', 0, 0).simplified().split(u' ');
    thing = parts.value(0);
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const QString& part = parts[i];
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        const qsizetype taken = pointKeys().contains(part) ? 2 : valueKeys().contains(part) ? 1 : 0;
        if (taken > 0) {
            values_.insert(part, parts.mid(i + 1, taken));
            i += taken;
        } else if (isNumber && part.size() < 6) {
            numbers << number;
        } else {
            words << part;
        }
    }
}

double DishLine::value(const QString& key, double otherwise) const {
    bool ok = false;
    const double number = text(key).toDouble(&ok);
    return ok ? number : otherwise;
}

QPointF DishLine::point(const QString& key, const QPointF& otherwise) const {
    const QStringList both = values_.value(key);
    return both.size() == 2 ? QPointF(both[0].toDouble(), both[1].toDouble()) : otherwise;
}

DishThing dishThing(const QString& name) {
    for (const Named& one : kThings)
        if (name == QLatin1String(one.name)) return one.thing;
    return {};
}

QColor dishColour(const QString& word) {
    for (const NamedColour& one : kColours)
        if (word == QLatin1String(one.name)) return QColor(one.colour);
    bool isHex = false;
    const uint hex = word.toUInt(&isHex, 16);
    return isHex && word.size() == 6 ? QColor(QRgb(hex | 0xff000000u)) : QColor();
}

QColor dishColourOf(const DishLine& line, const QColor& otherwise) {
    const QStringList named{line.text(QStringLiteral("col")), line.text(QStringLiteral("kind"))};
    for (const QString& word : named + line.words)
        if (const QColor known = dishColour(word); known.isValid()) return known;
    return otherwise;
}

}  // namespace sarne::disc
