// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/database.h"
#include "db/userfile.h"
#include "kitchen/dinner.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

PlannedDish dish(int minutes, const QStringList& steps, const char* ahead = "", int served = 18 * 60) {
    PlannedDish one{QStringLiteral("Kapr"), minutes, QString::fromUtf8(ahead), {}, served};
    for (const QString& step : steps) one.steps.push_back({{}, step, {}});
    one.steps.push_back({QStringLiteral("Na stůl"), QStringLiteral("Vydrží dva dny."), {}});
    return one;
}

QStringList planOf(const std::vector<PlannedDish>& dishes) {
    QStringList lines;
    for (const PlanLine& line : timePlan(dishes)) lines << planTimeText(line.at) + u' ' + line.what;
    return lines.replaceInStrings(QString(QChar(QChar::Nbsp)), QStringLiteral(" "));
}

TEST(TimePlan, GoesBackwardsFromTheTable) {
    EXPECT_EQ(planOf({dish(60, {QStringLiteral("Rybu nasolíme a osušíme. A hned."),
                                QStringLiteral("Troubu předehřejeme na 200 °C. Rybu potřeme."),
                                QStringLiteral("Pečeme 30 až 40 minut.")})}),
              (QStringList{
                  QStringLiteral("17.00 Rybu nasolíme a osušíme."),
                  QStringLiteral("17.05 Předehřát troubu na 200 °C"), QStringLiteral("17.05 Rybu potřeme."),
                  QStringLiteral("17.15 Pečeme 30 až 40 minut."), QStringLiteral("18.00 Na stůl: Kapr")}));
}

TEST(TimePlan, LightsTheOvenWhenItIsNeeded) {
    const QStringList plan = planOf({dish(
        120, {QStringLiteral("Troubu předehřejeme na 180 °C."),
              QStringLiteral("Těsto necháme 60 minut odpočívat."), QStringLiteral("Pečeme 30 minut.")})});
    EXPECT_EQ(plan,
              QStringList({QStringLiteral("16.10 Těsto necháme 60 minut odpočívat."),
                           QStringLiteral("17.05 Předehřát troubu na 180 °C"),
                           QStringLiteral("17.20 Pečeme 30 minut."), QStringLiteral("18.00 Na stůl: Kapr")}));
}

TEST(TimePlan, TimesThatRunBesideEachOtherStayWithinTheDish) {
    const QStringList plan = planOf({dish(
        40, {QStringLiteral("Brambory vaříme 30 minut."), QStringLiteral("Rybu mezitím pečeme 30 minut.")})});
    EXPECT_EQ(plan.first(), QStringLiteral("17.20 Brambory vaříme 30 minut."));
}

TEST(TimePlan, WaitsOfHoursBeginInTheEveningBefore) {
    const QStringList plan =
        planOf({dish(40, {QStringLiteral("Rybu uvaříme."), QStringLiteral("Dáme ji přes noc do chladničky."),
                          QStringLiteral("Ozdobíme ji.")})});
    ASSERT_EQ(plan.size(), 4);
    EXPECT_TRUE(plan[0].startsWith(QStringLiteral("den předem v 19."))) << plan[0].toStdString();
    EXPECT_EQ(plan[1], QStringLiteral("den předem v 20.00 Dáme ji přes noc do chladničky."));
    EXPECT_TRUE(plan[2].startsWith(QStringLiteral("17.")));
    // Four hours are no night: they begin on the day.
    EXPECT_EQ(planOf({dish(20, {QStringLiteral("Necháme tuhnout 4 hodiny.")})}).first(),
              QStringLiteral("13.40 Necháme tuhnout 4 hodiny."));
}

TEST(TimePlan, WhatTheRecipeWantsBeforehandHasItsPlace) {
    const QStringList steps{QStringLiteral("Rybu opečeme.")};
    EXPECT_EQ(planOf({dish(30, steps, "bramborový salát o den dřív")}).first(),
              QStringLiteral("den předem v 20.00 Předem: bramborový salát o den dřív"));
    EXPECT_EQ(planOf({dish(30, steps, "oheň o 40 minut dřív")}).first(),
              QStringLiteral("16.50 Předem: oheň o 40 minut dřív"));
    EXPECT_EQ(planOf({dish(30, steps, "houskový knedlík")}).first(),
              QStringLiteral("17.30 Předem: houskový knedlík"));
    // What ripens is made that much earlier.
    EXPECT_EQ(planOf({dish(30, steps, "1 až 3 dny v nálevu")}).first(),
              QStringLiteral("3 dny předem v 17.30 Rybu opečeme."));
    // Fish that has been frozen is frozen before its first step.
    const QStringList plan =
        planOf({dish(30, {QStringLiteral("Lososa, který byl 24 hodin zmrazený, osušíme.")},
                     "7 dní v mrazáku, přes noc povolit")});
    EXPECT_EQ(plan[0], QStringLiteral("7 dní předem v 17.30 Předem: 7 dní v mrazáku, přes noc povolit"));
    EXPECT_EQ(plan[1].left(6), QStringLiteral("17.30 "));
}

TEST(TimePlan, ADishWithoutStepsOrMinutesIsOnTheTableAllTheSame) {
    EXPECT_EQ(planOf({dish(0, {})}), QStringList{QStringLiteral("18.00 Na stůl: Kapr")});
    EXPECT_EQ(planOf({dish(0, {QString(), QStringLiteral("Vaříme 10 minut.")})}).size(), 2);
    EXPECT_TRUE(planOf({}).isEmpty());
}

TEST(Dinner, UnderstandsTheHourAsItIsWritten) {
    const std::pair<const char*, int> good[] = {{"18", 1080},  {" 18.30 ", 1110}, {"18:30", 1110},
                                                {"7,05", 425}, {"1830", 1110},    {"0.00", 0}};
    for (const auto& [typed, minutes] : good)
        EXPECT_EQ(timeOfDay(QString::fromUtf8(typed)), minutes) << typed;
    for (const char* typed : {"", "24", "18.60", "ráno", "18.3", "-1", "18.30.10"})
        EXPECT_EQ(timeOfDay(QString::fromUtf8(typed)), std::nullopt) << typed;
}

class DinnerBook : public testing::Test {
  protected:
    DinnerBook() {
        const auto row = [](const char* text) { return QString::fromUtf8(text); };
        const QString file = folder_.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            file,
            {row("INSERT INTO Recepty (ID, Nazev) VALUES (1,'Rolky'),(2,'Vývar'),(3,'Kapr'),(4,'Amur'),"
                 "(5,'Salát'),(6,'Bez údajů')"),
             row("INSERT INTO Fakta (ID, Minut, Mesice, Chod, Obdobi) VALUES "
                 "(1,20,4095,'studené,předkrm','Silvestr'),(2,60,4095,'polévka','Vánoce'),"
                 "(3,50,3591,'teplé','Vánoce,zima'),(4,30,992,'teplé','léto'),"
                 "(5,30,4095,'studené,hlavní za studena','jaro')"),
             row("INSERT INTO Kroky VALUES (1,3,'','Rybu smažíme 10 minut.'),(2,2,'','Vaříme 50 minut.')")});
        book_.Open(file);
        all_ = readDinnerRecipes(book_);
    }

    QString names(Course course, const Dinner& dinner, int month) const {
        QStringList found;
        for (const DinnerRecipe& one : candidates(all_, course, dinner, month)) found << one.name;
        return found.join(u' ');
    }

    QTemporaryDir folder_;
    Database book_;
    std::vector<DinnerRecipe> all_;
};

TEST_F(DinnerBook, OffersEachCourseWhatSuitsTheOccasionFirst) {
    Dinner dinner;
    EXPECT_EQ(names(Course::Starter, dinner, 12), QStringLiteral("Rolky"));
    EXPECT_EQ(names(Course::Soup, dinner, 12), QStringLiteral("Vývar"));
    EXPECT_EQ(names(Course::Main, dinner, 12), QStringLiteral("Kapr Salát Amur"));
    EXPECT_EQ(names(Course::Main, dinner, 7), QStringLiteral("Amur Salát Kapr"));
    dinner.occasion = QStringLiteral("jaro");
    EXPECT_EQ(names(Course::Main, dinner, 12), QStringLiteral("Salát Kapr Amur"));
    dinner.recipes[2] = 4;
    EXPECT_EQ(names(Course::Main, dinner, 12), QStringLiteral("Amur Salát Kapr"));
    EXPECT_EQ(dinnerOccasions(all_).join(u' '), QStringLiteral("jaro léto zima Vánoce Silvestr"));
}

TEST_F(DinnerBook, PlansItsCoursesOneAfterTheOther) {
    Dinner dinner;
    dinner.recipes = {0, 2, 3};
    dinner.served = 12 * 60;
    QStringList lines;
    for (const PlanLine& line : dinnerPlan(book_, dinner)) lines << planTimeText(line.at) + u' ' + line.what;
    EXPECT_EQ(
        lines,
        (QStringList{QStringLiteral("11.00 Vaříme 50 minut."), QStringLiteral("11.30 Rybu smažíme 10 minut."),
                     QStringLiteral("12.00 Na stůl: Vývar"), QStringLiteral("12.20 Na stůl: Kapr")}));
    const QString text = dinnerText(book_, dinner, QLocale(QLocale::Czech));
    EXPECT_TRUE(text.startsWith(QStringLiteral("4\u00a0porce, na stole v 12.00\nPolévka: Vývar\n")))
        << text.toStdString();
}

TEST_F(DinnerBook, IsKeptAndOutlivesWhatIsNoMenu) {
    UserFile file(folder_.filePath(QStringLiteral("vlastni.db")));
    EXPECT_EQ(readDinner(file), Dinner{});
    const Dinner dinner{QStringLiteral("Vánoce"), {1, 0, 3}, 6.5, 750};
    EXPECT_TRUE(storeDinner(file, dinner));
    EXPECT_EQ(readDinner(file), dinner);
    for (const char* broken : {"", "x", "|||||", "a|-4|99999|x|-1|2"}) {
        file.setValue(QStringLiteral("Hostina"), QString::fromUtf8(broken));
        const Dinner read = readDinner(file);
        EXPECT_GT(read.portions, 0) << broken;
        EXPECT_GE(read.served, 0) << broken;
        EXPECT_LT(read.served, 24 * 60) << broken;
        EXPECT_GE(read.recipes[1], 0) << broken;
    }
}

}  // namespace
}  // namespace sarne
