#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <map>

#include "db/userfile.h"
#include "kitchen/shoppingstore.h"
#include "support/kept.h"

namespace sarne {
namespace {

const QLocale kCzech(QLocale::Czech, QLocale::CzechRepublic);

/// "máslo 80 g", then the number of its department, "home" where everyone has it, "nebo" another.
ShoppingItem need(const QString& text, int recipe, double portions) {
    const QStringList words = text.split(u' ');
    return {words[0],
            Department(words.value(3, u"2"_s).toInt()),
            words.contains(u"home"),
            false,
            words.contains(u"nebo") ? words.last() : QString(),
            {{recipe, u"Recept %1"_s.arg(recipe), portions, words[2], words[1].toDouble()}}};
}

/// "1/6: NEEDS" adds what recipe 1 needs for 6; else a word, and the name or the number of what it is about.
void change(ShoppingList& list, const QString& step) {
    const QString word = step.section(u' ', 0, 0), what = step.section(u' ', 1, 1);
    const auto& items = list.items();
    const auto found = std::ranges::find(items, what, &ShoppingItem::name);
    const int at = found == items.end() ? what.toInt() : int(found - items.begin());
    if (word.endsWith(u':')) {
        const QStringList recipe = word.chopped(1).split(u'/');
        std::vector<ShoppingItem> needs;
        for (const QString& one : step.section(u' ', 1).split(u", "_s, Qt::SkipEmptyParts))
            needs.push_back(need(one, recipe[0].toInt(), recipe.value(1, u"4"_s).toDouble()));
        return list.addRecipe(needs);
    }
    const std::map<QString, std::function<void()>> words{
        {{}, [] {}},
        {u"own"_s, [&] { list.addOwn(step.section(u' ', 1)); }},
        {u"without"_s, [&] { list.removeRecipe(at); }},
        {u"amount"_s, [&] { list.setAmount(at, step.section(u' ', 2).toDouble()); }},
        {u"buy"_s, [&] { list.setBought(at, true); }},
        {u"home"_s, [&] { list.setAtHome(at, true); }},
        {u"remove"_s, [&] { list.remove(at); }},
        {u"sweep"_s, [&] { list.removeBought(); }},
        {u"clear"_s, [&] { list.clear(); }},
        {u"undo"_s, [&] { list.undo(); }}};
    words.at(word)();
}

/// All there is on \a list with what it is for, and the list as text.
QString told(const ShoppingList& list) {
    QStringList all;
    for (const ShoppingItem& item : list.items()) {
        QStringList parts{item.isOwn() ? u"own"_s : item.recipes().join(u'+')};
        for (const ShoppingPart& part : item.parts)
            parts << u"%1/%2: %3 %4"_s.arg(part.recipe).arg(part.portions).arg(part.amount).arg(part.unit);
        all << u"%1%2 %3 (%4)"_s.arg(item.bought ? u"x "_s : QString(), item.name, item.amounts(kCzech),
                                     parts.join(u", "_s));
    }
    return u"%1; %2 recipes%3; %4"_s.arg(all.join(u" | "_s))
        .arg(list.recipes().size())
        .arg(list.canUndo() ? u", undo"_s : QString(), list.text(kCzech));
}

TEST(ShoppingList, IsChangedStepByStep) {
    test::expectCases(u"nakupni-seznam"_s, [](const QString& steps) {
        ShoppingList list;
        for (const QString& step : steps.split(u"; "_s)) change(list, step);
        return told(list);
    });
}

TEST(ShoppingList, ManyChangesButNotAllCanBeTakenBack) {
    ShoppingList list;
    for (int i = 0; i <= 51; ++i) list.addOwn(QString::number(100 + i));
    for (int i = 0; i < 50; ++i) list.undo();
    EXPECT_EQ(list.items().size(), 2U);
    EXPECT_FALSE(list.canUndo());
}

TEST(ShoppingStore, KeepsTheListAsItWas) {
    QTemporaryDir folder;
    const QString path = folder.filePath(u"vlastni.db"_s);
    ShoppingList list;
    for (const char* step : {"1: máslo 80 g, cibule 2 ks", "2: cibule 200 g", "own houska", "buy 1"})
        change(list, QString::fromUtf8(step));
    {
        UserFile file(path);
        ASSERT_TRUE(storeShoppingList(file, list));
        list.setBought(1, false);
        ASSERT_TRUE(storeShoppingList(file, list));
    }
    UserFile again(path);
    EXPECT_EQ(readShoppingList(again).items(), list.items());
    // Where nothing can be written nothing is claimed.
    UserFile nowhere(folder.path() + u"/vlastni.db/x/y.db"_s);
    EXPECT_FALSE(storeShoppingList(nowhere, list));
    EXPECT_TRUE(readShoppingList(nowhere).isEmpty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
