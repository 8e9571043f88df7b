#include "screens/browse/frmseznam.h"
#include "screens/recipe/frmrecept.h"
#include "smallprogram.h"
#include "support/files.h"
#include "tour/doors.h"

namespace sarne {
namespace {

/// Opens screens of the program as other screens do, and uses them.
class ScreensTest : public ProgramTest {
  protected:
    ProgramScreens& screens() { return static_cast<ProgramScreens&>(program->screens()); }
    /// Clicks in the middle of what lies over the screens and says \a text.
    void clickPlate(const QString& text) {
        for (QWidget* plate : plates())
            if (plate->accessibleName().startsWith(text)) return QTest::mouseClick(plate, Qt::LeftButton);
        ADD_FAILURE() << "nothing says " << text.toStdString();
    }
    void clickOnTop(const QString& control) {
        QTest::mouseClick(program->FormStack.top()->findChild<QWidget*>(control), Qt::LeftButton);
    }
    void wait() {
        clock.time += 1000000;
        QTest::qWait(300);
    }
    void takeBookWithoutGoods() {
        ASSERT_TRUE(QFile::remove(path("program/Sarne.drc")));
        test::writeRecipeDatabase(path("program/Sarne.drc"),
                                  {u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (5,'Kapr',4)"_s});
    }
    /// Does what \a text says: a word, and what it is about. What it answers, where it is a question.
    QVariant act(const QString& text);
    /// Goes the way of golden/cesty.txt called \a name: what is done, how, and with which keys what it asks
    /// is answered.
    void go(const char* name);
};

QVariant ScreensTest::act(const QString& text) {
    const QStringList words = text.split(u' ');
    const QString what = text.section(u' ', 1);
    const auto number = [&](int at) { return std::int16_t(words.value(at).toInt()); };
    std::vector<std::int16_t> ids;
    for (int at = 2; at < words.size(); ++at) ids.push_back(number(at));
    const Serving serving{double(number(1)), UnitSystem::Weights};
    QVariant answer;
    const std::map<QString, std::function<void()>> all{
        {u"make"_s, [&] { make(); }},
        {u"start"_s, [&] { start(); }},
        {u"end"_s, [&] { program->ConfirmExit(); }},
        {u"other"_s, [&] { takeBookWithoutGoods(); }},
        {u"wait"_s, [&] { wait(); }},
        {u"key"_s, [&] { press(QKeySequence(what)[0].key()); }},
        {u"click"_s, [&] { clickOnTop(what); }},
        {u"plate"_s, [&] { clickPlate(what); }},
        {u"main"_s, [&] { goBackToMain(*program); }},
        {u"shopping"_s, [&] { screens().showShoppingList(); }},
        {u"pantry"_s, [&] { screens().showPantry(); }},
        {u"own"_s, [&] { screens().showOwnCookbook(); }},
        {u"feast"_s, [&] { screens().showFeast(); }},
        {u"eyes"_s, [&] { screens().showEyes(); }},
        {u"help"_s, [&] { screens().showHelpFor(what); }},
        {u"page"_s, [&] { screens().showPage(what); }},
        {u"list"_s,
         [&] { program->screens().showList(words.value(2).remove(u'*'), words[1], words.value(3)); }},
        {u"table"_s, [&] { screens().showTables(number(1)); }},
        {u"recipe"_s, [&] { screens().showRecipeAt(number(1), number(2)); }},
        {u"cook"_s,
         [&] {
             screens().cookRecipe(number(1), {double(number(2)), UnitSystem::Spoons});
         }},
        {u"buy"_s, [&] { screens().addToShoppingList(ids, serving); }},
        {u"give"_s, [&] { screens().giveStars(number(1), number(2)); }},
        {u"stop"_s, [&] { screens().stopRinging(); }},
        {u"print"_s, [&] { screens().printRecipes({number(1)}, {}); }},
        {u"keep"_s,
         [&] {
             program->userFile().setValue(
                 u"Tiskarna"_s,
                 what.isEmpty() ? QString() : PrinterChoice{u"Zkušební"_s, Paper::A5}.toText());
         }},
        {u"stars"_s, [&] { answer = screens().starsOf(number(1)); }},
        {u"steps"_s, [&] { answer = screens().canCook(number(1)); }},
        {u"goods"_s, [&] { answer = screens().knowsGoods(); }},
        {u"heard"_s, [&] { answer = !platform.effects.played.isEmpty(); }},
        {u"paper"_s, [&] { answer = platform.printer.choice().paper == Paper::A5 ? u"A5"_s : u"other"_s; }},
        {u"kept"_s, [&] { answer = !program->userFile().value(u"Tiskarna"_s).isEmpty(); }},
        {u"section"_s, [&] { answer = qobject_cast<frmRecept*>(program->FormStack.top())->section(); }}};
    all.at(words[0])();
    return answer;
}

void ScreensTest::go(const char* name) {
    const QString way =
        test::keptText(u"cesty"_s).section(u"= %1\n"_s.arg(QLatin1String(name)), 1).section(u"\n= "_s, 0, 0);
    for (const QString& line : way.split(u'\n', Qt::SkipEmptyParts)) {
        const bool isQuestion = line.contains(u"? "_s);
        const QString between = isQuestion ? u"? "_s : u": "_s;
        const QString title = line.section(between, 0, 0), how = line.section(between, 1);
        QVariant answer;
        const auto acts = [&] {
            for (const QString& word : how.section(u" – "_s, 0, 0).split(u", "_s)) answer = act(word);
        };
        QList<Qt::Key> keys;
        for (const QString& key : how.section(u" – "_s, 1).split(u' ', Qt::SkipEmptyParts))
            keys << QKeySequence(key)[0].key();
        isQuestion ? acts() : does(title, acts, keys);
        if (answer.isValid()) asks(title, answer);
    }
    expectAsKept(name);
}

class ScreenWays : public ScreensTest, public testing::WithParamInterface<const char*> {};

TEST_P(ScreenWays, LeadFromOneToTheOther) {
    go(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Screens, ScreenWays, testing::Values("kuchyne", "casovace", "podruhe"));

TEST_F(ScreensTest, WhatCannotBeKeptIsSaidAndABookWithoutGoodsHasNothingToBuy) {
    ASSERT_TRUE(QDir().rmdir(path("data")));
    ASSERT_TRUE(test::write(path("data")));
    go("bez-zbozi");
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
