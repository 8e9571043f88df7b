#pragma once

#include "forms/textview.h"
#include "screens/index/areabutton.h"
#include "screens/index/barform.h"
#include "screens/index/gallery.h"

namespace sarne {

/// A gallery of pictures that fill the screen, with areas to be chosen: each leads to a keyword, a video or
/// another picture, or has a text that opens on a card over the picture. Made anew each time it is shown.
class frmSponzor : public BarForm {
    Q_OBJECT
  public:
    explicit frmSponzor(basSarne& sarne);

    /// Shows the pictures of main-screen topic \a topic, first the one whose number is written in \a text, or
    /// the first one where it is empty. False, and the form is gone, when the topic has none.
    bool Zobraz(std::int16_t topic, const QString& text);

    /// Closes the card where one is open, else the screen.
    void goBack() override;
    bool cardIsOpen() const;

  protected:
    void print() override;
    bool keyDown(QKeyEvent& event) override;
    bool swiped(int direction) override;
    void paint(QPainter& painter) override;
    void paintGround(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    const GalleryPicture& current() const { return pictures_[static_cast<size_t>(at_)]; }
    void makeCard();
    void placeCard();
    void makeArrows();
    void showPicture(int index);
    void showHint();
    bool showNumber(int number);
    QRect areaPlace(const GalleryArea& area) const;
    void makeAreas();
    Control& firstControl() const;
    void choose(int area);
    void follow(const GalleryTarget& target);
    void openCard(const QString& text);
    void closeCard();
    void setKeyboardOrder();
    bool cardKey(const QKeyEvent& event);

    std::vector<GalleryPicture> pictures_;
    int at_ = 0;
    Room room_;  // the picture, and its own surroundings where the display is wider
    std::vector<AreaButton*> areas_;
    int chosen_ = -1;  // the area whose text is on the card
    Label hint_;
    Label position_;
    Button previous_, next_;
    QRect cardPlace_;
    TextView card_;
    Button close_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
