#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>

#include "print/recipeflow.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/fakeprinter.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;
using Kind = PrintOutcome::Kind;

/// Notes what it is told, and says no when it was asked \a patience times.
class NotedProgress final : public PrintProgress {
  public:
    explicit NotedProgress(int patience = INT_MAX) : patience_(patience) {}
    void recipeStarted(const QString&) override {}
    void status(const QString&) override {}
    void progressed(double part) override { parts.push_back(part); }
    void recipeDone() override { ++recipes; }
    bool goOn() override { return ++asked < patience_; }

    std::vector<double> parts;
    int asked = 0, recipes = 0;

  private:
    int patience_;
};

TEST(RecipeFlow, AsksAtEveryLineAndStopsAtOnce) {
    const PageGeometry page = PageGeometry::of({0, 0, 9000, 12000, {}});
    for (const QString& text : {test::longText(1'000'000), test::rtf(test::longText(1'000'000))}) {
        test::FixedMetrics metrics;
        NotedProgress progress(10);
        RecipeFlow flow(page, metrics, progress);
        flow.addRichText(text);
        EXPECT_FALSE(flow.wentOn());
        EXPECT_EQ(progress.asked, 10) << "who has said no is not asked again";
        EXPECT_LT(metrics.measured, 20 * 10);
    }
}

class PrintJobTest : public testing::Test {
  protected:
    PrintOutcome print(NotedProgress& progress) {
        test::FixedMetrics metrics;
        PageComposer composer(book.source(), printer.scale(), metrics);
        return PrintJob(printer, composer, progress).print({{1, 2}, {}}, {}, u"Recepty"_s);
    }

    PrintCookbook book{
        {PrintCookbook::recipe(1, u"Candát"_s, {u"Recept"_s, test::rtf(test::longText(20000))}),
         PrintCookbook::recipe(2, u"Lín"_s)}};
    FakePrinter printer;
};

TEST_F(PrintJobTest, TellsOfEveryLineAndPageAndIsFullAtTheEnd) {
    NotedProgress progress;
    const PrintOutcome outcome = print(progress);
    ASSERT_GT(outcome.pages, 3);
    const auto second = std::ranges::find(progress.parts, 1.);
    ASSERT_NE(second, progress.parts.end());
    const std::vector<double> first(progress.parts.begin(), second + 1);
    EXPECT_TRUE(std::ranges::is_sorted(first));
    const auto isPage = [](double part) { return part > kSetPart; };
    EXPECT_EQ(std::ranges::count_if(first, isPage), outcome.pages - 1) << "the second recipe has one page";
    const std::set<double> steps(first.begin(), first.end());
    EXPECT_GT(steps.size(), 20u) << "pieces of text and pages";
    EXPECT_EQ(progress.parts.back(), 1);
    EXPECT_EQ(progress.recipes, 2);
}

TEST_F(PrintJobTest, StopsAtTheLineWhereItIsToldTo) {
    NotedProgress patient;
    const int pages = print(patient).pages;
    EXPECT_GT(patient.asked, 400) << "once for each line that is set and each that is painted";
    for (int patience = 1; patience < patient.asked; patience += 13) {
        printer.pages = 0;
        NotedProgress progress(patience);
        const PrintOutcome outcome = print(progress);
        EXPECT_EQ(outcome.kind, Kind::Stopped);
        EXPECT_LE(progress.asked, patience + 1) << "nothing is done between two questions";
        EXPECT_LE(outcome.pages, pages);
        EXPECT_EQ(outcome.pages, printer.pages);
        EXPECT_LT(progress.recipes, 2);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
