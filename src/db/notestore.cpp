#include "db/notestore.h"

#include "db/database.h"
#include "db/fieldnames.h"
#include "db/userfile.h"

namespace sarne {
namespace {

const QString kNotes = QStringLiteral("Poznamky");
const QString kDrafts = QStringLiteral("Rozepsane");

/// The numbers of all recipes by their names.
QHash<QString, int> recipesByName(Database& book) {
    QHash<QString, int> ids;
    for (Recordset rows = book.OpenTable(QStringLiteral("Recepty")); !rows.AtEnd(); rows.MoveNext())
        ids.insert(rows.field(fields::kName).toString(), rows.field(fields::kId).toInt());
    return ids;
}

/// Makes the recipe that \a note belongs to the current row of \a recipes; \a byName is filled when first
/// needed.
bool findRecipe(Database& book, Recordset& recipes, const KeptNote& note, QHash<QString, int>& byName) {
    if (RecordExists(recipes, note.recipe) && recipes.field(fields::kName) == note.name) return true;
    if (byName.isEmpty()) byName = recipesByName(book);
    return byName.contains(note.name) && RecordExists(recipes, byName.value(note.name));
}

}  // namespace

bool NoteStore::keep(const KeptNote& note) {
    return file_.store(kNotes, fields::kId,
                       {{fields::kId, note.recipe}, {fields::kName, note.name}, {fields::kText, note.text}});
}

std::vector<KeptNote> NoteStore::all() {
    std::vector<KeptNote> notes;
    for (Recordset rows = file_.forReading().OpenTable(kNotes); !rows.AtEnd(); rows.MoveNext())
        notes.push_back({rows.field(fields::kId).toInt(), rows.field(fields::kName).toString(),
                         rows.field(fields::kText).toString()});
    return notes;
}

bool NoteStore::keepDraft(int recipe, const QString& text) {
    const bool written = file_.store(kDrafts, fields::kId, {{fields::kId, recipe}, {fields::kText, text}});
    unwritten_.remove(recipe);
    if (!written) unwritten_.insert(recipe, text);
    return written;
}

std::optional<QString> NoteStore::draft(int recipe) {
    if (const auto kept = unwritten_.constFind(recipe); kept != unwritten_.cend()) return *kept;
    Recordset rows = file_.forReading().OpenTable(kDrafts);
    if (!RecordExists(rows, recipe)) return std::nullopt;
    return rows.field(fields::kText).toString();
}

void NoteStore::dropDraft(int recipe) {
    unwritten_.remove(recipe);
    if (Database& db = file_.forReading(); db.isOpen())
        db.Execute(QStringLiteral("DELETE FROM Rozepsane WHERE ID = %1").arg(recipe));
}

std::vector<KeptNote> restoreNotes(Database& book, const std::vector<KeptNote>& notes) {
    std::vector<KeptNote> homeless;
    QHash<QString, int> byName;
    Recordset recipes = book.OpenTable(QStringLiteral("Recepty"));
    for (const KeptNote& note : notes) {
        if (note.text.isEmpty()) continue;
        if (!findRecipe(book, recipes, note, byName)) {
            homeless.push_back(note);
        } else if (recipes.field(fields::kOwn).isNull()) {
            recipes.Edit();
            recipes.setField(fields::kOwn, note.text);
            recipes.Update();
        }
    }
    return homeless;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
