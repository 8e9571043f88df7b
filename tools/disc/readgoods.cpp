#include "readgoods.h"

#include "nearword.h"
#include "readtables.h"

namespace sarne::disc {
namespace {

const QString kFile = QStringLiteral("obchod.txt");

/// In the order in which one walks through the shop; a department's number is its place here.
const QStringList kDepartments{QStringLiteral("Ryby"),   QStringLiteral("Zelenina a ovoce"),
                               QStringLiteral("Mléčné"), QStringLiteral("Suché"),
                               QStringLiteral("Koření"), QStringLiteral("Nápoje"),
                               QStringLiteral("Ostatní")};

/// The names of a section that \a known has, each once; the others are reported.
QStringList names(const Section& section, const QStringList& known, Problems& problems) {
    QStringList all;
    for (const Line& line : section.lines) {
        for (const QString& name : trimmedParts(line.text, u',')) {
            if (!known.contains(name))
                problems.finding(line.place,
                                 QStringLiteral("„%1“ není v seznamu").arg(name) + didYouMean(name, known));
            else if (!all.contains(name))
                all << name;
        }
    }
    return all;
}

void readYields(const Section& section, Cookbook& book, Problems& problems) {
    for (const Line& line : section.lines) {
        if (line.isBlank()) continue;
        const KeyValue entry = keyValue(line);
        const int refinement = book.refinements.id(entry.key);
        const double percent = czechNumber(entry.value.section(u' ', 0, 0));
        if (refinement == 0 || percent < 1 || percent > 100)
            problems.error(line.place,
                           QStringLiteral("výtěžnost není „upřesnění: 45 %“: „%1“").arg(line.text));
        else
            book.goods.yields.insert(refinement, static_cast<int>(percent));
    }
}

void readDepartment(const Section& section, int number, const QStringList& ingredients, Cookbook& book,
                    Problems& problems) {
    for (const QString& name : names(section, ingredients, problems)) {
        if (book.goods.departments.contains(name))
            problems.error(section.place, QStringLiteral("„%1“ je už v jiném oddělení").arg(name));
        book.goods.departments.insert(name, number);
    }
}

}  // namespace

void readGoods(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    const Lines lines = folder.readIfThere(kFile);
    if (lines.isEmpty()) return;
    book.goods.isGiven = true;
    QStringList ingredients;
    for (const Ingredient& one : book.ingredients) ingredients << one.name;
    for (const Section& section : sections(lines)) {
        const auto number = static_cast<int>(kDepartments.indexOf(section.title));
        if (number >= 0)
            readDepartment(section, number, ingredients, book, problems);
        else if (section.title == QStringLiteral("Doma"))
            book.goods.atHome = names(section, ingredients, problems);
        else if (section.title == QStringLiteral("Úpravy"))
            book.goods.madeAtHome = names(section, book.refinements.names, problems);
        else if (section.title == QStringLiteral("Výtěžnost"))
            readYields(section, book, problems);
        else if (!section.title.isEmpty())
            problems.error(section.place, QStringLiteral("neznámá část „%1“").arg(section.title));
    }
    for (const Ingredient& one : book.ingredients)
        if (!book.goods.departments.contains(one.name))
            problems.finding(one.place,
                             QStringLiteral("obchod.txt neříká, v kterém oddělení je „%1“").arg(one.name));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
