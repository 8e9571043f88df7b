#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "db/schema.h"
#include "kitchen/steps.h"

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

Ingredient butter() {
    Ingredient one;
    one.name = QStringLiteral("máslo");
    one.refinement = QStringLiteral("změklé");
    one.weights = {QStringLiteral("g"), 80};
    one.spoons = {QStringLiteral("lžíce"), 5};
    return one;
}

QString need(const Ingredient& one, double share, UnitSystem units, double portions) {
    return needText(one, share, units, Quantities(portions, 4, kCzech), kCzech).replace(QChar(0xa0), u' ');
}

TEST(NeedText, GivesTheShareForThePortionsAndUnits) {
    EXPECT_EQ(need(butter(), 1, UnitSystem::Weights, 4), QStringLiteral("máslo, změklé – 80 g"));
    EXPECT_EQ(need(butter(), 0.5, UnitSystem::Weights, 4), QStringLiteral("máslo, změklé – 40 g"));
    EXPECT_EQ(need(butter(), 0.5, UnitSystem::Weights, 6), QStringLiteral("máslo, změklé – 60 g"));
    EXPECT_EQ(need(butter(), 0.5, UnitSystem::Spoons, 4), QStringLiteral("máslo, změklé – 2,5 lžíce"));
    EXPECT_EQ(need(butter(), 1, UnitSystem::Spoons, 4), QStringLiteral("máslo, změklé – 5 lžic"));
    // Three thirds are all of it, not 79.99 g.
    EXPECT_EQ(need(butter(), 3 * (1. / 3), UnitSystem::Weights, 4), QStringLiteral("máslo, změklé – 80 g"));
    Ingredient salt;
    salt.name = QStringLiteral("sůl");
    EXPECT_EQ(need(salt, 1, UnitSystem::Weights, 4), QStringLiteral("sůl"));
    salt.weights.unit = QStringLiteral("podle chuti");
    EXPECT_EQ(need(salt, 1, UnitSystem::Weights, 4), QStringLiteral("sůl – podle chuti"));
}

TEST(FirstSentence, EndsWhereTheNextOneBegins) {
    EXPECT_EQ(firstSentence(QStringLiteral("Vaříme asi 1 l vody. Potom přidáme rybu.")),
              QStringLiteral("Vaříme asi 1 l vody."));
    EXPECT_EQ(firstSentence(QStringLiteral("Pečeme při 200 °C. 10 minut čekáme")),
              QStringLiteral("Pečeme při 200 °C. 10 minut čekáme"));
    EXPECT_EQ(firstSentence(QString()), QString());
}

TEST(ReadSteps, ABookWithoutThemHasNone) {
    QTemporaryDir folder;
    Database db;
    EXPECT_TRUE(readSteps(db, 1).empty());
    ASSERT_TRUE(db.Create(folder.filePath(QStringLiteral("Sarne.drc"))));
    EXPECT_TRUE(readSteps(db, 1).empty());
    ASSERT_TRUE(db.makeTables({recipeSchema()}));
    EXPECT_TRUE(readSteps(db, 1).empty());
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO Kroky VALUES (7, 1, '', 'Osolíme.')")));
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO Kroky VALUES (8, 2, '', 'Jiný recept.')")));
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO Kroky VALUES (9, 1, 'Na stůl', 'Podáváme.')")));
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO KrokySur VALUES (9, 0, 0.5)")));
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO KrokySur VALUES (7, 3, 1)")));
    ASSERT_TRUE(db.Execute(QStringLiteral("INSERT INTO KrokySur VALUES (7, 0, 0.5)")));
    const auto steps = readSteps(db, 1);
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].needs, (std::vector<StepNeed>{{0, 0.5}, {3, 1}}));
    EXPECT_EQ(steps[1].title, QStringLiteral("Na stůl"));
    EXPECT_EQ(steps[1].needs, (std::vector<StepNeed>{{0, 0.5}}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
