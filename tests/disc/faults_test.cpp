#include <gtest/gtest.h>

#include "disc/menu.h"
#include "disc/sounds/effects.h"
#include "disc/sounds/music.h"
#include "disc/sounds/voice.h"
#include "filming.h"
#include "smallcookbook.h"

namespace sarne::disc {
namespace {

TEST(SmallCookbookTest, FaultlessContentHasNoFaultsButItsSize) {
    EXPECT_EQ(SmallCookbook().complaints().join(u'\n').toStdString(),
              "hledani.txt:0: slov je 2, má jich být aspoň 150\n"
              "suroviny.txt:3: „sádlo“ stojí jen jako náhrada, hledání nenajde žádný recept");
}

/// A fault of faults.tsv.
struct Fault {
    QString name, file, from, to, message;
};

void PrintTo(const Fault& fault, std::ostream* out) {
    *out << fault.name.toStdString();
}

std::vector<Fault> faults() {
    const QByteArray table = test::bytesOf(QStringLiteral(SARNE_SMALL_COOKBOOK "/../faults.tsv"));
    std::vector<Fault> all;
    for (const QString& line : QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts)) {
        QStringList columns = line.split(u'\t');
        if (line.startsWith(u';') || columns.size() != 5) continue;
        columns.replaceInStrings(u"\\n"_s, u"\n"_s);
        all.push_back({columns[0], columns[1], columns[2], columns[3], columns[4]});
    }
    return all;
}

class FaultTest : public testing::TestWithParam<Fault> {};

/// What is wrong with a menu of the rows "code|label|target", parted by blanks, where recipe 6 and quick
/// recipe 1 exist.
QStringList menuComplaints(const QString& menu) {
    Cookbook book;
    book.recipes.insert(6, Recipe{});
    book.quick << QuickRecipe{1, {}, u"Rychle"_s, 6};
    QList<MenuRow> rows;
    int line = 0;
    for (const QString& row : menu.split(u' ')) {
        const QStringList parts = row.split(u'|');
        rows << MenuRow{{u"menu.txt"_s, ++line}, parts.value(0), parts.value(1), parts.value(2)};
    }
    Problems problems;
    checkMenu(rows, book, problems);
    return problems.errors();
}

/// What is reported of \a fault: of a text by itself, or of the small cookbook that has it.
QStringList reported(const Fault& fault) {
    Problems problems;
    const Lines lines = linesOf(fault.to.toUtf8());
    if (fault.file == u"nabídka") return menuComplaints(fault.to);
    if (fault.file == u"film")
        return Filming(fault.to.toStdString(), fault.from.toDouble()).problems.errors();
    if (fault.file == u"zvuky/efekty") return readEffects(lines, problems), problems.errors();
    if (fault.file == u"zvuky/skladba") return readScore(lines, problems), problems.errors();
    if (fault.file == u"zvuky/vyslovnost") return Pronunciation(lines, problems), problems.errors();
    SmallCookbook book;
    EXPECT_TRUE(fault.from.isEmpty() ? test::write(book.path(fault.file), fault.to.toUtf8())
                                     : book.replace(fault.file, fault.from, fault.to));
    return book.complaints();
}

TEST_P(FaultTest, IsReportedWithFileAndLine) {
    const Fault& fault = GetParam();
    const QString errors = reported(fault).join(u'\n') + u'\n';
    EXPECT_TRUE(fault.message.isEmpty() ? errors == u"\n" : errors.contains(fault.message))
        << "wanted: " << fault.message.toStdString() << "\nreported:\n"
        << errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Small, FaultTest, testing::ValuesIn(faults()));

TEST(FaultTable, IsWhole) {
    EXPECT_EQ(faults().size(), 163u);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
