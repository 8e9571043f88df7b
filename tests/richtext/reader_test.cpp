#include <gtest/gtest.h>

#include "richtext/charset.h"
#include "richtext/layoutdump.h"
#include "richtext/plaintext.h"
#include "richtext/rtfreader.h"
#include "richtext/wordwrap.h"

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

struct Case {
    const char16_t* rtf;
    const char16_t* expected;
};

void expectStreams(std::initializer_list<Case> cases, LinkMarkers markers = LinkMarkers::Honour) {
    for (const Case& c : cases) {
        const QString rtf = QString::fromUtf16(c.rtf);
        EXPECT_EQ(stream(rtf, markers), QString::fromUtf16(c.expected)) << rtf.toStdString();
    }
}

TEST(RtfReader, EndsControlWordsWhereTheyEnd) {
    expectStreams({
        {u"{\\rtf1\\plain \\'e8erstv\\'fd\\'9E}", u"čerstvýž"},
        {u"{\\rtf1\\plain a\\'e8 b\\~c\\~ d}", u"ač b\u00a0c\u00a0 d"},
        {u"{\\rtf1\\plain a\\par\r\nb\\par  c\\par}", u"a<endPara>b<endPara> c<endPara>"},
        {u"{\\rtf1\\plain\\fs40x\\fs-3y\\fs z}", u"<Times New Roman 20 238>xyz"},
        {u"{\\rtf1\\plain\\b\\i\\ul x\\b0\\i0\\ul0  y}",
         u"<Times New Roman 12 biu 238>x<Times New Roman 12 238> y"},
        {u"{\\rtf1\\plain a\\u269?\\ulnone\\line\\lang1029\\emdash b\\-c\\_d\\Foo e\\9f}",
         u"a?bcde"
         u"f"},
        {u"{\\rtf1\\plain \\rdblquote x\\rdblquote\\{y\\}\\\\par}", u"\"x\"{y}\\par"},
        {u"{\\rtf1\\plain a\\\nb\\\r\nc\td}", u"a<endPara>b<endPara>c<tab>d"},
    });
}

TEST(RtfReader, TakesTheTextOnly) {
    expectStreams({
        // Where the text begins: \plain outside the groups, else behind the header.
        {u"{\\rtf1{\\stylesheet{\\s0\\plain Normal;}}\\pard x\\plain y\\par}", u"y<endPara>"},
        {u"{\\rtf1\\ansi{\\*\\x \\plain}junk\\pard y}", u"junky"},
        {u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\r\n{\\info{\\title T}}y z}", u"y z"},
        {u"{\\rtf1 y}", u"y"},
        // Groups without text, also within the text, also with groups, escapes and raw bytes in them.
        {u"{\\rtf1\\plain a{\\*\\bkmkstart b{c\\}}}{\\pict\\bin3 }}}0f}{\\object{\\result x}}{\\headerf h}d{ "
         u"e}}",
         u"ad e"},
        {u"{\\rtf1\\plain a{\\infox b}{\r\n\\footer c}}", u"ab"},
        // Other braces bound nothing.
        {u"{\\rtf1\\plain {\\b x} y}}}z", u"<Times New Roman 12 b 238>x yz"},
        // \plain and \pard both go back to the default font and the first colour.
        {u"{\\rtf1{\\colortbl\\red1;\\green2;}\\plain\\b\\cf1 x\\pard y}",
         u"<#010000><#000200><Times New Roman 12 b 238>x<#010000><Times New Roman 12 238>y"},
        {u"{\\rtf1\\deftab720\\pard\\tx500\\pard\\tx700\\plain a\\tx900}",
         u"<tabs 720><stop 700>a<stop 900>"},
    });
}

TEST(Charset, EveryNumberHasItsCodePage) {
    const struct {
        int charset;
        const char* characters;  // of the codes b5, e8 and f2
    } pages[] = {{0, "µèò"},   {238, "µčň"}, {204, "µит"},           {161, "µθς"}, {162, "µèò"}, {177, "µטע"},
                 {178, "µèٍ"},  {186, "µčņ"}, {163, "µ\u00e8\u0323"}, {222, "ต่๒"},  {77, "µËÚ"},  {254, "╡Φ≥"},
                 {255, "ÁÞ‗"}, {99, "µèò"}};
    for (const auto& [charset, characters] : pages) {
        const CharsetTable& table = charsetTable(charset);
        EXPECT_EQ(QString(table[0xb5]) + table[0xe8] + table[0xf2], QString::fromUtf8(characters)) << charset;
    }
    EXPECT_EQ(charsetTable(186)[0x8a], QChar(0x8a)) << "a code that the page leaves empty";
}

TEST(RtfReader, ReadsTheTables) {
    expectStreams({
        // Fonts go by their number, and by their place where no font has the number.
        {u"{\\rtf1{\\fonttbl{\\f5\\fswiss\\fcharset204{\\*\\panose 0}Arial{\\*\\falt B;};}{\\f2 Caf\\'e9;}}"
         u"\\plain\\f5 a\\'e8\\f2 b\\f0 c\\f9 d}",
         u"<Arial 12 204>aи<Café 12 238>b<Arial 12 204>cd"},
        {u"{\\rtf1{\\fonttbl\\f0\\fnil\\fcharset0 Arial;\\f1\\fnil;\\f2 Last}\\plain\\f1 b\\f2 c\\f0 \\'e8}",
         u"b<Last 12 238>c<Arial 12 0>è"},
        // What editors save: a leading ";" is the first entry.
        {u"{\\rtf1{\\colortbl;\\red255\\green1\\blue2;\\ctint9\\red300;}\\plain\\cf1 a\\cf0 b\\cf2 c\\cf3 d}",
         u"<#ff0102>a<#000000>b<#ff0000>cd"},
        // The older spelling passes over three characters, whichever they are.
        {u"{\\rtf1{\\colortable;\\red10\\green20\\blue30;\\red40\\green50\\blue60;}\\plain a\\cf1 b}",
         u"<#0a141e>a<#28323c>b"},
        {u"{\\rtf1{\\colortable   \\red10\\green20\\blue30;;}\\plain a\\cf1 b}", u"<#0a141e>a<#000000>b"},
        {u"{\\rtf1\\plain\\cf3 a}", u"a"},
    });
}

TEST(RtfReader, HonoursLinkMarkersOnTheScreen) {
    expectStreams({
        {u"{\\rtf1\\plain *12Fresh herbs* are}", u"<112>Fresh herbs</> are"},
        {u"{\\rtf1\\plain *015a* #b# @7c@ @1234d*5}", u"<115>a</> <20>b</> <37>c</> <3123>4d</>5"},
        {u"{\\rtf1\\plain * 3a\\b *x \\'2a}", u"<10> 3a</><Times New Roman 12 b 238>x *"},
        // Without its mate in the same paragraph a marker is a letter like any other.
        {u"{\\rtf1\\plain kuchar@ryby.cz a\\'2a \\*\\par *5b\\pard c* d*07}",
         u"kuchar@ryby.cz a* <endPara><15>bc</> d*07"},
    });
}

TEST(RtfReader, RemovesLinkMarkersOnPaper) {
    expectStreams({{u"{\\rtf1\\plain *12Fresh herbs* are #b# @7c*1234}", u"Fresh herbs are b c4"},
                   {u"{\\rtf1\\plain a*0b@00c}", u"a0b00c"}},
                  LinkMarkers::Remove);
}

TEST(RtfReader, ReadsPlainTextAsItStands) {
    expectStreams({{u"Kapr * 2\r\n3 \\par {x}\n\ny\rz\tw",
                    u"Kapr * 2<endPara>3 \\par {x}<endPara><endPara>y<endPara>z<tab>w"},
                   {u"  \r\n ", u""}});
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

QStringList wrap(const char* text, int characters, const char* indent = "") {
    return wrapAtBlanks(QString::fromUtf8(text), characters * 100, fixedWidth, QString::fromUtf8(indent));
}

TEST(WordWrapTest, WrapsAtBlanksAndNeverInsideAWord) {
    EXPECT_EQ(wrap("Kapr na kmíně", 13), QStringList{u"Kapr na kmíně"_s});
    EXPECT_EQ(wrap("Kapr na kmíně", 12), (QStringList{u"Kapr na"_s, u"kmíně"_s}));
    EXPECT_EQ(wrap("Kapr nejnejnejkmínovitější je", 10),
              (QStringList{u"Kapr"_s, u"nejnejnejkmínovitější"_s, u"je"_s}));
    EXPECT_EQ(wrap("", 5), QStringList{QString()});
    EXPECT_EQ(wrap("          ", 5), QStringList{u"          "_s});
    EXPECT_EQ(wrap("jedna   dvě ", 8), (QStringList{u"jedna"_s, u"dvě "_s}));
    EXPECT_EQ(wrap("      - nebo olej olivový", 17, "         "),
              (QStringList{u"      - nebo olej"_s, u"         olivový"_s}));
    EXPECT_EQ(wrap("Polévka s bramborem a majoránkou", 21),
              (QStringList{u"Polévka s bramborem"_s, u"a majoránkou"_s}));
    EXPECT_EQ(wrap("vaříme 20 minut", 10), (QStringList{u"vaříme"_s, u"20 minut"_s}));
    EXPECT_EQ(wrap("do 15. / 4., od 16. 9., dnes", 11),
              (QStringList{u"do"_s, u"15. / 4.,"_s, u"od 16. 9.,"_s, u"dnes"_s}));
    EXPECT_EQ(wrap("v roce 2010. 15. 4.", 12), (QStringList{u"v roce 2010."_s, u"15. 4."_s}));
    EXPECT_EQ(wrap("a v o", 3), (QStringList{u"a v"_s, u"o"_s})) << "nothing else is left";
    EXPECT_EQ(wrap("   olej", 2, "    "), (QStringList{u"   olej"_s})) << "an indent of no room";
    const QString longText = u"slovo "_s.repeated(2000);
    EXPECT_EQ(wrapAtBlanks(longText, 1100, fixedWidth).size(), 1000);
}

TEST(PlainTextTest, KeepsWordsAndParagraphsOnly) {
    EXPECT_EQ(plainText(u"{\\rtf1{\\fonttbl{\\f0\\fcharset238 Arial;}}\\pard\\plain\\b Var\\b0  "
                        "*12v\\'edno* a @7video@\\par\\tab x\\~y\\par\\par}"_s),
              u"Var víno a video\n\tx\u00a0y"_s);
    EXPECT_EQ(plainText(u"5*2 a #1"_s), u"5*2 a #1"_s) << "no rich text, no links";
    EXPECT_EQ(plainText(QString()), QString());
    EXPECT_EQ(plainText(u"   "_s), QString());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
