#include "print/paragraphsetter.h"

#include <gtest/gtest.h>

#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/kept.h"

namespace sarne {
namespace {

using test::str;

/// \a text set in lines of \a characters, a "|" between them; the metrics' characters are all equally wide.
class Setting {
  public:
    explicit Setting(int characters, bool justified = false) : characters_(characters) {
        style_.width = characters * kCharacter;
        style_.justified = justified;
    }

    QString set(const QString& text) {
        lines.clear();
        ParagraphSetter setter(metrics_, [this](FlowLine line) { lines.push_back(std::move(line)); });
        setter.begin(style_);
        for (const QString& word : text.split(u' '))
            setter.add({word, {}, 0xff000000, metrics_.textWidth({}, word), kCharacter});
        setter.end();
        QStringList shown;
        for (const FlowLine& line : lines) {
            QStringList words;
            for (const PageText& word : line.texts) words << word.text;
            shown << (line.startsParagraph ? u"^"_s : QString()) + words.join(u' ') +
                         (line.endsParagraph ? u"$"_s : QString());
        }
        return shown.join(u'|');
    }
    int left(size_t line) const { return lines.at(line).texts.front().x / kCharacter; }
    int right(size_t line) const {
        return (lines.at(line).texts.back().x + lines.at(line).texts.back().width) / kCharacter;
    }

    std::vector<FlowLine> lines;

  private:
    static constexpr int kCharacter = 120;
    test::FixedMetrics metrics_;
    ParagraphStyle style_;
    int characters_;
};

TEST(ParagraphSetter, PartsLinesAsAReaderWould) {
    test::expectCases(u"odstavce"_s, [](const QString& text) {
        const QString width = text.section(u' ', 0, 0);
        const bool filled = width.endsWith(u'=');
        return Setting(width.chopped(filled).toInt(), filled).set(text.section(u' ', 1));
    });
    Setting tight(20, true);
    tight.set(u"ab ab ab ab ab ab abc"_s);
    EXPECT_EQ(tight.right(0), 20);
}

TEST(ParagraphSetter, HangsTheLinesOfAStepBelowItsText) {
    Setting step(20, true);
    step.set(u"2. Rybu osolíme, necháme stát, pak dáme péct"_s);
    EXPECT_EQ(step.left(0), 0);
    EXPECT_EQ(step.left(1), step.left(2));
    EXPECT_EQ(step.lines[0].texts[1].x, step.lines[1].texts[0].x);
    step.set(u"200 gramů másla rozpustíme na pánvi"_s);
    EXPECT_EQ(step.left(1), 0) << "an amount is no step";
}

TEST(ParagraphSetter, FillsTheLinesButTheLastAndThoseThatWouldTear) {
    Setting lines(20, true);
    lines.set(u"Rybu dnes osolíme, pak necháme stát na chladném místě skoro půl dne, do večera"_s);
    ASSERT_GT(lines.lines.size(), 3u);
    for (size_t line = 0; line + 1 < lines.lines.size(); ++line) EXPECT_EQ(lines.right(line), 20) << line;
    EXPECT_LT(lines.right(lines.lines.size() - 1), 20);
    lines.set(u"ryba má nejneobyčejnějšího vzhled"_s);
    EXPECT_EQ(lines.right(0), 7);
    const QString note = test::longText(9000);
    EXPECT_TRUE(lines.set(note.trimmed()).replace(u'|', u' ') == u'^' + note.trimmed() + u'$')
        << "nothing is lost between pieces";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
