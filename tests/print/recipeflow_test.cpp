#include "print/recipeflow.h"

#include <gtest/gtest.h>

#include "print/printfonts.h"
#include "print/shortsteps.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// A line's kind, height and where its texts begin; ^ begins a paragraph, $ ends it.
QString dumped(const FlowLine& line) {
    QString row =
        u"%1%2%3%4"_s.arg(QLatin1String(&"TH_"[int(line.kind)], 1), line.startsParagraph ? u"^"_s : QString())
            .arg(line.height)
            .arg(line.endsParagraph ? u"$"_s : QString());
    for (const PageText& text : line.texts) row += u" %1 %2"_s.arg(text.x).arg(text.text);
    for (const PagePicture& picture : line.pictures)
        row += u" picture %1+%2x%3"_s.arg(picture.place.x())
                   .arg(picture.place.width())
                   .arg(picture.place.height());
    for (const DocumentPlace& place : line.places) row += u" (%1)"_s.arg(place.title);
    return row;
}

class RecipeFlowTest : public testing::Test {
  protected:
    /// What \a fill adds in lines \a width wide, with letters of the size \a scale.
    template <typename Fill>
    void add(const char* what, int width, double scale, Fill fill) {
        SilentProgress silent;
        PageGeometry page;
        page.leftMargin = 500;
        page.lineWidth = width;
        RecipeFlow flow(page, metrics, silent, scale);
        fill(flow);
        rows << u"-- %1, %2 x %3"_s.arg(QString::fromUtf8(what)).arg(width).arg(scale);
        for (const FlowLine& line : flow.take()) rows << dumped(line);
    }

    test::FixedMetrics metrics;
    QStringList rows;
};

TEST_F(RecipeFlowTest, SetsWhatARecipeHolds) {
    const QString none;
    const std::vector<QuantityRow> amounts{{u"kapr"_s, {u"(g): 250"_s, u"(ks): 1"_s}, u"   - nebo amur"_s},
                                           {u"sůl hrubě mletá"_s, {u"(g): 5"_s, none}, none},
                                           {none, {u"(g): 5"_s, none}, u"  nikdo"_s},
                                           {u"voda"_s, {none, u"2 l"_s}, none}};
    const auto quantities = [&](RecipeFlow& flow) { flow.addQuantities(amounts); };
    for (const int width : {6000, 3500, 3499, 2000}) add("amounts", width, 1, quantities);
    add("amounts", 3000, .5, quantities);
    add("an alternative alone", 500, 1, [&](RecipeFlow& flow) {
        flow.addQuantities({QuantityRow{none, {none, none}, u"nic"_s}});
    });
    add("blanks in front", 3000, 1,
        [](RecipeFlow& flow) { flow.addText(u"  dva a  tři "_s, printfonts::body()); });

    const auto picture = [&](QSize size, int room) {
        return [=, this](RecipeFlow& flow) {
            flow.addPicture(Picture::fromImage(test::plain(size, Qt::red)), {}, room);
            rows << (flow.besidePicture() ? u"beside"_s : u"below"_s);
            flow.addText(u"Porce pro čtyři lidi a jednoho hladového souseda"_s, printfonts::body());
            flow.nameNext({0, {}, u"název"_s});
            flow.addHeading(u"Nadpis"_s);
            flow.addText(u"Porce pro čtyři lidi a jednoho hladového souseda"_s, printfonts::body());
        };
    };
    for (const int width : {7400, 7398, 3000}) add("picture", width, 1, picture({400, 300}, 9000));
    add("picture", 7000, .5, picture({400, 300}, 9000));
    add("picture", 8000, 1, picture({300, 400}, 1000));
    add("picture without room", 8000, 1, picture({300, 400}, 0));
    add("no picture", 8000, 1, picture({}, 9000));

    const auto rich = [](const char* body, const QString& title = {}) {
        return [text = test::rtf(QString::fromUtf8(body)), title](RecipeFlow& flow) {
            flow.addRichText(text, title);
        };
    };
    add("rich", 4000, 1, rich("\\b Postup\\b0\\par 1. Ryba\\par\\par dva\\tab tři"));
    add("rich", 4000, .5,
        rich("\\b Postup\\b0\\par 1. Ryba na m\\'e1sle\\par\\par dva\\tab tři \\fs12 malý"));
    add("the title", 4000, 1, rich("\\par\\b KAPR na  másle\\b0\\par Text", u"Kapr na másle"_s));
    add("the title", 4000, 1, rich("Kapr na\\par másle", u"Kapr na másle"_s));
    add("nothing", 4000, 1, [](RecipeFlow& flow) {
        flow.addRichText(u" \n"_s);
        flow.addHeading({});
        flow.addPlainText(u"jedna\n\n2. dvě"_s);
    });
    test::expectText(u"tok"_s, rows.join(u'\n'));
}

TEST(ShortSteps, AreTheNumberedOnesUpToTheirFirstSentences) {
    test::expectCases(u"kroky"_s, [](const QString& text) {
        return stepsInShort(text.section(u' ', 1), text.section(u' ', 0, 0).toInt()).join(u'|');
    });
}

TEST(StepMark, IsANumberOrADash) {
    test::expectCases(u"znacky"_s, [](const QString& word) {
        return QString::number(stepMark(word)) + (isTied(word) ? u" tied"_s : QString());
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
