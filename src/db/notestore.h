#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

namespace sarne {

class Database;
class UserFile;

/// A user's own note to a recipe, known by the recipe's number and name, so that it finds its recipe in
/// another edition of the book, too.
struct KeptNote {
    int recipe = 0;
    QString name;
    QString text;
};

/// The user's notes apart from the book: a copy of each note as it was last stored there, and the words that
/// could not be stored. Nothing throws.
class NoteStore {
  public:
    /// Keeps in \a file, which outlives this object.
    explicit NoteStore(UserFile& file) : file_(file) {}

    /// Keeps a copy of a note that the book has stored; an empty text says that there is none any more. True
    /// when it is on the disk.
    bool keep(const KeptNote& note);
    /// All copies, by number.
    std::vector<KeptNote> all();

    /// Keeps words that the book could not store, in memory as long as this object lives and, where that is
    /// possible, on the disk (then true).
    bool keepDraft(int recipe, const QString& text);
    /// The words kept for this recipe.
    std::optional<QString> draft(int recipe);
    /// Forgets them: they were stored, or the user does not want them.
    void dropDraft(int recipe);

  private:
    UserFile& file_;
    QHash<int, QString> unwritten_;
};

/// Writes into \a book each kept note whose recipe has none there: the recipe with the note's number and
/// name, or else the one with its name. Returns the notes that found no recipe.
std::vector<KeptNote> restoreNotes(Database& book, const std::vector<KeptNote>& notes);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
