#include "dialogs/frmdialog.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

class DialogTest : public testing::Test {
  protected:
    frmDialog* open() {
        for (Form* form : run.window.forms()) {
            if (auto* dialog = qobject_cast<frmDialog*>(form)) return dialog;
        }
        return nullptr;
    }
    /// Types \a text and presses \a keys in turn; a dialog that is still open is then cancelled.
    double number(const char* text, QList<Qt::Key> keys) {
        QTimer::singleShot(0, [=, this] {
            QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
            for (Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
            if (open() && open()->isVisible()) {
                stayedOpen = true;
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            }
        });
        return askNumber(run, u"Počet porcí:"_s);
    }

    FakeSarne run;
    bool stayedOpen = false;
};

TEST_F(DialogTest, TakesWhatBeginsWithAPositiveNumberAndAsksAgainElse) {
    test::expectCases(u"cisla"_s, [this](const QString& typed) {
        stayedOpen = false;
        run.messages.clear();
        const double taken = number(typed.toUtf8(), {Qt::Key_Return});
        return stayedOpen ? run.messages.join(u' ') : QString::number(taken);
    });
    run.messages.clear();
    stayedOpen = false;
    EXPECT_EQ(number("7", {Qt::Key_Enter}), 7);
    EXPECT_EQ(number("12abc", {Qt::Key_Tab, Qt::Key_Space}), 12);
    EXPECT_EQ(number("cx3", {Qt::Key_Home, Qt::Key_Delete, Qt::Key_Delete, Qt::Key_Return}), 3)
        << "letters are typed";
    EXPECT_FALSE(stayedOpen);
    EXPECT_TRUE(run.messages.isEmpty());
}

TEST_F(DialogTest, ANumberCanBeEnteredByMouseAlone) {
    const auto clicked = [this](std::initializer_list<const char*> names) {
        QTimer::singleShot(0, [this, names] {
            const QPoint aside = open()->geometry().center() - run.window.rect().center();
            EXPECT_LE(aside.manhattanLength(), 2) << "in the middle";
            for (const char* name : names) QTest::mouseClick(child<Control>(*open(), name), Qt::LeftButton);
        });
        return askNumber(run, u"Počet porcí:"_s);
    };
    EXPECT_EQ(clicked({"cmdCislice(1)", "cmdCislice(0)", "Command1(0)"}), 10);
    EXPECT_EQ(clicked({"cmdCislice(7)", "cmdCislice(9)", "cmdSmazat", "Command1(0)"}), 7);
    EXPECT_EQ(clicked({"cmdCislice(5)", "Command1(1)"}), 0);
    EXPECT_EQ(clicked({"cmdSmazat", "Command1(0)", "cmdCislice(3)", "Command1(0)"}), 3)
        << "after the message";
}

TEST_F(DialogTest, CancellingIsZero) {
    EXPECT_EQ(number("5", {Qt::Key_Escape}), 0);
    EXPECT_EQ(number("5", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}), 0);
    EXPECT_TRUE(run.messages.isEmpty());
    EXPECT_FALSE(stayedOpen);
    EXPECT_EQ(run.window.forms().size(), 0u);
}

TEST_F(DialogTest, ATextIsTakenAsItIs) {
    QTimer::singleShot(0, [] {
        QTest::keyClicks(QApplication::focusWidget(), u"e"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(askText(run, u"Zadejte pismeno"_s), u"e"_s);
    EXPECT_EQ(run.window.forms().size(), 0u);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
