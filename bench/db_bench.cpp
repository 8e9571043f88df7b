#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include "db/database.h"
#include "db/ingredients.h"
#include "support/recipedatabase.h"

// The database as the screens use it, small and large. LIKE is measured beside SQLite's own on the same rows.

namespace sarne {
namespace {

constexpr int kIngredients = 100000;

/// A cookbook of \a recipes recipes with ten ingredients each, out of \a ingredients.
QString cookbook(const QTemporaryDir& folder, int recipes, int ingredients) {
    const QString file = folder.filePath(QStringLiteral("Sarne.drc"));
    const QString count =
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) ");
    test::writeRecipeDatabase(
        file,
        {QStringLiteral("INSERT INTO Suroviny ") + count.arg(ingredients) +
             QStringLiteral(
                 "SELECT i, CASE i % 500 WHEN 0 THEN 'Kapr číslo ' ELSE 'Surovina číslo ' END || i FROM n"),
         QStringLiteral("INSERT INTO Recepty (ID, Nazev, Porce) ") + count.arg(recipes) +
             QStringLiteral("SELECT i, 'Recept ' || i, 4 FROM n"),
         QStringLiteral("INSERT INTO Jednotky VALUES (1, 'g')"),
         QStringLiteral("INSERT INTO SpojSur ") + count.arg(recipes * 10) +
             QStringLiteral("SELECT i / 10, 1 + i % %1, 0, 1, 250, 1, 2, 0 FROM n").arg(ingredients)});
    return file;
}

struct Book {
    Book(int recipes, int ingredients) : file(cookbook(folder, recipes, ingredients)) { db.Open(file); }
    QTemporaryDir folder;
    QString file;
    Database db;
};

Book& smallBook() {
    static Book book(50, 200);
    return book;
}

Book& largeBook() {
    static Book book(100000, kIngredients);
    return book;
}

void likeOurs(benchmark::State& state) {
    Book& book = largeBook();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            book.db.OpenQuery(QStringLiteral("SELECT * FROM Suroviny WHERE Polozka LIKE 'kap*'"))
                .RecordCount());
}

/// The same rows of the same file, by SQLite's own LIKE and nothing of ours but the collation's name.
void likePlain(benchmark::State& state) {
    SQLite::Database db(largeBook().file.toStdString());
    for (auto _ : state) {
        SQLite::Statement query(db, "SELECT ID, Polozka FROM Suroviny WHERE Polozka LIKE 'kap%'");
        int rows = 0;
        while (query.executeStep()) rows += !query.getColumn(1).getString().empty();
        benchmark::DoNotOptimize(rows);
    }
}

void readIngredientsOf(benchmark::State& state, Book& book, int id) {
    for (auto _ : state) {
        Recordset recipes = book.db.OpenTable(QStringLiteral("Recepty"));
        if (!RecordExists(recipes, id)) state.SkipWithError("no such recipe");
        benchmark::DoNotOptimize(readIngredients(book.db, std::int16_t(id)));
    }
}

void openRecipeOfFifty(benchmark::State& state) {
    readIngredientsOf(state, smallBook(), 49);
}

void openRecipeOfAHundredThousand(benchmark::State& state) {
    readIngredientsOf(state, largeBook(), 32767);
}

BENCHMARK(likePlain)->Unit(benchmark::kMillisecond);
BENCHMARK(likeOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(openRecipeOfFifty)->Unit(benchmark::kMicrosecond);
BENCHMARK(openRecipeOfAHundredThousand)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace sarne

BENCHMARK_MAIN();

// SPDX-License-Identifier: GPL-3.0-or-later
