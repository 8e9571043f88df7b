#pragma once

#include <QPointer>
#include <functional>
#include <vector>

#include "core/lettersearch.h"
#include "forms/edit.h"
#include "forms/entrylist.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "screens/navigation/magnifier.h"
#include "screens/navigation/menulabel.h"
#include "screens/navigation/menulayout.h"
#include "screens/navigation/menulevel.h"

namespace sarne {

/// One level of the cascading menu. Each level is an instance of its own that knows its parent and its depth;
/// the first one is loaded with the main screen and stays loaded.
class frmMenu : public Form {
    Q_OBJECT
  public:
    /// The first level. \a closed is called when the whole tree closes without an action.
    frmMenu(basSarne& sarne, std::function<void()> closed);

    /// Shows the level as it is.
    void Zobraz();
    /// Builds and shows the level of \a code beside \a beside, a rectangle on the screen in twips.
    void unfold(const QString& code, const QRect& beside);
    /// Closes every level below this one, and this one.
    void fold();
    /// Hides the tree as long as another screen lies above it; shows it again as it was.
    void setAside();
    void comeBack();

    int depth() const { return depth_; }
    frmMenu* child() const { return child_; }
    const MenuLevel& level() const { return level_; }
    /// The position of the selected item, counted from 1; 0 when none is.
    int selected() const { return selected_; }
    /// What a click on item \a k does: opens its submenu or what it leads to.
    void choose(int k);

    /// Closes this level; the first one closes the tree.
    QAccessible::Role role() const override { return QAccessible::Pane; }
    void goBack() override;
    void help() override;
    void musicSettings() override;
    void eyeSettings() override;
    void eyesChanged() override;
    void closeRequested() override {}  // as the main screen below it

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;
    bool growsWithTexts() const override { return false; }  // it lays itself out for them
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    explicit frmMenu(frmMenu& parent);

    void setUp();
    AccessiblePart heard(int k) const;
    void hearItems();
    void buildLabels();
    void dressLabel(int k);
    MenuLabel* newLabel();
    int besideTexts(const MenuLevel& level) const;
    MenuContent contentOf(const MenuLevel& level) const;
    void applyGeometry(const QRect& beside);
    void placeLabels();
    MenuLabel::Arrow arrowOf(int k) const;
    void select(int k);
    void mark(int k, bool marked);
    void moveSelection(int step);
    bool jumpTo(const QKeyEvent& event);
    void openChild(const QString& code, const QRect& beside, int maxHeight = kMenuHeight);
    void openSelectedSubmenu();
    void enterSelected();
    void search();
    void openResults();
    void makeRoomForResults();
    QRect besideChild() const;
    void openAbove(const std::function<void()>& open);
    void closeTree();
    frmMenu& root();
    QRect labelOnScreen(int k) const;
    const MenuItem& item(int k) const { return level_.items[size_t(k - 1)]; }
    bool isSelectable(int k) const;
    bool hasEntry() const { return level_.code == u"12"; }
    void hoverItem(int k);

    std::function<void()> closed_;
    frmMenu* parent_ = nullptr;
    int depth_ = 0;
    QPointer<frmMenu> child_;
    QString childCode_;
    MenuLevel level_;
    MenuGeometry geometry_;
    QRect beside_;
    int maxHeight_ = kMenuHeight;
    QString hint_;
    LetterSearch letters_;
    int selected_ = 0;

    Label lblNadpis;
    Edit Text1;
    Magnifier imgHledat;
    EntryList items_;  // for those who hear the menu
    Timer tmrPodmenu;
    std::vector<MenuLabel*> lblOdkaz;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
