#include "recipefile.h"

#include <QFile>
#include <QRegularExpression>

#include "core/czech.h"
#include "core/gridtable.h"
#include "courses.h"

namespace sarne::disc {
namespace {

/// The lowest free number that the grid shows as this course alone, else also as another.
int freeNumber(const Cookbook& book, const QString& course) {
    for (const qsizetype most : {1, kGridGroups})
        for (int id = 1; id <= kGridCells; ++id)
            if (const QStringList shown = gridCourses(book.facts, id);
                !book.recipes.contains(id) && shown.contains(course) && shown.size() <= most)
                return id;
    int id = kGridCells + 1;
    while (book.recipes.contains(id)) ++id;
    return id;
}

}  // namespace

QString plainFileName(const QString& name) {
    static const QRegularExpression foreign(QStringLiteral("[^a-z0-9]+"));
    const QString plain = fileWords(folded(name).replace(foreign, QStringLiteral(" ")));
    return plain.isEmpty() ? QStringLiteral("recept") : plain;
}

RecipePlace recipePlace(const Cookbook& book, const QString& course, const QString& name) {
    const int number = freeNumber(book, course);
    const QStringList shown = gridCourses(book.facts, number);
    return {QStringLiteral("%1-%2").arg(number, 2, 10, QLatin1Char('0')).arg(plainFileName(name)),
            shown.isEmpty() ? course : shown.join(QStringLiteral(", "))};
}

QStringList addToList(const QString& file, const QStringList& names, const QString& tail) {
    QFile list(file);
    if (!list.open(QIODevice::ReadWrite)) return {};
    const QString text = QString::fromUtf8(list.readAll());
    QStringList known, added;
    for (const QString& line : text.split(u'\n')) known << line.section(u'|', 0, 0).trimmed();
    QString more = text.isEmpty() || text.endsWith(u'\n') ? QString() : QStringLiteral("\n");
    for (const QString& name : names) {
        if (name.isEmpty() || known.contains(name) || added.contains(name)) continue;
        added << name;
        more += name + tail + u'\n';
    }
    list.write(more.toUtf8());
    return added;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
