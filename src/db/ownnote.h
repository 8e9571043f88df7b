#pragma once

#include <QString>

#include "db/notestore.h"
#include "db/recordset.h"

namespace sarne {

/// The user's own note to a recipe, between the record that keeps it and the editor that shows it. Plain
/// text. Knows no widget; the editor's content is handed in. Words that cannot be stored are kept as a draft,
/// which the recipe's note opens with the next time.
class OwnNote {
  public:
    /// How the note is closed, by the index of the button that does it.
    enum class Close { Save = 0, Discard = 1 };

    /// The note of the current row of \a recipe; drafts and copies go to \a kept. Both must outlive it.
    OwnNote(Recordset& recipe, NoteStore& kept) : recipe_(recipe), kept_(kept) {}

    bool isOpen() const { return open_; }
    /// "1" when the note was changed since it was opened or stored, else "".
    const QString& tag() const { return tag_; }
    bool isDirty() const { return !tag_.isEmpty(); }

    /// The note as it is stored; empty when there is none.
    QString stored() const;
    /// Opens the note and returns what the editor is to show: the draft, which counts as changed, or what is
    /// stored.
    QString open();
    /// The user has typed.
    void changed();
    /// Stores a changed \a content and goes on editing. What could not be stored counts as changed still.
    void save(const QString& content);
    /// Stores a changed \a content for the print, a blank behind it, and goes on editing.
    void saveForPrint(const QString& content);
    /// Closes the note, storing a changed \a content if so wanted.
    void close(Close how, const QString& content);
    /// Keeps a changed \a content as a draft: the program is about to end without a question.
    void keepDraft(const QString& content);

  private:
    int recipe() const;
    bool store(const QString& content);

    Recordset& recipe_;
    NoteStore& kept_;
    QString tag_;
    bool open_ = false;
};

/// Writes \a line below what the note to \a recipe says, words that could not be stored before included.
/// False when only a draft could be kept, or when there is no such recipe.
bool appendToNote(Database& book, NoteStore& kept, int recipe, const QString& line);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
