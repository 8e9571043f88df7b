#include "db/ownnote.h"

#include "db/database.h"
#include "db/fieldnames.h"

namespace sarne {

QString OwnNote::stored() const {
    return recipe_.field(fields::kOwn).toString();
}

int OwnNote::recipe() const {
    return recipe_.field(fields::kId).toInt();
}

QString OwnNote::open() {
    open_ = true;
    const std::optional<QString> draft = kept_.draft(recipe());
    tag_ = draft ? QStringLiteral("1") : QString();
    return draft.value_or(stored());
}

void OwnNote::changed() {
    if (open_) tag_ = QStringLiteral("1");
}

void OwnNote::save(const QString& content) {
    if (isDirty() && store(content)) tag_.clear();
}

void OwnNote::saveForPrint(const QString& content) {
    save(content + u' ');
}

void OwnNote::close(Close how, const QString& content) {
    if (how == Close::Save && isDirty()) store(content);
    if (how == Close::Discard && isDirty()) kept_.dropDraft(recipe());
    tag_.clear();
    open_ = false;
}

void OwnNote::keepDraft(const QString& content) {
    if (isDirty()) kept_.keepDraft(recipe(), content);
}

bool OwnNote::store(const QString& content) {
    // Never null: an emptied note is an empty text.
    const QString text = content.isNull() ? QStringLiteral("") : content;
    recipe_.Edit();
    recipe_.setField(fields::kOwn, text);
    if (!recipe_.Update()) {
        kept_.keepDraft(recipe(), text);
        return false;
    }
    kept_.dropDraft(recipe());
    kept_.keep({recipe(), recipe_.field(QStringLiteral("Nazev")).toString(), text});
    return true;
}

bool appendToNote(Database& book, NoteStore& kept, int recipe, const QString& line) {
    Recordset row = book.OpenTable(QStringLiteral("Recepty"));
    if (!RecordExists(row, recipe)) return false;
    OwnNote note(row, kept);
    QString text = note.open();
    while (!text.isEmpty() && text.back().isSpace()) text.chop(1);
    note.changed();
    note.save(text.isEmpty() ? line : text + u'\n' + line);
    return !note.isDirty();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
