// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <map>

#include "db/database.h"
#include "db/userfile.h"
#include "kitchen/bookwords.h"
#include "kitchen/dinner.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

PlannedDish dish(int minutes, const QStringList& steps, const char* ahead = "", int served = 18 * 60) {
    PlannedDish one{u"Kapr"_s, minutes, QString::fromUtf8(ahead), {}, served};
    for (const QString& step : steps) one.steps.push_back({{}, step, {}});
    one.steps.push_back({u"Na stůl"_s, u"Vydrží dva dny."_s, {}});
    return one;
}

QStringList planOf(const std::vector<PlannedDish>& dishes) {
    QStringList lines;
    for (const PlanLine& line : timePlan(dishes)) lines << planTimeText(line.at) + u' ' + line.what;
    return lines.replaceInStrings(QString(QChar(QChar::Nbsp)), u" "_s);
}

TEST(TimePlan, GoesBackwardsFromTheTable) {
    EXPECT_EQ(
        planOf({dish(60, {u"Rybu nasolíme a osušíme. A hned."_s,
                          u"Troubu předehřejeme na 200 °C. Rybu potřeme."_s, u"Pečeme 30 až 40 minut."_s})}),
        (QStringList{u"17.00 Rybu nasolíme a osušíme."_s, u"17.05 Předehřát troubu na 200 °C"_s,
                     u"17.05 Rybu potřeme."_s, u"17.15 Pečeme 30 až 40 minut."_s, u"18.00 Na stůl: Kapr"_s}));
}

TEST(TimePlan, LightsTheOvenWhenItIsNeeded) {
    const QStringList plan =
        planOf({dish(120, {u"Troubu předehřejeme na 180 °C."_s, u"Těsto necháme 60 minut odpočívat."_s,
                           u"Pečeme 30 minut."_s})});
    EXPECT_EQ(plan, QStringList({u"16.10 Těsto necháme 60 minut odpočívat."_s,
                                 u"17.05 Předehřát troubu na 180 °C"_s, u"17.20 Pečeme 30 minut."_s,
                                 u"18.00 Na stůl: Kapr"_s}));
}

TEST(TimePlan, TimesThatRunBesideEachOtherStayWithinTheDish) {
    const QStringList plan =
        planOf({dish(40, {u"Brambory vaříme 30 minut."_s, u"Rybu mezitím pečeme 30 minut."_s})});
    EXPECT_EQ(plan.first(), u"17.20 Brambory vaříme 30 minut."_s);
}

TEST(TimePlan, WaitsOfHoursBeginInTheEveningBefore) {
    const QStringList plan =
        planOf({dish(40, {u"Rybu uvaříme."_s, u"Dáme ji přes noc do chladničky."_s, u"Ozdobíme ji."_s})});
    ASSERT_EQ(plan.size(), 4);
    EXPECT_TRUE(plan[0].startsWith(u"den předem v 19."_s)) << plan[0].toStdString();
    EXPECT_EQ(plan[1], u"den předem v 20.00 Dáme ji přes noc do chladničky."_s);
    EXPECT_TRUE(plan[2].startsWith(u"17."_s));
    // Four hours are no night: they begin on the day.
    EXPECT_EQ(planOf({dish(20, {u"Necháme tuhnout 4 hodiny."_s})}).first(),
              u"13.40 Necháme tuhnout 4 hodiny."_s);
}

TEST(TimePlan, WhatTheRecipeWantsBeforehandHasItsPlace) {
    const QStringList steps{u"Rybu opečeme."_s};
    EXPECT_EQ(planOf({dish(30, steps, "bramborový salát o den dřív")}).first(),
              u"den předem v 20.00 Předem: bramborový salát o den dřív"_s);
    EXPECT_EQ(planOf({dish(30, steps, "oheň o 40 minut dřív")}).first(),
              u"16.50 Předem: oheň o 40 minut dřív"_s);
    EXPECT_EQ(planOf({dish(30, steps, "houskový knedlík")}).first(), u"17.30 Předem: houskový knedlík"_s);
    // What ripens is made that much earlier.
    EXPECT_EQ(planOf({dish(30, steps, "1 až 3 dny v nálevu")}).first(),
              u"3 dny předem v 17.30 Rybu opečeme."_s);
    // Fish that has been frozen is frozen before its first step.
    const QStringList plan = planOf({dish(30, {u"Lososa, který byl 24 hodin zmrazený, osušíme."_s},
                                          "7 dní v mrazáku, přes noc povolit")});
    EXPECT_EQ(plan[0], u"7 dní předem v 17.30 Předem: 7 dní v mrazáku, přes noc povolit"_s);
    EXPECT_EQ(plan[1].left(6), u"17.30 "_s);
}

TEST(TimePlan, ADishWithoutStepsOrMinutesIsOnTheTableAllTheSame) {
    EXPECT_EQ(planOf({dish(0, {})}), QStringList{u"18.00 Na stůl: Kapr"_s});
    EXPECT_EQ(planOf({dish(0, {QString(), u"Vaříme 10 minut."_s})}).size(), 2);
    EXPECT_TRUE(planOf({}).isEmpty());
}

TEST(Dinner, UnderstandsTheHourAsItIsWritten) {
    test::expectCases(u"hodina"_s,
                      [](const QString& typed) { return QString::number(timeOfDay(typed).value_or(-1)); });
}

TEST(BookWords, SayWhatAPlanMustKnow) {
    test::expectCases(u"slova"_s, [](const QString& text) {
        const QString kind = text.section(u' ', 0, 0), words = text.section(u' ', 1);
        if (kind == u"ceka") return QString::number(book::waitOf(words));
        if (kind == u"stupne") return book::degreesIn(words);
        const std::map<QString, bool (*)(const QString&)> told{
            {u"trouba"_s, book::lightsOven},  {u"pece"_s, book::bakes},
            {u"minulost"_s, book::tellsPast}, {u"zraje"_s, book::ripens},
            {u"den"_s, book::isForDayBefore}, {u"jednou"_s, book::isForOneWay}};
        return told.at(kind)(words) ? u"ano"_s : u"ne"_s;
    });
}

class DinnerBook : public testing::Test {
  protected:
    DinnerBook() {
        book_.Open(test::writeRecipeDatabase(
            folder_.filePath(u"Sarne.drc"_s),
            {u"INSERT INTO Recepty (ID, Nazev) VALUES (1,'Rolky'),(2,'Vývar'),(3,'Kapr'),(4,'Amur'),"
             "(5,'Salát'),(6,'Bez údajů')"_s,
             u"INSERT INTO Fakta (ID, Minut, Mesice, Chod, Obdobi) VALUES "
             "(1,20,4095,'studené,předkrm','Silvestr'),(2,60,4095,'polévka','Vánoce'),"
             "(3,50,3591,'teplé','Vánoce,zima'),(4,30,992,'teplé','léto'),"
             "(5,30,4095,'studené,hlavní za studena','jaro')"_s,
             u"INSERT INTO Kroky VALUES (1,3,'','Rybu smažíme 10 minut.'),(2,2,'','Vaříme 50 minut.')"_s}));
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
    EXPECT_EQ(names(Course::Starter, dinner, 12), u"Rolky"_s);
    EXPECT_EQ(names(Course::Soup, dinner, 12), u"Vývar"_s);
    EXPECT_EQ(names(Course::Main, dinner, 12), u"Kapr Salát Amur"_s);
    EXPECT_EQ(names(Course::Main, dinner, 7), u"Amur Salát Kapr"_s);
    dinner.occasion = u"jaro"_s;
    EXPECT_EQ(names(Course::Main, dinner, 12), u"Salát Kapr Amur"_s);
    dinner.recipes[2] = 4;
    EXPECT_EQ(names(Course::Main, dinner, 12), u"Amur Salát Kapr"_s);
    EXPECT_EQ(dinnerOccasions(all_).join(u' '), u"jaro léto zima Vánoce Silvestr"_s);
}

TEST_F(DinnerBook, PlansItsCoursesOneAfterTheOther) {
    Dinner dinner;
    dinner.recipes = {0, 2, 3};
    dinner.served = 12 * 60;
    QStringList lines;
    for (const PlanLine& line : dinnerPlan(book_, dinner)) lines << planTimeText(line.at) + u' ' + line.what;
    EXPECT_EQ(lines, (QStringList{u"11.00 Vaříme 50 minut."_s, u"11.30 Rybu smažíme 10 minut."_s,
                                  u"12.00 Na stůl: Vývar"_s, u"12.20 Na stůl: Kapr"_s}));
    dinner.recipes = {6, 2, 3};  // the book knows nothing of the first
    test::expectText(u"hostina-text"_s, dinnerText(book_, dinner, QLocale(QLocale::Czech)));
}

TEST_F(DinnerBook, ARecipeSuitsTheCoursesThatTheBookNames) {
    test::expectCases(u"chody"_s, [this](const QString& said) {
        book_.Execute(u"UPDATE Fakta SET Chod = '%1' WHERE ID = 4"_s.arg(said));
        QStringList courses;
        for (const DinnerRecipe& one : readDinnerRecipes(book_))
            for (int course = 0; course < kCourses; ++course)
                if (one.id == 4 && one.suits[size_t(course)]) courses << courseName(Course(course));
        return courses.join(u", "_s);
    });
}

TEST_F(DinnerBook, IsKeptAndOutlivesWhatIsNoMenu) {
    UserFile file(folder_.filePath(u"vlastni.db"_s));
    EXPECT_EQ(readDinner(file), Dinner{});
    const Dinner dinner{u"Vánoce"_s, {1, 0, 3}, 6.5, 750};
    EXPECT_TRUE(storeDinner(file, dinner));
    EXPECT_EQ(readDinner(file), dinner);
    test::expectCases(u"hostina-ulozena"_s, [&file](const QString& kept) {
        file.setValue(u"Hostina"_s, kept);
        const Dinner read = readDinner(file);
        return u"%1: %2 portions at %3 of %4, %5, %6"_s.arg(read.occasion)
            .arg(read.portions)
            .arg(read.served)
            .arg(read.recipes[0])
            .arg(read.recipes[1])
            .arg(read.recipes[2]);
    });
}

}  // namespace
}  // namespace sarne
