// How fast a recipe opens, recalculates and changes its sections, in a cookbook of fifty recipes and in one
// of a hundred thousand: the times of one pair should be equal. Painting is measured by itself, and a note of
// a megabyte in one paragraph: without blanks (0) and with (1).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPlainTextEdit>
#include <QTest>
#include <map>

#include "forms/messagebox.h"
#include "forms/noteedit.h"
#include "screens/recipe/frmrecept.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace {

using namespace sarne;

constexpr int kSmall = 50, kLarge = 100000;
constexpr int kHighestId = 32767;

QString document(int paragraphs) {
    QString text = QStringLiteral(
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fcharset238 Times New Roman;}}"
        "{\\colortbl\\red0\\green0\\blue0;}\\pard\\plain\\f0\\fs24 ");
    for (int i = 0; i < paragraphs; ++i)
        text +=
            QStringLiteral(
                "%1. Rybu *12osol\\'edme* a nech\\'e1me p\\'f9l hodiny v chladu, potom ji "
                "os\\'fa\\'edme a ope\\'e8eme na m\\'e1sle dozlatova, st\\'e1le ji p\\'f8el\\'edvaj\\'edce "
                "v\\'fdpekem.\\par ")
                .arg(i);
    text += u'}';
    return text.replace(u'\'', QStringLiteral("''"));
}

/// Recipes with \a rows ingredients each, alternatives and refinements among them.
QStringList cookbook(int recipes, int rows) {
    const QString numbers =
        QStringLiteral("WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < %1) ");
    const QString item = numbers + QStringLiteral("INSERT INTO %2 (ID, Polozka) SELECT x, '%3 ' || x FROM n");
    return {
        item.arg(200).arg(QStringLiteral("Suroviny"), QStringLiteral("surovina")),
        item.arg(40).arg(QStringLiteral("Upresneni"), QStringLiteral("nakrájené na kostky")),
        item.arg(20).arg(QStringLiteral("Jednotky"), QStringLiteral("jednotka")),
        item.arg(20).arg(QStringLiteral("Pomucky"), QStringLiteral("hrnec")),
        numbers.arg(recipes) +
            QStringLiteral("INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Porce) SELECT x, 'Recept ' || x, "
                           "'Dlouhý název receptu ' || x, 4 FROM n"),
        QStringLiteral("UPDATE Recepty SET Recept = '%1', Uvod = '%1', vino = '%1' WHERE ID <= 50 OR ID = %2")
            .arg(document(12))
            .arg(kHighestId),
        numbers.arg(rows) +
            QStringLiteral("INSERT INTO SpojSur SELECT r.ID, (r.ID * 7 + x) % 200 + 1, x % 3, x % 20 + 1, "
                           "x * 12.5, x % 7 + 1, x / 4.0, CASE x % 10 WHEN 0 THEN x ELSE 0 END FROM "
                           "(SELECT ID FROM Recepty) r, n"),
        QStringLiteral("INSERT INTO SpojPomucky SELECT ID, ID % 20 + 1 FROM Recepty")};
}

/// A run on a generated cookbook, made once for each size.
struct Cookbook {
    QTemporaryDir folder;
    FakeSarne run;
    Serving lookedAt;
    std::int16_t id;

    explicit Cookbook(int recipes) : id(static_cast<std::int16_t>(std::min(recipes, kHighestId))) {
        const QString file = folder.filePath(QStringLiteral("Sarne.drc"));
        constexpr int kRows = 40, kRowsOfMany = 10;
        QStringList statements = cookbook(recipes, recipes > kHighestId ? kRowsOfMany : kRows);
        if (recipes > kHighestId)
            statements << QStringLiteral(
                              "INSERT INTO SpojSur SELECT %1, ID_Polozky, ID_Upresneni, ID_JdnKg, "
                              "MnozstviKg, ID_Jdnlzice, MnozstviLzice, ID_nahrSur FROM SpojSur WHERE "
                              "ID_Receptu IN (1, 2, 3)")
                              .arg(kHighestId);
        test::writeRecipeDatabase(file, statements);
        run.database.Open(file);
        run.MediaRoot = LogicalPaths::fromNativeFolder(folder.path());
        QDir(folder.path()).mkpath(QStringLiteral("foto/Velke"));
        QImage photo(1600, 1200, QImage::Format_RGB32);
        photo.fill(Qt::darkRed);
        photo.save(folder.filePath(QStringLiteral("foto/Velke/r%1.bmp").arg(id)));
    }

    frmRecept* open() {
        auto* form = new frmRecept(run, lookedAt);
        form->Zobraz(id);
        return form;
    }

    static Cookbook& of(int recipes) {
        static std::map<int, std::unique_ptr<Cookbook>> made;
        auto& book = made[recipes];
        if (!book) book = std::make_unique<Cookbook>(recipes);
        return *book;
    }
};

Button& button(frmRecept& form, const char* name) {
    return *form.findChild<Button*>(QString::fromLatin1(name));
}

void openWithIngredients(benchmark::State& state) {
    Cookbook& book = Cookbook::of(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        frmRecept* form = book.open();
        button(*form, "imgBtn(5)").click();
        state.PauseTiming();
        form->Skryj();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void recalculateFortyRows(benchmark::State& state) {
    Cookbook& book = Cookbook::of(static_cast<int>(state.range(0)));
    frmRecept* form = book.open();
    button(*form, "imgBtn(5)").click();
    bool six = false;
    for (auto _ : state) button(*form, (six = !six) ? "imgPrepocet(6)" : "imgPrepocet(8)").click();
    state.counters["rows"] = double(readIngredients(book.run.database, book.id).size());
    form->Skryj();
}

void paintFortyRows(benchmark::State& state) {
    Cookbook& book = Cookbook::of(kSmall);
    frmRecept* form = book.open();
    button(*form, "imgBtn(5)").click();
    auto* view = form->findChild<TextView*>();
    for (auto _ : state) view->repaint();
    form->Skryj();
}

void switchSections(benchmark::State& state) {
    Cookbook& book = Cookbook::of(static_cast<int>(state.range(0)));
    frmRecept* form = book.open();
    QApplication::processEvents();
    int section = 0;
    for (auto _ : state) {
        section = (section + 1) % 8;
        button(*form, qPrintable(QStringLiteral("imgBtn(%1)").arg(section))).click();
        QApplication::processEvents();  // paints
    }
    form->Skryj();
}

void collectText(benchmark::State& state) {
    Cookbook& book = Cookbook::of(static_cast<int>(state.range(0)));
    frmRecept* form = book.open();
    for (auto _ : state) benchmark::DoNotOptimize(form->collectedText());
    form->Skryj();
}

/// A note of a megabyte in one paragraph, in words or in one.
QString longNote(bool words) {
    return words ? QStringLiteral("poznámka k receptu ").repeated(55000) : QString(1 << 20, u'x');
}

frmRecept* openNote(Cookbook& book, bool words) {
    book.run.database.Execute(
        QStringLiteral("UPDATE Recepty SET Vlastni = '%1' WHERE ID = %2").arg(longNote(words)).arg(book.id));
    frmRecept* form = book.open();
    button(*form, "imgBtn(7)").click();
    QApplication::processEvents();
    return form;
}

void openLongNote(benchmark::State& state) {
    Cookbook& book = Cookbook::of(kSmall);
    frmRecept* form = openNote(book, state.range(0) != 0);
    for (auto _ : state) {
        button(*form, "imgBtn(7)").click();
        QApplication::processEvents();  // paints
    }
    form->Skryj();
}

void typeIntoLongNote(benchmark::State& state) {
    Cookbook& book = Cookbook::of(kSmall);
    frmRecept* form = openNote(book, state.range(0) != 0);
    auto& editor = form->findChild<NoteEdit*>()->editor();
    for (auto _ : state) {
        QTest::keyClick(&editor, Qt::Key_A);
        QApplication::processEvents();  // paints
    }
    book.run.answers = {kAnswerNo};
    form->Skryj();
}

void readLongNote(benchmark::State& state) {
    Cookbook& book = Cookbook::of(kSmall);
    frmRecept* form = openNote(book, state.range(0) != 0);
    for (auto _ : state) {
        button(*form, "cmdUloz(1)").click();
        QApplication::processEvents();  // paints
    }
    form->Skryj();
}

BENCHMARK(openWithIngredients)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMicrosecond);
BENCHMARK(recalculateFortyRows)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMicrosecond);
BENCHMARK(paintFortyRows)->Unit(benchmark::kMicrosecond);
BENCHMARK(switchSections)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMicrosecond);
BENCHMARK(openLongNote)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(typeIntoLongNote)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(readLongNote)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(collectText)->Arg(kSmall)->Arg(kLarge)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}

// SPDX-License-Identifier: GPL-3.0-or-later
