#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QRandomGenerator>

#include "platform/pagesonsheet.h"
#include "print/pagepainter.h"
#include "print/pagepreview.h"
#include "print/printcookbook.h"

namespace sarne {
namespace {

using test::PrintCookbook;

constexpr int kRecipes = 50;
constexpr int kTextBytes = 3000;
constexpr QSize kPhotoSize(640, 480);  // as on the disc: 267 dpi on an A4
constexpr int kPhotoQuality = 90;

QString str(const char* text) {
    return QString::fromUtf8(text);
}

/// Czech-looking words in sentences and paragraphs, \a length characters in all.
QString prose(int length, QRandomGenerator& random) {
    static const QStringList syllables{str("ka"), str("pr"), str("ště"), str("ří"), str("mě"), str("lo"),
                                       str("vá"), str("nů"), str("ži"),  str("do"), str("pe"), str("čé")};
    QString text;
    for (int word = 1; text.size() < length; ++word) {
        for (int i = 1 + random.bounded(4); i > 0; --i) text += syllables[random.bounded(12)];
        text += word % 80 == 0 ? str(".\\par ") : word % 12 == 0 ? str(". ") : str(" ");
    }
    return text;
}

QStringList statements() {
    QRandomGenerator random(1);
    QStringList all{str("INSERT INTO Suroviny VALUES (1,'kapr'),(2,'máslo'),(3,'kmín')"),
                    str("INSERT INTO Jednotky VALUES (1,'g'),(2,'lžíce')")};
    for (int id = 1; id <= kRecipes; ++id) {
        all << PrintCookbook::recipe(id, str("Recept číslo %1").arg(id),
                                     {str("Uvod"), test::rtf(prose(kTextBytes / 6, random)), str("Recept"),
                                      test::rtf(prose(kTextBytes * 4 / 6, random)), str("Prezentace"),
                                      test::rtf(prose(kTextBytes / 6, random))});
        for (int row = 0; row < 10; ++row)
            all << str("INSERT INTO SpojSur VALUES (%1,%2,0,1,%3,2,1.5,0)")
                       .arg(id)
                       .arg(row % 3 + 1)
                       .arg(10 + row);
    }
    return all;
}

/// Photos with as much in them as photographs have.
void addPhotos(PrintCookbook& book) {
    QRandomGenerator random(2);
    for (int id = 1; id <= kRecipes; ++id) {
        QImage image(kPhotoSize, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixelColor(x, y, QColor((x + id * 5) % 256, (y * 3) % 256, 60 + random.bounded(60)));
        }
        // In the form of the disc's photos, whatever their names end in.
        image.save(book.photo(id), "JPG", kPhotoQuality);
    }
}

PrintCookbook& cookbook() {
    static PrintCookbook book(statements());
    static const bool photos = (addPhotos(book), true);
    Q_UNUSED(photos)
    return book;
}

std::vector<std::int16_t> allRecipes() {
    std::vector<std::int16_t> ids;
    for (std::int16_t id = 1; id <= kRecipes; ++id) ids.push_back(id);
    return ids;
}

void count(benchmark::State& state, int pages) {
    state.counters["pages_per_second"] = benchmark::Counter(pages, benchmark::Counter::kIsRate);
}

void BM_RecipesToPdf(benchmark::State& state) {
    PrintCookbook& book = cookbook();
    const std::vector<std::int16_t> ids = allRecipes();
    PrintOptions options;
    options.sections[static_cast<size_t>(PrintSection::Photo)] = state.range(0) == 1;
    int pages = 0;
    for (auto _ : state) {
        const PrintOutcome outcome = book.print(ids, options);
        pages += outcome.pages;
        QFile::remove(outcome.file);
    }
    count(state, pages);
}

void BM_RecipesToPages(benchmark::State& state) {
    PrintCookbook& book = cookbook();
    SilentProgress silent;
    int pages = 0;
    for (auto _ : state) {
        QtTextMetrics metrics;
        PageComposer composer(book.source(), {0, 0, 10772, 15704, {}}, metrics);
        for (const std::int16_t id : allRecipes())
            pages += static_cast<int>(composer.recipe(id, {}, silent).size());
    }
    count(state, pages);
}

/// What a change of an option costs: the recipe's pages set anew and the first one painted as it shows.
void BM_PreviewOfOneRecipe(benchmark::State& state) {
    PrintCookbook& book = cookbook();
    SilentProgress silent;
    QImage sheet(550, 780, QImage::Format_RGB32);
    for (auto _ : state) {
        PagePreview preview(book.source(), PagesOnSheet::of(Paper::A4).scale(), {{1}, {}}, {});
        while (preview.layOutMore()) {
        }
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(double(sheet.width()) / preview.scale().sheet.width(),
                      double(sheet.width()) / preview.scale().sheet.width());
        paintPage(painter, preview.page(0), silent);
    }
}

/// Notes the longest time that passes without the user being asked.
class WatchedProgress final : public PrintProgress {
  public:
    double longestGap = 0;  // milliseconds

    WatchedProgress() { timer_.start(); }
    void recipeStarted(const QString&) override {}
    void status(const QString&) override {}
    void progressed(double) override {}
    void recipeDone() override {}
    bool goOn() override {
        longestGap = std::max(longestGap, double(timer_.nsecsElapsed()) / 1e6);
        timer_.restart();
        return true;
    }

  private:
    QElapsedTimer timer_;
};

/// A note of a megabyte: how long a wish to stop may wait.
void BM_LongestWaitToStop(benchmark::State& state) {
    QRandomGenerator random(3);
    const bool words = state.range(0) == 1;
    const QString note = words ? prose(1 << 20, random) : QString(1 << 20, u'm');
    PrintCookbook book({PrintCookbook::recipe(1, str("Lín"), {str("Vlastni"), note})});
    double longest = 0;
    for (auto _ : state) {
        WatchedProgress watched;
        SystemPrinter printer(book.folder.filePath(str("Dokumenty")));
        printer.use({});
        QtTextMetrics metrics;
        PageComposer composer(book.source(), printer.scale(), metrics);
        PrintJob(printer, composer, watched).print({{1}, {}}, {}, str("Lín"));
        longest = std::max(longest, watched.longestGap);
    }
    state.counters["longest_wait_ms"] = longest;
}

BENCHMARK(BM_LongestWaitToStop)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PreviewOfOneRecipe)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RecipesToPdf)->Arg(0)->Arg(1)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RecipesToPages)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
