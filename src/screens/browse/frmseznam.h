#pragma once

#include <QPointer>
#include <memory>
#include <vector>

#include "core/lettersearch.h"
#include "forms/buttonbar.h"
#include "forms/entrylist.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "forms/wheelsteps.h"
#include "screens/browse/frmrychlyrecept.h"
#include "screens/browse/ground.h"
#include "screens/browse/listentries.h"
#include "screens/browse/listpages.h"

namespace sarne {

/// The paged list of recipes, quick recipes or help topics, with a panel beside it that shows the selected
/// recipe's photo or its wines.
class frmSeznam : public Form {
    Q_OBJECT
  public:
    enum class Panel { Photo, Wine };

    /// \a panel is what the panel beside the list showed last, kept by whoever makes lists; null: the photo.
    explicit frmSeznam(basSarne& sarne, Panel* panel = nullptr);

    /// What the next list is about ("Kapr"), for its title.
    void setSubject(const QString& subject) { subject_ = subject; }
    /// Lists the records \a ids ("12,40,7,"; all when empty) of the table \a source ("recepty",
    /// "RychleRecepty" or "Help") and opens the list over the current screen.
    void Zobraz(const QString& ids, const QString& source);

    const ListPages& pages() const { return pages_; }

    void eyesChanged() override;
    void goBack() override;
    void restored() override;
    void unload() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paint(QPainter& painter) override;

  private:
    enum class Source { Recipes, QuickRecipes, Help };
    void buildList();
    void buildPanel();
    void setFocusOrder();
    void connectRow(int row);
    void placeRows();
    void takeCards();
    void connectArrow(int arrow);
    void setPanel(Panel panel);

    void fill(const QString& ids, const QString& source);
    void showButtonsOfSource();
    void startPanel();
    void showInvitation();

    // What the user does.
    void selectRow(int row);
    void scroll(int step);
    void action(int index);
    void openSelected();
    void buySelected();
    void printEntries();
    void showPhotos(bool slideShow);
    bool jumpToLetter(const QKeyEvent& event);
    bool moveByKey(int key);

    void paintGround(QPainter& painter) const;
    QRectF thumb() const;
    void hearEntries();
    int shownRows() const;
    QString countText() const;
    void drawPage();
    void selectionChanged();
    void refreshPanel();
    QString smallPhotoFile(const ListEntry& entry) const;
    QImage smallPhoto(const ListEntry& entry) const;
    void showPhoto();
    void showWine();
    const ListEntry* selectedEntry() const;
    const ListEntry* visiblySelected() const;

    Source source_ = Source::Recipes;
    QString sourceText_;
    std::vector<ListEntry> entries_;
    ListPages pages_;
    LetterSearch letters_;
    Panel panelMode_ = Panel::Photo;
    Panel* keptPanel_;
    QString subject_;
    WheelSteps wheel_;

    Ground ground_;
    int pitch_ = 0;               // twips from row to row
    int markedRow_ = 0;           // the row that is painted as selected
    std::vector<Picture> cards_;  // the dishes of a short list, a row each; else none

    Label lblNadpis, lblPozice, lblHint;
    std::vector<Label*> lblSeznam;
    EntryList list_;  // the entries for those who hear them
    PictureBox imgJablko, picFoto;
    Label lblVino;
    std::vector<PictureBox*> ImgTlacitko;
    ButtonBar imgBtn, imgBtnHlavni;
    std::vector<Button*> imgSipky;
    QPointer<frmRychlyRecept> quickWindow_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
