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
    QStringList all{PrintCookbook::recipe(
                        1, u"Candát"_s,
                        {u"Uvod"_s, rtf(u"úvod"_s), u"Recept"_s, rtf(longText(9000)), u"Poznamka"_s,
                         rtf(u"poznámka"_s), u"Prezentace"_s, rtf(u"servis"_s), u"vino"_s, rtf(u"víno"_s)}),
                    PrintCookbook::recipe(2, u"Okoun"_s, {u"Vlastni"_s, longText(300000)}),
                    PrintCookbook::recipe(3, u"Štika"_s),
                    u"INSERT INTO Odkazy VALUES (5,'Vývar','x')"_s,
                    u"INSERT INTO SpojOdkazy VALUES (1,5)"_s,
                    u"INSERT INTO Stranky (ID,Nazev,Text) VALUES (10,'O tisku',"_s +
                        sqlText(rtf(u"{\\b O tisku}\\par Text stránky."_s)) + u')'};
    return all;
}

/// The printing form above another screen, printing to files.
class FrmPrintTest : public testing::Test {
  protected:
    FrmPrintTest() : book(formCookbook()), printer(book.folder.filePath(u"Dokumenty"_s)) {
        EXPECT_TRUE(run.database.Open(book.folder.filePath(u"Sarne.drc"_s)));
        printer.use({});
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
    QString file(const char* name) const { return book.folder.filePath(u"Dokumenty/"_s + str(name)); }
    CheckBox* section(int i) const { return control<CheckBox>(qPrintable(u"Chco(%1)"_s.arg(i))); }
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
    Form* below = run.openAbove("frmSeznam");
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
