#include "readtables.h"

#include <QCollator>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "nearword.h"
#include "readfacts.h"
#include "readfoods.h"
#include "readsponsors.h"

namespace sarne::disc {
namespace {

/// The table of spoons gets its rows from the weights that the recipes are checked with.
constexpr int kSpoonTable = 5;
/// A link's number has three digits.
constexpr int kHighestKeyword = 999;
constexpr int kHighestRow = 9999;

const QHash<QString, UnitKind>& unitKinds() {
    static const QHash<QString, UnitKind> kinds{{QStringLiteral("hmotnost"), UnitKind::weight},
                                                {QStringLiteral("objem"), UnitKind::volume},
                                                {QStringLiteral("lžíce"), UnitKind::spoon},
                                                {QStringLiteral("kus"), UnitKind::piece},
                                                {QStringLiteral("volné"), UnitKind::free}};
    return kinds;
}

void readUnits(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Row& row : tableRows(folder.read(QStringLiteral("jednotky.txt")))) {
        if (!unitKinds().contains(row.at(2)))
            problems.error(row.place, QStringLiteral("neznámý druh jednotky „%1“").arg(row.at(2)) +
                                          didYouMean(row.at(2), unitKinds().keys()));
        const int id = static_cast<int>(book.units.size()) + 1;
        book.units << Unit{id, row.at(0), unitKinds().value(row.at(2)), qMax(0.0, czechNumber(row.at(3)))};
        QStringList forms = trimmedParts(row.at(1), u',');
        forms.prepend(row.at(0));
        for (const QString& form : std::as_const(forms)) {
            if (book.unitForms.contains(form))
                problems.error(row.place, QStringLiteral("jednotka „%1“ tu stojí podruhé").arg(form));
            book.unitForms.insert(form, id);
        }
    }
}

void readIngredients(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Row& row : tableRows(folder.read(QStringLiteral("suroviny.txt")))) {
        if (book.ingredientId(row.at(0)))
            problems.error(row.place, QStringLiteral("surovina „%1“ tu stojí podruhé").arg(row.at(0)));
        book.ingredients << Ingredient{static_cast<int>(book.ingredients.size()) + 1, row.at(0),
                                       !row.at(1).isEmpty() && row.at(1) == book.facts.mainMark, row.place};
    }
}

NamedList readNames(const ContentFolder& folder, const QString& file, Problems& problems) {
    NamedList list;
    for (const Row& row : tableRows(folder.readIfThere(file))) {
        if (list.id(row.at(0)))
            problems.error(row.place, QStringLiteral("„%1“ tu stojí podruhé").arg(row.at(0)));
        list.names << row.at(0);
        list.places << row.place;
    }
    return list;
}

void readTools(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    book.tools = readNames(folder, QStringLiteral("pomucky.txt"), problems);
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("pomucky.txt"))))
        if (!row.at(1).isEmpty()) book.toolPictures << ToolPicture{row.place, row.at(0), row.at(1)};
}

void readWines(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("vina.txt")))) {
        if (row.at(1).isEmpty()) problems.error(row.place, QStringLiteral("víno nemá druh"));
        book.wines << Wine{row.at(0), row.at(1), row.place};
    }
}

/// "lžíce 15 g": the unit's id and the grams.
std::pair<int, double> unitWeight(const QString& text, const Cookbook& book) {
    static const QRegularExpression pattern(QStringLiteral("^(.+) ([\\d,]+) (g|ml)$"));
    const auto match = pattern.match(text);
    if (!match.hasMatch()) return {0, 0};
    return {book.unitForms.value(match.captured(1)), czechNumber(match.captured(2))};
}

void readWeights(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Line& line : folder.readIfThere(QStringLiteral("lzice.txt"))) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        const QString name = entry.key.section(u',', 0, 0).trimmed();
        if (!book.ingredientId(name) && name != book.facts.mainMark)
            problems.finding(line.place, QStringLiteral("neznámá surovina „%1“").arg(name));
        for (const QString& part : entry.value.split(QStringLiteral("; "))) {
            const auto [unit, grams] = unitWeight(part.trimmed(), book);
            if (unit == 0 || grams <= 0)
                problems.error(line.place, QStringLiteral("tohle není váha jednotky: „%1“").arg(part));
            book.unitWeights[entry.key].insert(unit, grams);
        }
    }
}

/// Numbers that rows begin with, each once.
class Numbers {
  public:
    explicit Numbers(Problems& problems, int highest = kHighestRow) : problems_(problems), next_(highest) {
        highest_ = highest;
    }

    /// The number of \a row; where it is none or stands here already, it is reported and another is taken.
    int of(const Row& row) {
        const int number = row.at(0).toInt();
        if (number >= 1 && number <= highest_ && !taken_.contains(number)) {
            taken_ << number;
            return number;
        }
        problems_.error(
            row.place,
            QStringLiteral("číslo musí být od 1 do %1, každé jednou: „%2“").arg(highest_).arg(row.at(0)));
        return ++next_;
    }

  private:
    Problems& problems_;
    QSet<int> taken_;
    int highest_;
    int next_;
};

void readSettings(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    static const QStringList kStates{QStringLiteral("zapnuto"), QStringLiteral("vypnuto")};
    Numbers numbers(problems);
    for (const Row& row : tableRows(folder.read(QStringLiteral("nastav.txt")))) {
        if (!kStates.contains(row.at(2)))
            problems.error(
                row.place,
                QStringLiteral("„%1“ nemůže být „%2“, patří sem zapnuto, vypnuto").arg(row.at(1), row.at(2)));
        book.settings << Setting{numbers.of(row), row.at(1), row.at(2) == kStates.first()};
    }
}

void readVideos(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    Numbers numbers(problems);
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("videa.txt"))))
        book.videos << Video{numbers.of(row), row.at(1)};
}

void readQuick(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    Numbers numbers(problems);
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("rychle.txt")))) {
        if (row.cells.size() == 3)
            book.quick << QuickRecipe{numbers.of(row), row.place, row.at(1), row.at(2).toInt()};
        else
            problems.error(row.place, QStringLiteral("řádek má být „číslo | název | číslo receptu“"));
    }
}

/// The cells of a section's title.
Row titleCells(const Section& section) {
    Row row;
    row.place = section.place;
    for (const QString& cell : section.title.split(u'|')) row.cells << cell.trimmed();
    return row;
}

/// "12 | Kapr | kapra, kapři": an article begins like this behind "==".
Article article(const Section& section) {
    const Row head = titleCells(section);
    return {head.at(0).toInt(), section.place, head.at(1), trimmedParts(head.at(2), u','), section.lines};
}

QList<Article> articles(const ContentFolder& folder, const QString& subfolder, int highest,
                        Problems& problems) {
    QList<Article> all;
    Numbers numbers(problems, highest);
    for (const QString& file : folder.files(subfolder)) {
        const QList<Section> parts = sections(folder.read(file));
        for (const Section& section : parts.mid(1)) {
            all << article(section);
            all.last().id = numbers.of(titleCells(section));
        }
    }
    return all;
}

void readPages(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    Numbers pages(problems);
    for (const QString& file : folder.files(QStringLiteral("stranky"))) {
        const QList<Section> parts = sections(folder.read(file));
        for (const Section& section : parts.mid(1)) {
            const Row head = titleCells(section);
            book.pages << Page{pages.of(head), section.place, head.at(1), head.at(2), section.lines};
        }
    }
    Numbers topics(problems);
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("help.txt"))))
        book.help << HelpTopic{topics.of(row), row.place, row.at(1), row.at(2).toInt()};
}

/// Grams of a unit of that name, 0 when it has none.
double gramsOf(const Cookbook& book, const QHash<int, double>& weights, const QString& unit) {
    return weights.value(book.unitForms.value(unit));
}

QString gramsText(double grams) {
    if (grams <= 0) return QStringLiteral("–");
    const double shown = grams < 10    ? std::round(grams * 2) / 2
                         : grams < 100 ? std::round(grams)
                                       : std::round(grams / 10) * 10;
    return QLocale(QLocale::Czech).toString(shown, 'g', 4) + QStringLiteral(" g");
}

/// What the recipes reckon with: a tea spoon, a table spoon and a cup of each ingredient that has a weight
/// by the spoon. One spoon follows from the other; a cup that nobody weighed stays empty.
QList<QStringList> spoonRows(const Cookbook& book) {
    QList<QStringList> rows;
    for (auto entry = book.unitWeights.cbegin(); entry != book.unitWeights.cend(); ++entry) {
        const double tea = gramsOf(book, *entry, QStringLiteral("lžičky"));
        const double table = gramsOf(book, *entry, QStringLiteral("lžíce"));
        const double cup = gramsOf(book, *entry, QStringLiteral("hrnky"));
        const double spoon = table > 0 ? table : tea * 3;
        if (spoon <= 0) continue;
        rows << QStringList{entry.key().first(1).toUpper() + entry.key().mid(1),
                            gramsText(tea > 0 ? tea : spoon / 3), gramsText(spoon), gramsText(cup)};
    }
    QCollator czech(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    std::sort(rows.begin(), rows.end(),
              [&](const QStringList& a, const QStringList& b) { return czech.compare(a[0], b[0]) < 0; });
    return rows;
}

QString cellCount(qsizetype count) {
    return QStringLiteral("%1 %2").arg(count).arg(count == 1               ? QStringLiteral("buňka")
                                                  : count > 1 && count < 5 ? QStringLiteral("buňky")
                                                                           : QStringLiteral("buněk"));
}

void readLookupTables(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    Numbers numbers(problems);
    for (const QString& file : folder.files(QStringLiteral("tabulky"))) {
        QList<Row> rows = tableRows(folder.read(file));
        if (rows.size() < 3) {
            problems.error({file, 0}, QStringLiteral("tabulka potřebuje název, nadpisy a řádky"));
            continue;
        }
        const Row name = rows.takeFirst();
        const Row heads = rows.takeFirst();
        LookupTable table{numbers.of(name), name.place, name.at(1), name.at(2), heads.cells, {}};
        for (const Row& row : rows) {
            if (row.cells.size() != heads.cells.size())
                problems.error(row.place, QStringLiteral("%1 pod %2 nadpisy")
                                              .arg(cellCount(row.cells.size()))
                                              .arg(heads.cells.size()));
            table.rows << row.cells;
        }
        if (table.id == kSpoonTable) table.rows << spoonRows(book);
        book.tables << table;
    }
}

}  // namespace

double czechNumber(const QString& text) {
    QString plain = text;
    plain.remove(u' ').replace(u',', u'.');
    bool ok = false;
    const double value = plain.toDouble(&ok);
    return ok ? value : -1;
}

void readTables(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    book.facts = readFacts(folder, problems);
    readUnits(folder, book, problems);
    readIngredients(folder, book, problems);
    book.refinements = readNames(folder, QStringLiteral("upresneni.txt"), problems);
    readTools(folder, book, problems);
    readWines(folder, book, problems);
    readWeights(folder, book, problems);
    readFoods(folder, book, problems);
    readSearchWords(folder, book);
    readSettings(folder, book, problems);
    readVideos(folder, book, problems);
    readQuick(folder, book, problems);
}

void readArticles(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    book.auxiliary =
        articles(folder, QStringLiteral("odkazy"), kHighestKeyword - kAuxiliaryKeywords, problems);
    book.keywords = articles(folder, QStringLiteral("hesla"), kAuxiliaryKeywords, problems);
    readPages(folder, book, problems);
    readLookupTables(folder, book, problems);
    readSponsors(folder, book, problems);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
