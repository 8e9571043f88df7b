#include "words.h"

namespace sarne::disc {

const QMap<QString, Deed>& verbs() {
    static const QMap<QString, Deed> words{
        {QStringLiteral("leží"), Deed::lies},        {QStringLiteral("stojí"), Deed::lies},
        {QStringLiteral("přijde"), Deed::comes},     {QStringLiteral("přijede"), Deed::comes},
        {QStringLiteral("jede"), Deed::goes},        {QStringLiteral("jde"), Deed::goes},
        {QStringLiteral("posune"), Deed::goes},      {QStringLiteral("otočí"), Deed::turns},
        {QStringLiteral("obrátí"), Deed::flips},     {QStringLiteral("je"), Deed::becomes},
        {QStringLiteral("rozdělí"), Deed::divides},  {QStringLiteral("krájí"), Deed::slices},
        {QStringLiteral("odkryje"), Deed::uncovers}, {QStringLiteral("odejde"), Deed::leaves},
        {QStringLiteral("odjede"), Deed::leaves},    {QStringLiteral("zmizí"), Deed::leaves}};
    return words;
}

const QMap<QString, Spectacle>& shows() {
    static const QMap<QString, Spectacle> words{
        {QStringLiteral("voda"), Spectacle::water},
        {QStringLiteral("šupiny"), Spectacle::scales},
        {QStringLiteral("pára"), Spectacle::steam},
        {QStringLiteral("bublinky"), Spectacle::bubbles},
        {QStringLiteral("drobné bubliny"), Spectacle::simmer},
        {QStringLiteral("mouka"), Spectacle::flour},
        {QStringLiteral("sůl"), Spectacle::salt},
        {QStringLiteral("kapky"), Spectacle::drops},
        {QStringLiteral("pramínek"), Spectacle::pouring},
    };
    return words;
}

const QMap<QString, QPointF>& sides() {
    static const QMap<QString, QPointF> words{
        {QStringLiteral("zleva"), {-1, 0}},  {QStringLiteral("doleva"), {-1, 0}},
        {QStringLiteral("vlevo"), {-1, 0}},  {QStringLiteral("zprava"), {1, 0}},
        {QStringLiteral("doprava"), {1, 0}}, {QStringLiteral("vpravo"), {1, 0}},
        {QStringLiteral("shora"), {0, -1}},  {QStringLiteral("nahoru"), {0, -1}},
        {QStringLiteral("výš"), {0, -1}},    {QStringLiteral("zdola"), {0, 1}},
        {QStringLiteral("dolů"), {0, 1}},    {QStringLiteral("níž"), {0, 1}}};
    return words;
}

const QMap<QString, QPointF>& stageSpots() {
    static const QMap<QString, QPointF> words{
        {QStringLiteral("uprostřed"), {0, 0}},           {QStringLiteral("střed"), {0, 0}},
        {QStringLiteral("nahoře"), {0, -6.5}},           {QStringLiteral("dole"), {0, 6.5}},
        {QStringLiteral("levý kraj"), {-13, 0}},         {QStringLiteral("levého kraje"), {-13, 0}},
        {QStringLiteral("pravého kraje"), {13, 0}},      {QStringLiteral("pravý kraj"), {13, 0}},
        {QStringLiteral("levý horní roh"), {-13, -6.5}}, {QStringLiteral("pravý horní roh"), {13, -6.5}},
        {QStringLiteral("levý dolní roh"), {-13, 6.5}},  {QStringLiteral("pravý dolní roh"), {13, 6.5}}};
    return words;
}

const QStringList& prepositions() {
    static const QStringList words =
        QStringLiteral("od k ke na do za u nad pod před z ze v ve vedle po přes").split(u' ');
    return words;
}

const QMap<QString, double>& nearnesses() {
    static const QMap<QString, double> words{{QStringLiteral("z celku"), 1},
                                             {QStringLiteral("blíž"), 1.5},
                                             {QStringLiteral("zblízka"), 2.1},
                                             {QStringLiteral("docela zblízka"), 3}};
    return words;
}

const QMap<QString, double>& angles() {
    static const QMap<QString, double> words{{QStringLiteral("podél"), 0},
                                             {QStringLiteral("napříč"), -82},
                                             {QStringLiteral("šikmo"), -40},
                                             {QStringLiteral("šikmo dolů"), 35},
                                             {QStringLiteral("zprava podél"), 180}};
    return words;
}

const QMap<QString, Habit>& swings() {
    static const QMap<QString, Habit> words{{QStringLiteral("řeže"), {{0.9, 0}, 1.6, 0}},
                                            {QStringLiteral("škrábe"), {{1.1, 0.2}, 2.6, 0}},
                                            {QStringLiteral("seká"), {{0, 0.5}, 2, 0}},
                                            {QStringLiteral("krouží"), {{0.7, 0.7}, 0.8, 0}},
                                            {QStringLiteral("obaluje se"), {{0.8, 0.3}, 1.1, 3}},
                                            {QStringLiteral("chvěje se"), {{0.06, 0.04}, 1.2, 0.4}},
                                            {QStringLiteral("třese se"), {{0.25, 0.1}, 3, 2}},
                                            {QStringLiteral("tahá"), {{0.5, 0}, 1, 0}}};
    return words;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
