#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "print/frmprint.h"
#include "print/printing.h"
#include "printcookbook.h"
#include "support/fakesarne.h"

namespace sarne::test {

/// Three recipes, one long, one with a long note, one that is but a name; and a page of text.
inline QStringList formCookbook() {
    QStringList all{PrintCookbook::recipe(1, str("Candát"),
                                          {str("Uvod"), rtf(str("úvod")), str("Recept"), rtf(longText(9000)),
                                           str("Poznamka"), rtf(str("poznámka")), str("Prezentace"),
                                           rtf(str("servis")), str("vino"), rtf(str("víno"))}),
                    PrintCookbook::recipe(2, str("Okoun"), {str("Vlastni"), longText(300000)}),
                    PrintCookbook::recipe(3, str("Štika")),
                    str("INSERT INTO Odkazy VALUES (5,'Vývar','x')"),
                    str("INSERT INTO SpojOdkazy VALUES (1,5)"),
                    str("INSERT INTO Stranky (ID,Nazev,Text) VALUES (10,'O tisku',") +
                        sqlText(rtf(str("{\\b O tisku}\\par Text stránky."))) + u')'};
    return all;
}

/// The printing form above another screen, printing to files.
class FrmPrintTest : public testing::Test {
  protected:
    FrmPrintTest() : book(formCookbook()), printer(book.folder.filePath(str("Dokumenty"))) {
        EXPECT_TRUE(run.database.Open(book.folder.filePath(str("Sarne.drc"))));
        printer.use({});
        below->showForm();
        run.PushScreen(*below);
    }
    frmPrint* open(const std::vector<std::int16_t>& ids, const Serving& serving = {}) {
        printing.printRecipes(ids, serving);
        return form();
    }
    frmPrint* form() const { return dynamic_cast<frmPrint*>(loaded("frmPrint")); }
    Form* loaded(const char* name) const {
        for (Form* candidate : run.window.forms()) {
            if (candidate->name() == QLatin1String(name)) return candidate;
        }
        return nullptr;
    }
    template <typename Widget = Control>
    Widget* control(const char* name) const {
        return child<Widget>(*form(), name);
    }
    QString outcome() const { return control<Label>("lblVysledek")->text(); }
    QString file(const char* name) const { return book.folder.filePath(str("Dokumenty/") + str(name)); }
    CheckBox* section(int i) const { return control<CheckBox>(qPrintable(str("Chco(%1)").arg(i))); }
    /// Calls \a look whenever events run during printing.
    template <typename Look>
    void whilePrinting(Look look) {
        auto* timer = new QTimer(form());
        QObject::connect(timer, &QTimer::timeout, form(), [this, look] {
            if (form()->isPrinting()) look();
        });
        timer->start(0);
    }

    PrintCookbook book;
    FakeSarne run;
    SystemPrinter printer;
    Printing printing{run, printer};
    Form* below = new Form(run, str("frmSeznam"));
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
