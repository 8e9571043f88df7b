#include "print/linkmentions.h"

#include <gtest/gtest.h>

#include "support/kept.h"

namespace sarne {
namespace {

/// A line of words that stand 100 twips from each other; behind "# place" it is the heading of that text.
FlowLine lineOf(const QString& text) {
    FlowLine line;
    line.height = 300;
    int x = 0;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        line.texts.push_back({x += 100, 0, 80, word, {}});
    if (!text.startsWith(u'#')) return line;
    line.kind = FlowLine::Kind::Heading;
    line.places.push_back({0, line.texts[1].text});
    line.texts.erase(line.texts.begin(), line.texts.begin() + 2);
    return line;
}

QString dumped(const std::vector<FlowLine>& lines) {
    QStringList rows;
    for (const FlowLine& line : lines) {
        QStringList words;
        for (const PageText& text : line.texts) words << text.text;
        for (const DocumentLink& link : line.links)
            words << u"[%1+%2x%3 %4]"_s.arg(link.place.x())
                         .arg(link.place.width())
                         .arg(link.place.height())
                         .arg(link.target);
        for (const DocumentPlace& place : line.places) words << u"(%1)"_s.arg(place.name);
        rows << words.join(u' ');
    }
    return rows.join(u'\n');
}

TEST(LinkMentions, LinkWhatIsMentionedAndBack) {
    LinkMentions mentions;
    for (const char* title : {"Rybí vývar=v", "Aspik=a", "Kudy=k", "Svíčková omáčka=s", "Éclair=e"}) {
        const QString text = QString::fromUtf8(title);
        mentions.add(text.section(u'=', 0, 0), text.section(u'=', 1));
    }
    std::vector<FlowLine> lines;
    for (const char* text :
         {"# nadpis Rybí vývar", "Rybu vaříme v rybím vývaru, ryb k vývaru nelitujeme.",
          "Vývar (rybí) a zase rybí", "vývar a – „rybími vývary“ rybí-vývar",
          "aspikovým aspikového aspi aspik. kudyma kud kuda ku éclairy eclair", "svíčkové omáčky omáčkou",
          "# v Odkaz: Rybí vývar", "Rybí vývar s aspikem", "# a Odkaz: Aspik", "Aspik z rybího vývaru",
          "# x Jinam", "# k", "# e Odkaz: Nikde"})
        lines.push_back(lineOf(QString::fromUtf8(text)));
    mentions.mark(lines, u"začátek"_s);
    test::expectText(u"zminky"_s, dumped(lines));
}

TEST(LinkMentions, ALongNoteIsNotSearchedToItsEnd) {
    LinkMentions mentions;
    mentions.add(u"Aspik"_s, u"a"_s);
    for (const int words : {5000, 5001}) {
        std::vector<FlowLine> lines{lineOf(u"slovo "_s.repeated(words)), lineOf(u"aspik"_s)};
        mentions.mark(lines, {});
        EXPECT_EQ(lines.back().links.empty(), words > 5000);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
