#include <benchmark/benchmark.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <memory>

#include "core/logicalpath.h"
#include "forms/button.h"
#include "screens/browse/frmfotobig.h"
#include "screens/browse/frmseznam.h"
#include "screens/browse/frmsit.h"
#include "screens/browse/listentries.h"
#include "screens/browse/photofile.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

// How long a person waits: for a list to fill, for a scroll step, for the next photo. A display of 1920 x
// 1080 throughout.
namespace sarne {
namespace {

constexpr int kRecipes = 100000;
constexpr int kListed = 251;
constexpr QSize kDisplay(1920, 1080);
constexpr QSize kPhoto(1440, 1080);  // what a disc holds
constexpr int kPhotos = 12;

/// One cookbook for all measurements: recipes with texts of 1.5 KB, and photos with a pattern that cannot be
/// copied row by row.
struct Kitchen {
    Kitchen() {
        const QString file = folder.filePath(QStringLiteral("Sarne.drc"));
        test::writeRecipeDatabase(
            file,
            {QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                            "INSERT INTO Recepty (ID, Nazev, Recept, Uvod) SELECT i, 'Recept číslo ' || i, "
                            "hex(zeroblob(500)), hex(zeroblob(250)) FROM n")
                 .arg(kRecipes)});
        run.database.Open(file);
        run.MediaRoot = LogicalPaths::fromNativeFolder(folder.path());
        QDir().mkpath(folder.filePath(QStringLiteral("foto/Recepty")));
        QDir().mkpath(folder.filePath(QStringLiteral("foto/Male")));
        QImage photo(kPhoto, QImage::Format_RGB32);
        for (int y = 0; y < photo.height(); ++y)
            for (int x = 0; x < photo.width(); ++x) photo.setPixel(x, y, qRgb(x, y, x * y));
        for (int id = 1; id <= kPhotos; ++id)
            photo.save(folder.filePath(QStringLiteral("foto/Recepty/r%1.bmp").arg(id)), "BMP");
        photo.save(folder.filePath(QStringLiteral("foto/sitCela.bmp")), "BMP");
        run.Pictures.seznam = Picture::fromImage(photo);
        run.window.resize(kDisplay);
        run.PushScreen(*new Form(run, QStringLiteral("frmHlavni")));
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    FakeSarne run;
};

/// The kitchen that main() makes and closes, while the application lives.
std::unique_ptr<Kitchen>& theKitchen() {
    static std::unique_ptr<Kitchen> one;
    return one;
}

Kitchen& kitchen() {
    return *theKitchen();
}

/// Ids spread over the whole table, as a search leaves them.
QString manyIds() {
    QString ids;
    for (int i = 0; i < kListed; ++i) ids += QString::number(1 + i * 7919 % 32000) + u',';
    return ids;
}

void show() {
    QApplication::processEvents();
}

void FillAListOf251(benchmark::State& state) {
    Kitchen& here = kitchen();
    const QString ids = state.range(0) ? manyIds() : QString();
    for (auto _ : state) {
        const auto entries = readEntries(here.run.database, QStringLiteral("recepty"), ids);
        if (entries.size() != kListed) state.SkipWithError("not all were found");
    }
}
BENCHMARK(FillAListOf251)->ArgName("by_ids")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void OpenAListAndShowIt(benchmark::State& state) {
    Kitchen& here = kitchen();
    const QString ids = manyIds();
    for (auto _ : state) {
        auto* list = new frmSeznam(here.run);
        list->Zobraz(ids, QStringLiteral("recepty"));
        show();
        state.PauseTiming();
        list->goBack();
        show();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenAListAndShowIt)->Unit(benchmark::kMillisecond);

void ScrollAListByAStep(benchmark::State& state) {
    Kitchen& here = kitchen();
    auto* list = new frmSeznam(here.run);
    list->Zobraz(manyIds(), QStringLiteral("recepty"));
    show();
    auto* down = child<Button>(*list, "imgSipky(0)");
    auto* up = child<Button>(*list, "imgSipky(1)");
    bool forth = true;
    for (auto _ : state) {
        (forth ? down : up)->click();
        if (state.range(0)) show();
        forth = !forth;
    }
    list->goBack();
    show();
}
BENCHMARK(ScrollAListByAStep)->ArgName("painted")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// Steps through the photos, each shown before the next step is asked for.
void StepToThePhoto(benchmark::State& state) {
    Kitchen& here = kitchen();
    const bool ahead = state.range(0) != 0;
    PhotoRequest request;
    // Photo after photo from one to the other end: only neighbours are decoded ahead. Steps of seven through
    // a list whose photos are all different leave the decoder no time.
    for (int i = 0; i < 3000; ++i) request.photoIds.push_back(static_cast<std::int16_t>(1 + i % kPhotos));
    auto* viewer = new frmFotoBig(here.run);
    viewer->Zobraz(request);
    show();
    for (auto _ : state) {
        state.PauseTiming();
        while (ahead && !viewer->isNextReady()) QThread::usleep(200);
        here.run.time.time += 1000;
        state.ResumeTiming();
        QTest::keyClick(viewer, ahead ? Qt::Key_Right : Qt::Key_Down);
        show();
        if (viewer->photo().isNull()) state.SkipWithError("no photo");
    }
    viewer->goBack();
    show();
}
BENCHMARK(StepToThePhoto)->ArgName("decoded")->Arg(1)->Arg(0)->Iterations(200)->Unit(benchmark::kMillisecond);

void DecodeAPhoto(benchmark::State& state) {
    const QString file = kitchen().folder.filePath(QStringLiteral("foto/Recepty/r1.bmp"));
    // The display's own 4 : 3 part, and a smaller one, for which the photo must be scaled.
    const QSize room = state.range(0) ? QSize(1024, 768) : kPhoto;
    for (auto _ : state) benchmark::DoNotOptimize(readPhoto(file, room));
}
BENCHMARK(DecodeAPhoto)->ArgName("scaled")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void MoveOverTheGrid(benchmark::State& state) {
    Kitchen& here = kitchen();
    auto* grid = new frmSit(here.run);
    grid->Zobraz();
    show();
    bool forth = true;
    for (auto _ : state) {
        QTest::keyClick(grid, forth ? Qt::Key_Right : Qt::Key_Left);
        show();
        forth = !forth;
    }
    grid->goBack();
    show();
}
BENCHMARK(MoveOverTheGrid)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    sarne::theKitchen() = std::make_unique<sarne::Kitchen>();
    benchmark::RunSpecifiedBenchmarks();
    sarne::theKitchen().reset();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
