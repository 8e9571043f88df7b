#include <gtest/gtest.h>

#include "platform/pagesonsheet.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/kept.h"

namespace sarne {
namespace {

using test::PrintCookbook;

/// "12bi_ Arial #000000": size, bold, italic, underlined.
QString looks(const PageText& text) {
    const TextFont& font = text.font;
    return u"%1%2%3%4 %5 %6"_s.arg(font.size).arg(
        font.bold ? u"b"_s : QString(), font.italic ? u"i"_s : QString(), font.underline ? u"_"_s : QString(),
        font.name, QColor(text.color).name());
}

/// One row a line: its baseline, where each word begins, the line's end, and the words; before words
/// that look otherwise than those before, how.
void dump(QStringList& rows, const PrintedPage& page) {
    QString last;
    for (const PagePicture& picture : page.pictures) {
        const QRect& at = picture.place;
        rows << u"# %1 %2 %3 %4"_s.arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
    }
    for (size_t i = 0; i < page.texts.size();) {
        QStringList places, words;
        const int baseline = page.texts[i].baseline;
        int end = 0;
        for (; i < page.texts.size() && page.texts[i].baseline == baseline; ++i) {
            places << QString::number(page.texts[i].x);
            const QString now = looks(page.texts[i]);
            words << (now == last ? page.texts[i].text : u"{%1}"_s.arg(now) + page.texts[i].text);
            last = now;
            end = page.texts[i].x + page.texts[i].width;
        }
        rows << u"%1: %2 -%3 | %4"_s.arg(baseline).arg(places.join(u' ')).arg(end).arg(words.join(u' '));
    }
}

/// Keeps what it is told.
class ToldProgress final : public PrintProgress {
  public:
    QString told;

    void recipeStarted(const QString& name) override { told += u'~' + name; }
    void status(const QString& text) override { told += text; }
    void progressed(double part) override {
        EXPECT_GE(part, part_) << "a bar that goes back";
        part_ = part;
        told += u" %1"_s.arg(part, 0, 'f', 3);
    }
    void recipeDone() override { told += u"done"_s; }
    bool goOn() override { return true; }

  private:
    double part_ = 0;
};

TEST(PrintedPage, StandsToTheTwipWhereItStood) {
    PrintCookbook book(test::fiveRecipes());
    book.addPhoto(1, {400, 300}, Qt::red);
    QStringList rows;
    const auto add = [&](Paper paper, int id, const PrintOptions& options) {
        test::FixedMetrics metrics;
        ToldProgress progress;
        PageComposer composer(book.source(), PagesOnSheet::of(paper).scale(), metrics);
        for (const PrintedPage& page : composer.recipe(id, options, progress)) {
            rows << u"== %1, %2"_s.arg(paperName(paper)).arg(id);
            dump(rows, page);
        }
        rows << progress.told;
    };
    for (int paper = 0; paper < kPapers; ++paper)
        for (int id = 1; id <= 5; ++id) add(Paper(paper), id, {});
    for (size_t section = 0; section < kPrintSections; ++section) {
        PrintOptions one;
        one.portions = 2.5;
        one.units = UnitSystem::Spoons;
        one.sections.fill(false);
        one.sections[section] = true;
        for (const Paper paper : {Paper::A4, Paper::Card}) add(paper, 1, one);
    }
    test::FixedMetrics metrics;
    SilentProgress silent;
    const TitledText help{u"O tisku"_s, test::rtf(u"Text str\\'e1nky."_s)};
    rows << u"== a text"_s;
    for (const PrintedPage& page :
         PageComposer(book.source(), PagesOnSheet().scale(), metrics).text(help, silent))
        dump(rows, page);
    test::expectText(u"strany"_s, rows.join(u'\n'));
    PrintSource grey = book.source();
    grey.grey = true;
    for (const PrintedPage& page :
         PageComposer(grey, PagesOnSheet().scale(), metrics).recipe(1, {}, silent)) {
        for (const PageText& text : page.texts) EXPECT_EQ(QColor(text.color).saturation(), 0);
        EXPECT_EQ(page.pictures.size(), 2u);
        for (const PagePicture& picture : page.pictures) {
            EXPECT_TRUE(picture.picture.image().allGray());
            EXPECT_TRUE(picture.file.isEmpty()) << "what the file holds has its colours";
        }
    }
}

TEST(PrintLogo, IsAFish) {
    const QImage logo = printLogo(Resources(u":/none/"_s)).image();
    QStringList rows{u"%1x%2"_s.arg(logo.width()).arg(logo.height())};
    for (int y = 10; y < logo.height(); y += 20) {
        rows << QString();
        for (int x = 5; x < logo.width(); x += 10) {
            const QColor colour = logo.pixelColor(x, y);
            rows.last() += colour == QColor(Qt::white) ? u'.' : colour.red() < 100 ? u'#' : u'o';
        }
    }
    test::expectText(u"logo"_s, rows.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
