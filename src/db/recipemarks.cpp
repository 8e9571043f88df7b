// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/recipemarks.h"

#include <algorithm>

#include "db/fieldnames.h"
#include "db/userfile.h"

namespace sarne {
namespace {

const QString kTable = QStringLiteral("Kucharka");
const QString kStars = QStringLiteral("Hvezdy");
const QString kOpened = QStringLiteral("Otevreno");

RecipeMark markOf(const Recordset& row) {
    return {row.field(fields::kId).toInt(), row.field(fields::kName).toString(),
            std::clamp(row.field(kStars).toInt(), 0, RecipeMarks::kMostStars),
            QDateTime::fromString(row.field(kOpened).toString(), Qt::ISODate)};
}

}  // namespace

int RecipeMarks::stars(int recipe, const QString& name) {
    Recordset rows = file_.forReading().OpenTable(kTable);
    return RecordExists(rows, recipe) && rows.field(fields::kName) == name ? markOf(rows).stars : 0;
}

bool RecipeMarks::setStars(int recipe, const QString& name, int stars) {
    return file_.store(
        kTable, fields::kId,
        {{fields::kId, recipe}, {fields::kName, name}, {kStars, std::clamp(stars, 0, kMostStars)}});
}

bool RecipeMarks::keepOpened(int recipe, const QString& name, const QDateTime& when) {
    return file_.store(kTable, fields::kId,
                       {{fields::kId, recipe}, {fields::kName, name}, {kOpened, when.toString(Qt::ISODate)}});
}

std::vector<RecipeMark> RecipeMarks::all() {
    std::vector<RecipeMark> marks;
    for (Recordset rows = file_.forReading().OpenTable(kTable); !rows.AtEnd(); rows.MoveNext())
        marks.push_back(markOf(rows));
    return marks;
}

}  // namespace sarne
