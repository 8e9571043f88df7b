#include "print/frmsave.h"
#include "print/frmtiskarna.h"
#include "printform.h"
#include "support/explore.h"
#include "support/fakeprinter.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;
using test::PrintCookbook;

/// Two recipes about to be printed to a file, or on a printer.
struct Print {
    PrintCookbook book{
        {PrintCookbook::recipe(
             1, u"Candát"_s, {u"Uvod"_s, test::rtf(u"úvod"_s), u"Recept"_s, test::rtf(test::longText(3000))}),
         PrintCookbook::recipe(3, u"Štika"_s)}};
    FakeSarne run;
    SystemPrinter file{book.folder.filePath(u"Dokumenty"_s)};
    FakePrinter printer;
    Printing printing;
    QTimer questions;

    explicit Print(bool toFile, const std::vector<std::int16_t>& ids = {1, 3})
        : printing(run, toFile ? static_cast<Printer&>(file) : printer) {
        run.database.Open(book.folder.filePath(u"Sarne.drc"_s));
        run.openAbove("frmSeznam");
        printing.printRecipes(ids, {2.5, UnitSystem::Spoons});
        QApplication::processEvents();
        // A dialog that is opened on the way is left again.
        QObject::connect(&questions, &QTimer::timeout, [this] {
            if (Form* open = run.window.modalForm()) run.announced << open->name(), open->goBack();
        });
        questions.start(0);
    }
};

TEST(Looks, Printing) {
    for (const bool toFile : {true, false})
        test::exploreOrLook(!toFile, toFile ? "tisk" : "tisk-na-tiskarne", [=](const Look& look) {
            Print print(toFile);
            look(print.run);
        });
    test::expectLooks("tisk-prave", [](const Look& look) {
        Print print(false);
        print.printer.turning = [&, isFirst = true]() mutable {
            if (std::exchange(isFirst, false)) look(print.run);
        };
        print.run.window.focusForm()->findChild<Control*>(u"Command1"_s)->click();
    });
    // One without a recipe in the book is empty.
    for (const bool isEmpty : {true, false})
        test::exploreOrLook(!isEmpty, isEmpty ? "nahled-niceho" : "nahled", [=](const Look& look) {
            Print print(false, isEmpty ? std::vector<std::int16_t>{9} : std::vector<std::int16_t>{1, 3});
            print.run.window.focusForm()->findChild<Control*>(u"cmdNahled"_s)->click();
            look(print.run);
        });
    test::walk(
        "nahled-zvetseny",
        [](const Look& look) {
            Print print(false, {3});
            print.run.window.focusForm()->findChild<Control*>(u"cmdNahled"_s)->click();
            look(print.run);
        },
        "Return Down Up Down Down Down Down Down Down Down Down Down Up Return End Return");
}

/// Looks while a dialog stands there, then closes it.
void meanwhile(FakeSarne& run, Form& dialog, const Look& look) {
    QTimer::singleShot(0, [&run, &look, dialog = QPointer<Form>(&dialog)] {
        look(run);
        if (dialog && dialog->isVisible()) dialog->goBack();
    });
}

TEST(Looks, Selection) {
    for (const QString& mode : {QString(), u"help"_s})
        explore(mode.isEmpty() ? "vyber" : "vyber-napovedy", [&](const Look& look) {
            FakeSarne run;
            run.openAbove("frmSeznam");
            auto* save = new frmSave(
                run, {{u"Candát"_s, 40}, {u"Kapr"_s, 10, true}, {u"Lín"_s, 30}},
                [&](const std::vector<std::int16_t>& ids) { run.recorded.printRecipes(ids, {}); });
            meanwhile(run, *save, look);
            save->Zobraz(mode);
        });
}

TEST(Looks, Printers) {
    for (const bool toFile : {true, false})
        explore(toFile ? "do-souboru" : "tiskarna", [=](const Look& look) {
            FakeSarne run;
            run.openAbove("frmPrint");
            PrinterChoice choice{
                toFile ? QString() : u"HP v chodbě"_s, Paper::A5, 3, true, false, u"/Složka"_s, {}};
            auto* dialog = new frmTiskarna(run, {u"HP v chodbě"_s, u"Druhá"_s}, choice, u"Recept"_s);
            meanwhile(run, *dialog, look);
            if (const auto chosen = dialog->ask()) run.announced << chosen->printer;
        });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
