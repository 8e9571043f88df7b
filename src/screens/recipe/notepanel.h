#pragma once

#include <array>

#include "db/ownnote.h"
#include "forms/button.h"
#include "forms/noteedit.h"
#include "screens/recipe/recipesection.h"

namespace sarne {

/// The user's own note: an editor with its two buttons, and, once closed, the note to be read. A changed note
/// is never given up without a question, and the question is no answer when the user leaves it by Escape.
class NotePanel : public RecipeSection {
  public:
    explicit NotePanel(const SectionRoom& room);

    void setVisible(bool visible) override;
    /// Opens the note and gives the editor the keyboard.
    void draw() override;
    std::vector<FocusGroup> stops() const override;
    /// Shows what the note says now, unless there is something in the editor that is not stored.
    void shownAgain() override;
    bool leave() override;
    /// The screen cannot wait for an answer: a note about which there is none is stored.
    void abandon() override;
    /// Asks, and leaves the note open, as the program may go on yet.
    bool readyToEnd() override;
    void beforePrint() override;
    void keepUnsaved() override;

  private:
    void close(OwnNote::Close how);
    void showStored();
    void closeByButton(OwnNote::Close how);
    /// The code of the answer: 6 to store the note, 7 not to, 0 when there is none.
    int ask();

    OwnNote note_;
    NoteEdit* editor_;
    std::array<Button*, 2> buttons_{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
