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

PlannedDish dish(int minutes, const QStringList& steps, const QString& ahead) {
    PlannedDish one{u"Kapr"_s, minutes, ahead, {}, 18 * 60};
    for (const QString& step : steps) one.steps.push_back({{}, step, {}});
    one.steps.push_back({u"Na stůl"_s, u"Vydrží dva dny."_s, {}});
    return one;
}

QStringList planOf(const std::vector<PlannedDish>& dishes) {
    QStringList lines;
    for (const PlanLine& line : timePlan(dishes)) lines << planTimeText(line.at) + u' ' + line.what;
    return lines.replaceInStrings(QString(QChar(QChar::Nbsp)), u" "_s);
}

/// "60: step / step; ahead", the dish's minutes first.
TEST(TimePlan, GoesBackwardsFromTheTable) {
    test::expectCases(u"plany"_s, [](const QString& told) {
        const QString ahead = told.section(u"; "_s, 1),
                      steps = told.section(u"; "_s, 0, 0).section(u": "_s, 1);
        return planOf({dish(told.section(u':', 0, 0).toInt(), steps.split(u" / "_s), ahead)}).join(u" | "_s);
    });
    EXPECT_TRUE(planOf({}).isEmpty());
    for (const auto& [at, told] : {std::pair(-1, u"den předem v 23.59"_s),
                                   {-1440, u"den předem v 0.00"_s},
                                   {-1441, u"2 dny předem v 23.59"_s}})
        EXPECT_EQ(planTimeText(at).replace(QChar::Nbsp, u' '), told);
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
