#include <gtest/gtest.h>

#include <QtEndian>

#include <QTemporaryDir>
#include <map>

#include "db/database.h"
#include "db/schema.h"
#include "db/userfile.h"
#include "kitchen/cooked.h"
#include "kitchen/cookingpages.h"
#include "kitchen/cookingrecipe.h"
#include "kitchen/fishamount.h"
#include "kitchen/ringwave.h"
#include "kitchen/steps.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

TEST(PartsThatFit, AreCutBetweenSentencesAndElseBetweenWords) {
    test::expectCases(u"casti"_s, [](const QString& text) {
        const int most = text.section(u' ', 0, 0).toInt();
        const QString words = text.section(u' ', 1);
        if (most == 0) return firstSentence(words);
        const auto fits = [most](const QString& part) { return part.size() <= most; };
        const std::vector<QString> parts = partsThatFit(words, fits);
        return QStringList(parts.begin(), parts.end()).join(u'|');
    });
}

TEST(CookingRecipe, IsReadWithAllThatCookingNeeds) {
    QTemporaryDir folder;
    Database db;
    ASSERT_TRUE(db.Open(test::writeRecipeDatabase(
        folder.filePath(u"t.drc"_s),
        {u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (7, 'Kapr', 4)"_s,
         u"INSERT INTO Suroviny (ID, Polozka) VALUES (1, 'kapr'), (2, 'sůl')"_s,
         u"INSERT INTO Jednotky (ID, Polozka) VALUES (1, 'g')"_s,
         u"INSERT INTO SpojSur VALUES (7,1,0,1,800,0,0,0), (7,2,0,1,10,0,0,0)"_s,
         u"INSERT INTO Pomucky (ID, Polozka) VALUES (3, 'pánev')"_s,
         u"INSERT INTO SpojPomucky VALUES (7,3)"_s,
         u"INSERT INTO Kroky VALUES (5,7,'','Rybu osolíme.'), (6,7,'','Pečeme 20 minut. Hotovo.'),"
         "(8,7,'Na stůl','Konec.')"_s,
         u"INSERT INTO KrokySur VALUES (5,0,1), (5,1,0.5), (6,1,0), (6,-1,1), (6,2,1)"_s})));
    QStringList rows;
    for (const double portions : {0., 6.}) {
        const CookingRecipe read = readCookingRecipe(db, 7, {portions, UnitSystem::Weights},
                                                     QLocale(QLocale::Czech, QLocale::CzechRepublic));
        rows << u"%1 %2, %3"_s.arg(read.id).arg(read.name, read.portionsText()) << read.tools;
        for (const QString& line : ingredientLines(read.ingredients, UnitSystem::Weights, read.quantities))
            rows << line;
        for (const CookingStep& step : read.steps)
            rows << step.title + u": "_s + step.text << read.needsOf(step).split(u'\n');
        for (const CookingPage& page :
             cookingPages(read.steps, [](const QString& text) { return text.size() < 17; }))
            rows << u"%1: %2 %3/%4"_s.arg(int(page.kind)).arg(page.step).arg(page.part).arg(page.parts) +
                        (page.kind == CookingPage::Kind::Step
                             ? u' ' + read.counterOf(page) + u" – "_s + read.timerName(page)
                             : QString());
    }
    test::expectText(u"k-vareni"_s, rows.join(u'\n'));
    EXPECT_TRUE(readCookingRecipe(db, 8, {}, QLocale()).name.isEmpty());
    EXPECT_TRUE(cookingPages({}, [](const QString&) { return true; }).empty());
}

TEST(Cooked, IsKeptOnceADayAndByRecipe) {
    QTemporaryDir folder;
    UserFile file(folder.filePath(u"vlastni.db"_s));
    const QDate first(2026, 11, 20), second(2026, 11, 21);
    EXPECT_TRUE(keepCooked(file, 1, u"Kapr"_s, first, 4));
    EXPECT_TRUE(keepCooked(file, 1, u"Kapr"_s, second, 4));
    EXPECT_TRUE(keepCooked(file, 1, u"Kapr"_s, second, 6));
    EXPECT_TRUE(keepCooked(file, 2, u"Štika"_s, first, 2));
    EXPECT_EQ(cookedDays(file, 1), (std::vector<QDate>{second, first}));
    EXPECT_TRUE(cookedDays(file, 3).empty());
    UserFile nowhere;
    EXPECT_FALSE(keepCooked(nowhere, 1, u"Kapr"_s, first, 4));
}

TEST(RingWave, IsAWholeSoundThatIsHeardAndNotClipped) {
    const QByteArray wave = ringWave();
    ASSERT_GT(wave.size(), 44);
    EXPECT_TRUE(wave.startsWith("RIFF"));
    const auto number = [&](int at) { return int(qFromLittleEndian<quint16>(wave.constData() + at)); };
    EXPECT_EQ((QList<int>{number(20), number(22), number(32), number(34)}), (QList<int>{1, 1, 2, 16}))
        << "plain samples on one channel, 2 bytes of 16 bits each";
    const auto size = [&](int at) { return int(qFromLittleEndian<quint32>(wave.constData() + at)); };
    EXPECT_EQ((QList<int>{size(4), size(40)}), (QList<int>{int(wave.size()) - 8, int(wave.size()) - 44}));
    EXPECT_EQ((QList<int>{size(16), size(24), size(28)}), (QList<int>{16, 22050, 44100}));
    EXPECT_EQ(wave.size() - 44, 2 * 44100) << "two seconds";
    const auto* samples = reinterpret_cast<const qint16*>(wave.constData() + 44);
    int loudest = 0;
    for (qsizetype i = 0; i < (wave.size() - 44) / 2; ++i)
        loudest = std::max(loudest, std::abs(int(samples[i])));
    EXPECT_GT(loudest, 8000);
    EXPECT_LT(loudest, 32000);
    const auto loudness = [&](double from) {
        int most = 0;
        for (int i = int(from * 22050), end = i + 1100; i < end; ++i)
            most = std::max(most, std::abs(int(samples[i])));
        return most;
    };
    for (const double stroke : {.34, .68})
        EXPECT_GT(loudness(stroke), 1.5 * loudness(stroke - .06)) << stroke;
    EXPECT_LT(loudness(1.02), loudness(.96)) << "three strokes";
    EXPECT_LT(loudness(1.9), loudest / 5) << "it dies away";
}

TEST(MainFish, SaysForHowManyItIsEnough) {
    using Bought = MainFish::Bought;
    const MainFish steaks{u"kapr, podkovy"_s, 1200, 4, 0.7};
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1200, Bought::AsInTheList), 4);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1340, Bought::AsInTheList), 4.5);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(1340, Bought::Whole), 3.1);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(0, Bought::Whole), 0);
    EXPECT_DOUBLE_EQ(steaks.portionsFor(-5, Bought::AsInTheList), 0);
    EXPECT_TRUE(steaks.isCut());
    EXPECT_FALSE((MainFish{{}, 600, 2, 1}.isCut()));
    EXPECT_DOUBLE_EQ((MainFish{{}, 0, 2, 1}.portionsFor(500, Bought::Whole)), 0);
}

TEST(MainFish, IsTheLineThatTheBookNames) {
    const QTemporaryDir folder;
    Database db;
    EXPECT_FALSE(mainFish(db, 1));
    ASSERT_TRUE(db.Open(test::writeRecipeDatabase(
        folder.filePath(u"Sarne.drc"_s),
        {u"INSERT INTO Suroviny VALUES (1, 'kapr'), (2, 'cibule')"_s,
         u"INSERT INTO Upresneni VALUES (1, 'filety'), (2, 'podkovy')"_s,
         u"INSERT INTO Jednotky VALUES (1, 'g')"_s, u"INSERT INTO Vyteznost VALUES (1, 45)"_s,
         u"INSERT INTO Recepty (ID, Porce) VALUES (1, 4), (2, 4)"_s,
         u"INSERT INTO SpojSur VALUES (1, 2, 0, 1, 80, 1, 80, 0), (1, 1, 1, 1, 800, 1, 800, 0)"_s,
         u"INSERT INTO Fakta (ID, Ryba) VALUES (1, 1), (2, -1)"_s})));
    QStringList told;
    const auto fish = mainFish(db, 1);
    ASSERT_TRUE(fish);
    EXPECT_EQ(fish->name, u"kapr, filety"_s);
    EXPECT_EQ(fish->portions, 4);
    EXPECT_DOUBLE_EQ(fish->wholeShare, 0.45);
    for (const char* other :
         {"UPDATE SpojSur SET ID_JdnKg = 0", "UPDATE SpojSur SET ID_JdnKg = 1, MnozstviKg = 0",
          "UPDATE SpojSur SET MnozstviKg = 5", "UPDATE Vyteznost SET ID = 2",
          "UPDATE SpojSur SET ID_Upresneni = 0", "UPDATE Fakta SET Ryba = 0", "UPDATE Fakta SET Ryba = 2"}) {
        ASSERT_TRUE(db.Execute(QLatin1String(other)));
        const auto now = mainFish(db, 1);
        told << QLatin1String(other) + u": "_s +
                    (now ? u"%1 %2 g, %3 left"_s.arg(now->name).arg(now->grams).arg(now->wholeShare)
                         : u"none"_s);
    }
    test::expectText(u"hlavni-ryba"_s, told.join(u'\n'));
    EXPECT_FALSE(mainFish(db, 2));
    EXPECT_FALSE(mainFish(db, 3));
}

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

Ingredient butter() {
    Ingredient one;
    one.name = u"máslo"_s;
    one.refinement = u"změklé"_s;
    one.weights = {u"g"_s, 80};
    one.spoons = {u"lžíce"_s, 5};
    return one;
}

/// "0.5 of máslo for 6" by weight, "on spoons" by the spoon.
TEST(NeedText, GivesTheShareForThePortionsAndUnits) {
    Ingredient salt, toTaste;
    salt.name = toTaste.name = u"sůl"_s;
    toTaste.weights.unit = u"podle chuti"_s;
    const std::map<QString, Ingredient> all{
        {u"máslo"_s, butter()}, {u"sůl"_s, salt}, {u"dochucení"_s, toTaste}};
    test::expectCases(u"potreba"_s, [&](const QString& text) {
        const QStringList words = text.split(u' ');
        const auto units = words.contains(u"spoons") ? UnitSystem::Spoons : UnitSystem::Weights;
        const QStringList share = words[0].split(u'/');
        return needText(all.at(words[2]), share[0].toDouble() * (1 / share.value(1, u"1"_s).toDouble()),
                        units, Quantities(words[4].toDouble(), 4, kCzech), kCzech);
    });
}

TEST(ReadSteps, ABookWithoutThemHasNone) {
    QTemporaryDir folder;
    Database db;
    EXPECT_TRUE(readSteps(db, 1).empty());
    ASSERT_TRUE(db.Create(folder.filePath(u"Sarne.drc"_s)));
    EXPECT_TRUE(readSteps(db, 1).empty());
    ASSERT_TRUE(db.makeTables({recipeSchema()}));
    EXPECT_TRUE(readSteps(db, 1).empty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
