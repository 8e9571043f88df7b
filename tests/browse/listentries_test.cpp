#include "screens/browse/listentries.h"

#include "browse/browsefixture.h"

namespace sarne {
namespace {

using Ids = std::vector<std::int16_t>;

TEST(ListIds, EachEndsWithAComma) {
    const struct {
        const char* text;
        Ids ids;
    } cases[] = {{"12,40,7,", {12, 40, 7}},
                 {"5", {}},
                 {"5,9", {5}},
                 {"", {}},
                 {",", {}},
                 {",,3,", {3}},
                 {"32767,32768,", {32767}},
                 {"a,4,5x, 6 ,", {4, 6}},
                 {"5,5,", {5, 5}},
                 {"65541,", {}}};
    for (const auto& c : cases) EXPECT_EQ(parseIds(QString::fromLatin1(c.text)), c.ids) << c.text;
}

class ListEntriesTest : public BrowseTest {
  protected:
    QStringList names(const char* table, const char* ids) {
        QStringList all;
        for (const ListEntry& entry :
             readEntries(run.database, QString::fromLatin1(table), QString::fromLatin1(ids)))
            all << entry.Nazev;
        return all;
    }
};

TEST_F(ListEntriesTest, TheIdsGiveTheOrderAndMissingOnesAreSkipped) {
    EXPECT_EQ(names("recepty", "7,999,3,"),
              (QStringList{QStringLiteral("Recept 007"), QStringLiteral("Recept 003")}));
    EXPECT_EQ(names("recepty", "5"), QStringList());
    EXPECT_EQ(names("recepty", "").size(), kRecipes);
    EXPECT_EQ(names("recepty", "").front(), QStringLiteral("Recept 001"));
    EXPECT_EQ(names("help", "2,"), QStringList{QStringLiteral("Fotografie")});
    EXPECT_EQ(names("nowhere", "1,"), QStringList());
}

TEST_F(ListEntriesTest, TheListHoldsTheFirst251) {
    QString ids;
    for (int i = 0; i < 300; ++i) ids += QString::number(i % kRecipes + 1) + u',';
    EXPECT_EQ(readEntries(run.database, QStringLiteral("recepty"), ids).size(), 251u);
    run.database.transaction([&] {
        for (int id = 51; id <= 300; ++id)
            run.database.Execute(QStringLiteral("INSERT INTO Recepty (ID, Nazev) VALUES (%1, 'X')").arg(id));
        return true;
    });
    EXPECT_EQ(readEntries(run.database, QStringLiteral("recepty"), {}).back().id, 251);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
