#include "print/frmsave.h"

#include <gtest/gtest.h>

#include <QListView>
#include <QTest>
#include <QTimer>

#include "printcookbook.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

using Ids = std::vector<std::int16_t>;

using test::str;

class FrmSaveTest : public testing::Test {
  protected:
    FrmSaveTest()
        : save(new frmSave(run, {{u"Candát"_s, 40}, {u"Kapr"_s, 10}, {u"Lín"_s, 30}, {u"Štika"_s, 20}},
                           [this](const Ids& ids) {
                               shownAtHandover = save->isVisible();
                               printed.push_back(ids);
                           })),
          list(child<ListBox>(*save, "lstSeznam")),
          chosen(child<ListBox>(*save, "lstVybrano")) {}

    /// Shows the dialog, does \a user's part and closes it.
    template <typename User>
    void show(User user, const QString& mode = {}) {
        QTimer::singleShot(0, save, [this, user] {
            user();
            if (save && save->isVisible()) button("cmdOkEnd(1)")->click();
        });
        save->Zobraz(mode);
    }
    Button* button(const char* name) { return child<Button>(*save, name); }
    void clickRow(ListBox* box, int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(box->view().viewport(), Qt::LeftButton, modifiers, rowPlace(box, row));
    }
    void doubleClickRow(ListBox* box, int row) {
        clickRow(box, row);
        QTest::mouseDClick(box->view().viewport(), Qt::LeftButton, {}, rowPlace(box, row));
    }
    static QPoint rowPlace(ListBox* box, int row) {
        return box->view().visualRect(box->view().model()->index(row, 0)).center();
    }
    void key(QWidget* at, int code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(at->focusProxy() ? at->focusProxy() : at, Qt::Key(code), modifiers);
    }
    Ids items() const {
        Ids ids;
        for (int i = 0; i < chosen->listCount(); ++i) ids.push_back(std::int16_t(chosen->itemData(i)));
        return ids;
    }
    bool ok() { return button("cmdOkEnd(0)")->isEnabled(); }

    FakeSarne run;
    std::vector<Ids> printed;
    bool shownAtHandover = false;
    QPointer<frmSave> save;
    ListBox *list, *chosen;
};

TEST_F(FrmSaveTest, AddsEachEntryOnce) {
    show([&] {
        QTest::mouseDClick(list->view().viewport(), Qt::LeftButton, {}, list->rect().center());
        button("cmdRuka(0)")->click();
        key(list, Qt::Key_Return);
        EXPECT_EQ(run.beeps, 3) << "nothing is selected";
        doubleClickRow(list, 3);
        EXPECT_TRUE(ok());
        doubleClickRow(list, 3);
        EXPECT_EQ(run.beeps, 4);
        key(list, Qt::Key_Home);
        key(list, Qt::Key_Enter);
        EXPECT_EQ(list->listIndex(), 0) << "only the button goes on to the next entry";
        EXPECT_EQ(items(), (Ids{20, 40}));
        button("cmdRuka(0)")->click();
        EXPECT_EQ(run.beeps, 5);
        EXPECT_EQ(list->listIndex(), 1) << "the button goes on even where the entry was chosen already";
        for (int i = 0; i < 3; ++i) button("cmdRuka(0)")->click();
        EXPECT_EQ(list->listIndex(), 3);
        EXPECT_EQ(items(), (Ids{20, 40, 10, 30}));
    });
    EXPECT_TRUE(printed.empty());
}

TEST_F(FrmSaveTest, SeveralMarkedEntriesGoTogether) {
    show([&] {
        clickRow(list, 0);
        clickRow(list, 1, Qt::ShiftModifier);
        clickRow(list, 3, Qt::ControlModifier);
        button("cmdRuka(0)")->click();
        EXPECT_EQ(items(), (Ids{40, 10, 20}));
        QTest::keyClicks(&list->view(), u"l"_s);
        EXPECT_EQ(list->listIndex(), 2);
        clickRow(list, 1, Qt::ShiftModifier);
        button("cmdRuka(0)")->click();
        EXPECT_EQ(items(), (Ids{40, 10, 20, 30})) << "what was chosen already stays where it is";
        EXPECT_EQ(run.beeps, 0);
        clickRow(chosen, 1);
        clickRow(chosen, 2, Qt::ShiftModifier);
        key(chosen, Qt::Key_Delete);
        EXPECT_EQ(items(), (Ids{40, 30}));
    });
}

TEST_F(FrmSaveTest, OkFollowsTheChoice) {
    show([&] {
        button("cmdRuka(1)")->click();
        QTest::mouseDClick(chosen->view().viewport(), Qt::LeftButton, {}, chosen->rect().center());
        key(chosen, Qt::Key_Return);
        EXPECT_EQ(run.beeps, 3) << "nothing to take away";
        doubleClickRow(list, 2);
        button("cmdRuka(3)")->click();
        EXPECT_EQ(items(), (Ids{40, 10, 30, 20})) << "all, in the list's order, once";
        doubleClickRow(chosen, 0);
        clickRow(chosen, 0);
        key(chosen, Qt::Key_Return);
        clickRow(chosen, 0);
        button("cmdRuka(1)")->click();
        EXPECT_TRUE(ok());
        clickRow(chosen, 0);
        button("cmdOkEnd(0)")->setFocus();
        button("cmdRuka(1)")->click();
        EXPECT_FALSE(ok());
        EXPECT_TRUE(list->hasFocus());
        button("cmdRuka(3)")->click();
        EXPECT_TRUE(ok());
        button("cmdRuka(2)")->click();
        EXPECT_FALSE(ok());
        button("cmdOkEnd(0)")->click();
        EXPECT_TRUE(save->isVisible());
    });
}

TEST_F(FrmSaveTest, OkHandsOverAndClosesInTheOrdinaryModeOnly) {
    show([&] {
        doubleClickRow(list, 3);
        doubleClickRow(list, 0);
        button("cmdOkEnd(0)")->click();
    });
    EXPECT_EQ(printed, (std::vector<Ids>{{20, 40}}));
    EXPECT_FALSE(shownAtHandover) << "hidden first";
    EXPECT_FALSE(save->isLoaded());

    save = new frmSave(run, {{u"Pět minut"_s, 10}}, [this](const Ids& ids) {
        printed.push_back(ids);
        save->hideForm();  // as printing does with all screens
        save->show();
    });
    list = child<ListBox>(*save, "lstSeznam");
    QTimer::singleShot(0, save, [this] {
        EXPECT_EQ(save->mode(), u"rychlerecepty"_s);
        button("cmdRuka(3)")->click();
        QTimer::singleShot(0, save, [this] {
            EXPECT_EQ(run.window.modalForm(), save.data()) << "the dialog goes on";
            button("cmdOkEnd(0)")->click();
            QTimer::singleShot(0, save, [this] { key(list, Qt::Key_Escape); });
        });
        button("cmdOkEnd(0)")->click();
    });
    save->Zobraz(u"RychleRecepty"_s);
    EXPECT_EQ(printed, (std::vector<Ids>{{20, 40}, {10}, {10}}));
    EXPECT_FALSE(save->isLoaded());
    EXPECT_EQ(run.window.modalForm(), nullptr);
}

TEST_F(FrmSaveTest, EndsWithTheProgram) {
    QTimer::singleShot(0, save, [this] {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        save->Zobraz({});
    });
    QCoreApplication::exec();
    EXPECT_TRUE(printed.empty());
    EXPECT_EQ(run.window.modalForm(), nullptr);
}

TEST_F(FrmSaveTest, WorksFromTheKeyboardAlone) {
    run.openAbove("frmHlavni");
    show([&] {
        key(list, Qt::Key_F1);
        key(list, Qt::Key_Down);
        for (const int code :
             {Qt::Key_Tab, Qt::Key_Space, Qt::Key_X, Qt::Key_Backtab, Qt::Key_Backtab, Qt::Key_Backtab})
            key(QApplication::focusWidget(), code);
        EXPECT_TRUE(button("cmdOkEnd(0)")->hasFocus());
        key(button("cmdOkEnd(0)"), Qt::Key_Return);
    });
    EXPECT_EQ(run.exits, 0) << "X is no key of a dialog";
    EXPECT_EQ(run.recorded.calls, QStringList{u"showHelpFor frmSave"_s});
    EXPECT_EQ(printed, (std::vector<Ids>{{40}}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
