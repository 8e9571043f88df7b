#include <gtest/gtest.h>

#include "richtext/charset.h"
#include "richtext/layoutdump.h"
#include "richtext/plaintext.h"
#include "richtext/rtfdocument.h"
#include "richtext/rtfreader.h"
#include "richtext/wordwrap.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// Writes the stream down: text as it is, everything else in angle brackets. The font and colour that every
/// text begins with are left out.
class DumpSink final : public RtfSink {
  public:
    void text(QStringView run) override { dump += run.toString(); }
    void character(QChar c) override { dump += c; }
    void font(const TextFont& font) override {
        if (!(font == font_)) add(u"%1 %2"_s.arg(test::dumped(font)).arg(font.charset));
        font_ = font;
    }
    void color(QRgb rgb) override {
        if (rgb != color_) add(QColor(rgb).name());
        color_ = rgb;
    }
    void openLink(const LinkKey& key) override { add(key.text()); }
    void closeLink() override { add(u"/"_s); }
    void endPara() override {
        add(u"endPara"_s);
        if (stopAtPara) *stopAtPara = true;
    }
    void tab() override { add(u"tab"_s); }
    void tabStop(int twips) override { add(u"stop %1"_s.arg(twips)); }
    void defaultTabWidth(int twips) override {
        if (twips != 100) add(u"tabs %1"_s.arg(twips));
    }

    QString dump;
    StopFlag* stopAtPara = nullptr;

  private:
    void add(const QString& event) { dump += u'<' + event + u'>'; }

    TextFont font_;
    QRgb color_ = qRgb(0, 0, 0);
};

QString stream(const QString& text, LinkMarkers markers = LinkMarkers::Honour) {
    DumpSink sink;
    readRichText(text, sink, markers);
    return sink.dump;
}

TEST(RtfReader, ReadsWhatEditorsSaveAndBringsTheTextOnly) {
    const QString paper = u"papír: "_s;
    test::expectCases(u"ctenar"_s, [&](const QString& text) {
        return text.startsWith(paper) ? stream(text.sliced(paper.size()), LinkMarkers::Remove) : stream(text);
    });
}

TEST(Charset, EveryNumberHasItsCodePage) {
    QStringList pages;
    for (const int charset : {0, 77, 161, 162, 163, 177, 178, 186, 204, 222, 238, 254, 255, 99}) {
        QString page;
        for (int code = 0x80; code < 0x100; ++code) {
            const QChar letter = charsetTable(charset)[size_t(code)];
            page += letter.isPrint() ? QString(letter) : u'<' + QString::number(letter.unicode(), 16) + u'>';
        }
        pages << u"%1: %2"_s.arg(charset).arg(page);
    }
    test::expectText(u"kodove-stranky"_s, pages.join(u'\n'));
}

TEST(RtfReader, StopsBetweenCharacters) {
    DumpSink sink;
    StopFlag stop = false;
    sink.stopAtPara = &stop;
    readRichText(u"{\\rtf1\\plain a\\par b\\par c}", sink, LinkMarkers::Honour, &stop);
    EXPECT_EQ(sink.dump, u"a<endPara>"_s);
}

/// Every character is 100 twips wide.
int fixedWidth(QStringView text) {
    return static_cast<int>(text.size()) * 100;
}

TEST(WordWrapTest, WrapsAtBlanksAndNeverInsideAWord) {
    test::expectCases(u"zalomeni"_s, [](const QString& text) {
        const QString numbers = text.section(u' ', 0, 0);
        const QString indent(numbers.section(u'/', 1).toInt(), u' ');
        const int width = 100 * numbers.section(u'/', 0, 0).toInt();
        return wrapAtBlanks(text.section(u' ', 1), width, fixedWidth, indent).join(u'|');
    });
    const QString longText = u"slovo "_s.repeated(2000);
    EXPECT_EQ(wrapAtBlanks(longText, 1100, fixedWidth).size(), 1000);
}

TEST(RtfDocumentTest, WhateverTextsHoldStandsForItself) {
    RtfDocument document;
    document.heading(u"Nadpis *1*"_s);
    document.paragraph(u"Tučně"_s, u"50 % #1 {\\par} @7 ž – ½ 漢\u007f"_s);
    document.paragraph(u"dva\nřádky"_s);
    const QString book = u"{\\rtf1\\plain Kapr{\\b }}\r\n"_s;
    QStringList all{document.text()};
    for (const QString& text : {book, u"{\\rtf1 bez konce"_s, u"Kapr}"_s}) all << document.appendedTo(text);
    test::expectText(u"dokument"_s, all.join(u"\n--\n"_s).remove(u'\r'));
}

TEST(PlainTextTest, KeepsWordsAndParagraphsOnly) {
    test::expectCases(u"prosty"_s, [](const QString& text) { return plainText(text); });
    EXPECT_EQ(plainText(u"{\\rtf1\\plain Kapr\\par Lín\\par Sumec}"_s, 7), u"Kapr\nLín"_s) << "enough";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
