#include "print/pagebreaker.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

/// Lines 100 twips high from a sketch: a digit is a paragraph of so many lines, "h" a heading, "." a space.
std::vector<FlowLine> sketched(const char* sketch) {
    std::vector<FlowLine> lines;
    for (const char* c = sketch; *c; ++c) {
        const int count = *c >= '1' && *c <= '9' ? *c - '0' : 1;
        for (int i = 0; i < count; ++i) {
            FlowLine line;
            line.height = 100;
            if (*c == 'h') line.kind = FlowLine::Kind::Heading;
            if (*c == '.') line.kind = FlowLine::Kind::Space;
            line.startsParagraph = i == 0;
            line.endsParagraph = i == count - 1;
            lines.push_back(line);
        }
    }
    return lines;
}

QString pages(const char* sketch, int height) {
    QStringList texts;
    for (const PageRange& page : breakPages(sketched(sketch), height))
        texts << u"%1-%2"_s.arg(page.first).arg(page.end);
    return texts.join(u' ');
}

TEST(PageBreaker, KeepsTogetherWhatBelongsTogether) {
    const struct {
        const char *sketch, *pages, *why;
    } cases[] = {
        {"55", "0-5 5-10", "a page that is filled exactly"},
        {"28", "0-5 5-10", "a paragraph parted where two lines are on either side"},
        {"46", "0-4 4-8 8-10", "no single line at the foot, nor at the head after it"},
        {"44", "0-4 4-8", "no single line at the foot"},
        {"24", "0-4 4-6", "no single line at the head"},
        {"33", "0-3 3-6", "three lines cannot be parted"},
        {"4h3", "0-4 4-8", "no heading at the foot"},
        {"3h.3", "0-3 3-8", "nor with a space below it"},
        {"3hh2", "0-3 3-7", "nor two headings"},
        {"2h6", "0-5 5-9", "a heading with two lines of its text may stand"},
        {"5.3", "0-5 6-9", "no space at the head"},
        {"5...", "0-5", "no page of spaces"},
        {"hhhhhhh1", "0-5 5-8", "headings only"},
        {"", "", "nothing"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(pages(c.sketch, 500), QLatin1String(c.pages)) << c.sketch << ": " << c.why;
}

TEST(PageBreaker, GoesOnWhereNothingFits) {
    EXPECT_EQ(pages("h2", 50), u"0-1 1-2 2-3"_s);
    EXPECT_EQ(pages("1.1", -1), u"0-1 2-3"_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
