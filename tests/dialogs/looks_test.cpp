#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "dialogs/frmdialog.h"
#include "dialogs/frmmessage.h"
#include "dialogs/frmzobrazeni.h"
#include "forms/messagebox.h"
#include "support/explore.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;

/// Types \a text while a question is asked, and looks; one that stays unanswered is then hidden.
void meanwhile(FakeSarne& run, const Look& look, const QString& text = {}) {
    QTimer::singleShot(0, [&run, &look, text] {
        QTest::keyClicks(QApplication::focusWidget(), text);
        look(run);
        if (Form* open = run.window.modalForm()) open->hideForm();
    });
}

TEST(Looks, Questions) {
    for (const bool number : {true, false})
        explore(number ? "dotaz-na-cislo" : "dotaz-na-text", [=](const Look& look) {
            FakeSarne run;
            run.openAbove("frmHlavni");
            meanwhile(run, look, u"2,5"_s);
            if (number)
                run.announced << u"answer %1"_s.arg(askNumber(run, u"Počet porcí:"_s));
            else
                run.announced << u"answer "_s + askText(run, u"Zadejte pismeno"_s);
        });
}

TEST(Looks, Messages) {
    for (const int style : {int(kErrorBox), int(kQuestionBox), int(kWarningBox), int(kWarningQuestionBox),
                            int(kInformationBox), 515})
        explore(qPrintable(u"zprava-%1"_s.arg(style)), [=](const Look& look) {
            FakeSarne run;
            run.openAbove("frmHlavni");
            meanwhile(run, look);
            (new frmMessage(run))
                ->ask(
                    style == kWarningBox
                        ? u"Krátce."_s
                        : u"Program je koncipován pro spouštění v rozlišení 800 x 600.\r\n\r\nChcete přesto pokračovat? "_s,
                    style, 0);
        });
}

TEST(Looks, Eyes) {
    for (const bool isUsed : {false, true})
        test::exploreOrLook(!isUsed, isUsed ? "zobrazeni-zvolene" : "zobrazeni", [=](const Look& look) {
            FakeSarne run;
            run.openAbove("frmHlavni");
            if (isUsed) run.window.eyes().setTextPercent(150), run.window.eyes().setContrast(true);
            (new frmZobrazeni(run))->Zobraz();
            look(run);
        });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
