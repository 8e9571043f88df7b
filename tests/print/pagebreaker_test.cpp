#include "print/pagebreaker.h"

#include <gtest/gtest.h>

#include "support/kept.h"

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
    test::expectCases(u"stranky"_s, [](const QString& text) {
        return pages(text.section(u' ', 1).toLatin1(), text.section(u' ', 0, 0).toInt());
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
