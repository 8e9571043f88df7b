#pragma once

#include <QPointer>
#include <array>
#include <cstdint>
#include <memory>

#include "db/recordset.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/noteedit.h"
#include "forms/textview.h"
#include "screens/recipe/ingredientpanel.h"
#include "screens/recipe/linkpanel.h"
#include "screens/recipe/ownnote.h"
#include "screens/recipe/recipelayout.h"

namespace sarne {

/// One recipe, full screen: its photo, texts, links, ingredients, tools and the user's own note, a section at
/// a time. Keeps the recipe's record open while it is shown, and the display awake.
class frmRecept : public Form {
    Q_OBJECT
  public:
    /// The sections, by the index of their button.
    enum Section { kPhoto, kMethod, kIntroduction, kLinks, kWine, kIngredients, kTools, kOwnNote };

    /// \a ask asks the user for a number of portions and returns 0 when the user gives none; by default the
    /// program's own dialog does.
    explicit frmRecept(basSarne& app, IngredientPanel::AskNumber ask = {});

    /// Opens the screen on the recipe \a id, its photo first, and plays its name. An id that does not exist
    /// shows a recipe without texts.
    void Zobraz(std::int16_t id);
    /// Closes the recipe and returns to the screen that opened it.
    void Skryj();

    Section section() const { return section_; }
    /// Everything there is to read about the recipe, as plain text with lines ended by "\r\n": the list of
    /// ingredients as it is recalculated now, the texts, the own note, tools and links.
    QString collectedText();

    void goBack() override { Skryj(); }
    void endProgram() override;
    void help() override;
    void musicSettings() override;
    void restored() override;
    void unload() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void gotFocus() override;
    void paint(QPainter& painter) override;

  private:
    enum class Bar { Print, Help, Back, End, Music };
    using Buttons = std::vector<Button*>;

    void makeSections();
    void makeBar();
    void makeNote();
    Button& makeButton(const QString& name, const QRect& place, const char* picture, const QString& tip);

    void loadRecipe(std::int16_t id);
    void showTitle();
    void playName();
    void openSection(Section section);
    void showPressed();
    void placeView();
    void drawSection();
    void drawPhoto();
    void showPhoto();
    void drawTexts(std::initializer_list<const char*> fields);
    void drawTools();
    void drawNote();
    void openLink(LinkKey key);
    void viewClicked();

    void openNote();
    void closeNote(int index);
    void leaveNote();
    bool wantsNoteSaved();
    void barClick(Bar button);
    void print();
    /// Remembers where the keyboard is, for the time when the screen is on top again.
    void rememberFocus();

    // Keyboard
    bool arrowKey(int key);
    bool enterKey(QKeyEvent& event);
    void stepSections(int direction);
    void stepBar(int direction);
    void tab(int direction);
    std::vector<Control*> tabStops() const;
    Control* focusedControl() const;
    void announceSection(int index);

    std::int16_t id_ = 0;
    Recordset recipe_;
    OwnNote note_{recipe_};
    Section section_ = kPhoto;
    Picture ground_, photo_;
    bool photoShown_ = false;
    bool ending_ = false;  // the user has been asked about the note on the way out

    Label* title_;
    Buttons sections_, bar_;
    TextView* view_;
    NoteEdit* editor_;
    std::array<Button*, 2> noteButtons_{};
    std::unique_ptr<IngredientPanel> ingredients_;
    std::unique_ptr<LinkPanel> links_;
    QPointer<QWidget> lastFocus_;
};

}  // namespace sarne
