#include <gtest/gtest.h>

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

TEST_P(FaultTest, IsReportedWithFileAndLine) {
    const Fault& fault = GetParam();
    SmallCookbook book;
    ASSERT_TRUE(book.replace(fault.file, fault.from, fault.to));
    const QString errors = book.complaints().join(u'\n');
    EXPECT_TRUE(errors.contains(fault.message))
        << "wanted: " << fault.message.toStdString() << "\nreported:\n"
        << errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Small, FaultTest, testing::ValuesIn(faults()));

TEST(FaultTable, IsWhole) {
    EXPECT_EQ(faults().size(), 97u);
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
