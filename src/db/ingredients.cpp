#include "db/ingredients.h"

#include <QHash>

#include "core/texts.h"
#include "db/database.h"
#include "db/queries.h"

namespace sarne {
namespace {

/// \a text without the blanks, and nothing but blanks, around it.
QString trimBlanks(const QString& text) {
    qsizetype first = 0, end = text.size();
    while (first < end && text[first] == u' ') ++first;
    while (end > first && text[end - 1] == u' ') --end;
    return text.mid(first, end - first);
}

/// The names of one table by their keys.
class Names {
  public:
    Names(Database& db, const QString& table) : rows_(db.OpenTable(table)) {
        rows_.setIndex(QStringLiteral("PrimaryKey"));
    }

    /// Puts the name of \a id into \a name, which stays as it was when there is none.
    void find(const QVariant& id, std::optional<QString>& name) {
        const qint64 key = id.toLongLong();
        auto known = known_.find(key);
        if (known == known_.end()) {
            rows_.Seek(QStringLiteral("="), id);
            std::optional<QString> found;
            if (!rows_.NoMatch()) found = rows_.field(QStringLiteral("polozka")).toString();
            known = known_.insert(key, found);
        }
        if (*known) name = **known;
    }

    /// As find(), for a part that an ingredient need not have: without an id there is none.
    void findOptional(const QVariant& id, std::optional<QString>& name) {
        if (id.toLongLong() > 0)
            find(id, name);
        else
            name.reset();
    }

  private:
    Recordset rows_;
    QHash<qint64, std::optional<QString>> known_;
};

/// Reads the rows of a recipe one by one; what a row does not find stays as the row before left it.
class IngredientReader {
  public:
    explicit IngredientReader(Database& db)
        : names_(db, QStringLiteral("Suroviny")),
          refinements_(db, QStringLiteral("Upresneni")),
          units_(db, QStringLiteral("Jednotky")) {}

    const Ingredient& read(const Recordset& row) {
        std::optional<QString> name = now_.name;
        names_.find(row.field(QStringLiteral("ID_Polozky")), name);
        now_.name = *name;
        refinements_.findOptional(row.field(QStringLiteral("ID_Upresneni")), now_.refinement);
        readMeasure(row, QStringLiteral("ID_JdnKg"), QStringLiteral("MnozstviKg"), now_.weights);
        readMeasure(row, QStringLiteral("ID_Jdnlzice"), QStringLiteral("MnozstviLzice"), now_.spoons);
        names_.findOptional(row.field(QStringLiteral("ID_nahrSur")), now_.alternative);
        return now_;
    }

  private:
    void readMeasure(const Recordset& row, const QString& unit, const QString& amount, Measure& measure) {
        units_.findOptional(row.field(unit), measure.unit);
        if (measure.unit) measure.unit = trimBlanks(*measure.unit);
        measure.amount = row.field(amount).toDouble();
    }

    Names names_, refinements_, units_;
    Ingredient now_;
};

}  // namespace

QString Measure::text(const Quantities& quantities) const {
    QString text;
    if (unit) text += QStringLiteral(" (") + *unit + u')';
    if (const QString number = quantities.text(amount); !number.isEmpty())
        text += QStringLiteral(": ") + number;
    return text;
}

QString Ingredient::title() const {
    return refinement ? name + QStringLiteral(" - ") + *refinement : name;
}

QString Ingredient::line(UnitSystem system, const Quantities& quantities) const {
    return trimBlanks(title() + measure(system).text(quantities));
}

QString Ingredient::alternativeLine() const {
    return alternative ? Texts::tr("      - nebo ") + *alternative : QString();
}

namespace {

std::vector<Ingredient> readRows(Database& db, int recipe) {
    std::vector<Ingredient> ingredients;
    Recordset rows = queries::recipeIngredients(db, recipe);
    if (rows.RecordCount() == 0) return ingredients;
    ingredients.reserve(static_cast<size_t>(rows.RecordCount()));
    for (IngredientReader reader(db); !rows.AtEnd(); rows.MoveNext())
        ingredients.push_back(reader.read(rows));
    return ingredients;
}

}  // namespace

std::vector<Ingredient> readIngredients(Database& db, int recipe) {
    std::vector<Ingredient> ingredients;
    // One transaction locks the file once; without it each name would.
    const auto read = [&] {
        ingredients = readRows(db, recipe);
        return true;
    };
    if (!db.transaction(read)) read();
    return ingredients;
}

std::vector<QString> ingredientLines(const std::vector<Ingredient>& ingredients, UnitSystem system,
                                     const Quantities& quantities) {
    std::vector<QString> lines;
    for (const Ingredient& ingredient : ingredients) {
        lines.push_back(ingredient.line(system, quantities));
        if (ingredient.alternative) lines.push_back(ingredient.alternativeLine());
    }
    return lines;
}

QString ingredientsText(const std::vector<Ingredient>& ingredients, UnitSystem system,
                        const Quantities& quantities) {
    if (ingredients.empty()) return {};
    QString text = Texts::tr("Porce: ") + quantities.portionsText() + QStringLiteral("\r\n");
    for (const QString& line : ingredientLines(ingredients, system, quantities))
        text += line + QStringLiteral("\r\n");
    return text;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
