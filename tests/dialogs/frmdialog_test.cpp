#include "dialogs/frmdialog.h"

#include <gtest/gtest.h>

#include <QTimer>

#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// What is asked for as a number where the user does \a way, words as test::perform() takes them ("_" is a
/// blank); 0 where a dialog is still open, which is then left, and what was said meanwhile.
QString asked(const QString& way) {
    FakeSarne run;
    QTimer::singleShot(0, [&] {
        const Form* dialog = test::front(run);
        const QPoint aside = dialog->geometry().center() - run.window.rect().center();
        EXPECT_LE(aside.manhattanLength(), 2) << "in the middle";
        for (QString word : way.split(u' ')) test::perform(run, word.replace(u'_', u' '));
        if (!test::front(run)) return;
        run.messages << u"asks again"_s;
        test::pressKey(run, Qt::Key_Escape);
    });
    const double number = askNumber(run, u"Počet porcí:"_s);
    EXPECT_EQ(run.window.forms().size(), 0u);
    return (QStringList{QString::number(number)} + run.messages).join(u' ');
}

TEST(DialogTest, TakesWhatBeginsWithAPositiveNumberAndAsksAgainElse) {
    test::expectCases(u"cisla"_s, &asked);
}

TEST(DialogTest, ATextIsTakenAsItIs) {
    FakeSarne run;
    QTimer::singleShot(0, [&] {
        for (const char* word : {"type:e", "Return"}) test::perform(run, QLatin1String(word));
    });
    EXPECT_EQ(askText(run, u"Zadejte pismeno"_s), u"e"_s);
    EXPECT_EQ(run.window.forms().size(), 0u);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
