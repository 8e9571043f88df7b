#include "print/frmprint.h"

#include <sys/resource.h>

#include <QDateTime>
#include <QFileInfo>
#include <csignal>

#include "forms/listbox.h"
#include "printform.h"
#include "support/fakeprinter.h"
#include "support/kept.h"

namespace sarne {
namespace {

using test::FrmPrintTest;
using test::str;

TEST_F(FrmPrintTest, OpensForFourOrTheMostThatCanBe) {
    const std::pair<Serving, QString> all[] = {{{}, u"4"_s}, {{99}, u"99"_s}, {{150}, u"99"_s}};
    for (const auto& [serving, portions] : all) {
        EXPECT_EQ(run.messages, QStringList());
        open({1}, serving);
        EXPECT_EQ(control<Edit>("Text1")->text(), portions);
        control("Command2")->click();
    }
    EXPECT_EQ(run.messages, QStringList{u"48: Musí být zadáno celé číslo od 1 do 99!"_s});
}

/// A screen whose note is being written.
struct NoteScreen : Form {
    NoteScreen(FakeSarne& run) : Form(run, u"frmRecept"_s), kept(run) {}
    void keepUnsaved() override { kept.notes().keepDraft(3, u"rozepsaná poznámka"_s); }
    FakeSarne& kept;
};

TEST_F(FrmPrintTest, PrintsANoteAsItStandsInItsEditorAndStaysAwakeAboveARecipe) {
    auto* recipe = new NoteScreen(run);
    recipe->showForm();
    run.PushScreen(*recipe);
    open({3});
    control("Command1")->click();
    EXPECT_TRUE(test::pdfText(file("Štika.pdf")).contains(u"rozepsaná poznámka"_s));
    EXPECT_EQ(run.awake, QStringList{u"Tisk"_s}) << "not ended: the recipe is below";
}

TEST_F(FrmPrintTest, AsksForPortionsFrom1To99) {
    open({3});
    test::expectCases(u"porce"_s, [this](const QString& typed) {
        run.messages.clear();
        control<Edit>("Text1")->setText(typed);
        control("Command1")->click();
        const QString made = outcome().section(u"souboru "_s, 1);
        if (run.messages.filter(u"48:"_s).isEmpty())
            return test::pdfText(made).simplified().section(u' ', -2);
        EXPECT_TRUE(control<Edit>("Text1")->hasInput());
        control("cmdNahled")->click();
        return run.messages.join(u' ') + made;
    });
    control<Edit>("Text1")->focusAll();
    QTest::keyClicks(form()->focusWidget(), u"2,5"_s);
    EXPECT_EQ(control<Edit>("Text1")->text(), u"2.5"_s);
}

TEST_F(FrmPrintTest, ShowsHowFarItIsAndHidesTheOtherScreens) {
    open({1, 3});
    QStringList seen;
    int farthest = 0;
    QString recipe;
    whilePrinting([&] {
        if (const QString name = control<Label>("lblRecept")->text(); name != recipe) {
            recipe = name;
            EXPECT_LE(control<ProgressBar>("prgRecept")->value(), 1) << name.toStdString();
        }
        const QString status = control<Label>("Label1")->text();
        if (!status.isEmpty() && (seen.isEmpty() || seen.last() != status)) seen << status;
        farthest = qMax(farthest, control<ProgressBar>("prgRecept")->value());
    });
    control("Command1")->click();
    EXPECT_EQ(seen.first(), u" Tisknu recept ... "_s);
    EXPECT_TRUE(seen.contains(u" Tisknu odkaz Vývar ... "_s));
    EXPECT_GE(farthest, 437) << "seven of eight sections, which are half the work";
    EXPECT_EQ(control<ProgressBar>("prgRecept")->value(), control<ProgressBar>("prgRecept")->maximum());
    EXPECT_EQ(control<ProgressBar>("prgSeznam")->value(), 2);
    EXPECT_TRUE(below->isVisible());
    EXPECT_TRUE(control("Command1")->isEnabled() && control("Frame1")->isEnabled());
    EXPECT_FALSE(control("cmdPrerus")->isVisible());
    EXPECT_EQ(run.awake, (QStringList{u"Tisk"_s, QString()}));
    EXPECT_TRUE(outcome().endsWith(file("Recepty (2).pdf"))) << outcome().toStdString();
}

TEST_F(FrmPrintTest, DoesNothingElseMeanwhileAndSaysHowFarItIs) {
    open({1, 2});
    run.answers = {7};
    bool first = true;
    whilePrinting([&] {
        run.time.time += SpokenProgress::kPause;
        if (!std::exchange(first, false)) return;
        printing.printRecipes({3}, {});
        form()->help();
        form()->musicSettings();
        form()->endProgram();
        QTest::keyClick(form(), Qt::Key_PageDown);
        for (const char* name : {"picStrana", "cmdStrana(1)", "cmdTiskarna", "cmdNahled"})
            control(name)->click();
    });
    control("Command1")->click();
    EXPECT_EQ(run.messages, QStringList{u"52:  Opravdu chcete ukončit tisk? "_s});
    EXPECT_EQ(run.recorded.calls, QStringList());
    EXPECT_FALSE(loaded("frmNahled"));
    EXPECT_EQ(control<Label>("lblCo")->text(), u"Candát a další (celkem 2)"_s);
    EXPECT_TRUE(outcome().endsWith(file("Recepty (2).pdf"))) << outcome().toStdString();
    EXPECT_EQ(run.announced.filter(u"%"_s),
              (QStringList{u"Vytištěno 25 %"_s, u"Vytištěno 50 %"_s, u"Vytištěno 75 %"_s}));
    EXPECT_TRUE(control("Command2")->hasFocus());
    form()->help();
    EXPECT_EQ(run.recorded.calls, QStringList{u"showHelpFor frmPrint"_s});
    form()->endProgram();
    EXPECT_EQ(run.exits, 1);
}

TEST_F(FrmPrintTest, PrintsASecondSelectionAtOnceUntilItIsClosed) {
    open({1});
    for (int i = 0; i < kPrintSections; ++i) section(i)->setChecked(false);
    EXPECT_TRUE(outcome().isEmpty()) << "the first one waits";
    control("Command1")->click();
    open({3});
    EXPECT_TRUE(outcome().endsWith(file("Štika.pdf")));
    EXPECT_EQ(test::pdfText(file("Štika.pdf")).simplified(), u"CD Tobrela - Velisa sarn Štika"_s);
    const QPointer<frmPrint> first = form();
    control("Command2")->click();
    EXPECT_FALSE(first->isLoaded());
    EXPECT_EQ(run.FormStack.top(), below);
    open({2});
    EXPECT_TRUE(outcome().isEmpty());
    EXPECT_TRUE(control<CheckBox>("Chco(0)")->isChecked());
    printing.printRecipes({77}, {});
    control("Command1")->click();
    EXPECT_EQ(outcome(), u"Není co tisknout."_s);
}

TEST_F(FrmPrintTest, StopsWhenTheUserSaysSo) {
    open({2, 2, 2, 2, 2, 2});
    run.answers = {7, 6};
    whilePrinting([&] {
        if (run.messages.size() < 2) control("cmdPrerus")->click();
    });
    QTest::keyClick(form(), Qt::Key_Return);
    EXPECT_EQ(run.messages, (QStringList{u"52:  Opravdu chcete ukončit tisk? "_s,
                                         u"52:  Opravdu chcete ukončit tisk? "_s}));
    EXPECT_TRUE(outcome().startsWith(u"Tisk byl přerušen."_s));
    EXPECT_LT(control<ProgressBar>("prgSeznam")->value(), 6);
    EXPECT_TRUE(control("Command1")->isEnabled());

    run.answers = {6};
    int asked = 0;
    run.whileAsking = [&] { ++asked; };
    auto* timer = new QTimer(form());
    // Deep within a recipe, when pages have been put out.
    QObject::connect(timer, &QTimer::timeout, form(), [&] {
        if (form()->isPrinting() && asked == 0 && control<ProgressBar>("prgSeznam")->value() == 1)
            QTest::keyClick(form(), Qt::Key_Escape);
    });
    timer->start(0);
    control("Command1")->click();
    EXPECT_EQ(asked, 1);
    const QString stopped = outcome().section(u"souboru "_s, 1);
    ASSERT_FALSE(stopped.isEmpty()) << outcome().toStdString();
    EXPECT_GT(test::pdfPages(stopped).size(), 60) << "what was printed is readable";
    EXPECT_LT(control<ProgressBar>("prgSeznam")->value(), 6);
}

TEST_F(FrmPrintTest, SaysWhenThePrinterFails) {
    using Fails = FakePrinter::Fails;
    for (const Fails fails : {Fails::Begin, Fails::NewPage, Fails::End}) {
        FakePrinter failing;
        failing.fails = fails;
        failing.use({u"Tiskárna v chodbě"_s, Paper::A5, 2});
        frmPrint print(run, failing);
        print.Zobraz({1, 3}, {});
        EXPECT_EQ(child<Label>(print, "lblTiskarna")->text(),
                  u"Tiskárna: Tiskárna v chodbě\nPapír: A5, počet kopií: 2"_s);
        child<Button>(print, "Command1")->click();
        EXPECT_TRUE(child<Label>(print, "lblVysledek")->text().startsWith(u"Tisk se nezdařil"_s));
        EXPECT_FALSE(failing.begun) << "what was begun is ended";
        EXPECT_TRUE(child<Button>(print, "Command1")->isEnabled() && below->isVisible());
        child<Button>(print, "Command2")->click();
    }
}

TEST_F(FrmPrintTest, AFullDiskLeavesNoHalfAFile) {
    open({1, 2});
    struct rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit full = before;
    full.rlim_cur = 5000;
    setrlimit(RLIMIT_FSIZE, &full);
    control("Command1")->click();
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(outcome().startsWith(u"Tisk se nezdařil"_s)) << outcome().toStdString();
    EXPECT_TRUE(QDir(book.folder.filePath(u"Dokumenty"_s)).isEmpty()) << QFileInfo(file("Candát.pdf")).size();
    control("Command1")->click();
    EXPECT_TRUE(outcome().endsWith(file("Recepty (2).pdf"))) << "and then there is room again";
    std::signal(SIGXFSZ, handler);
}

TEST_F(FrmPrintTest, AsksBeforeItReplacesAFile) {
    open({3});
    EXPECT_FALSE(control("cmdOtevrit")->isVisible());
    control("Command1")->click();
    EXPECT_TRUE(run.messages.isEmpty());
    EXPECT_TRUE(control("cmdOtevrit")->isVisible());
    const QDateTime written = QFileInfo(file("Štika.pdf")).lastModified();
    run.answers = {7};
    QTest::qWait(20);
    control("Command1")->click();
    EXPECT_EQ(run.messages, QStringList{u"36: Soubor Štika.pdf už existuje. Chcete ho nahradit?"_s});
    EXPECT_EQ(QFileInfo(file("Štika.pdf")).lastModified(), written);
    control("Command1")->click();
    EXPECT_GT(QFileInfo(file("Štika.pdf")).lastModified(), written);
    run.messages.clear();
    control("cmdOtevrit")->click();  // nothing here opens files
    EXPECT_EQ(run.messages, QStringList{u"48: Soubor se nepodařilo otevřít."_s});
    run.answers = {7};
    open({3});
    EXPECT_EQ(outcome(), QString());
    EXPECT_FALSE(control("cmdOtevrit")->isVisible()) << "it was of another selection";
    EXPECT_EQ(QDir(book.folder.filePath(u"Dokumenty"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(FrmPrintTest, ChoosesPrinterAndPaperAndRemembersThem) {
    QString kept;
    const PrinterMemory memory{[&] { return kept; }, [&](const QString& choice) { kept = choice; }};
    auto* print = new frmPrint(run, printer, memory);
    print->Zobraz({1, 3}, {});
    const auto answer = [&](int button, const char* folder) {
        QTimer::singleShot(0, below, [&, button, folder] {
            auto* dialog = loaded("frmTiskarna");
            ASSERT_TRUE(dialog);
            EXPECT_EQ(child<Edit>(*dialog, "txtSoubor")->text(), u"Recepty (2)"_s);
            EXPECT_FALSE(child<Edit>(*dialog, "txtKopie")->isEnabled()) << "of a file there is one";
            child<ListBox>(*dialog, "lstPapir")->setListIndex(int(Paper::Card));
            child<CheckBox>(*dialog, "chkBarevne")->setChecked(false);
            child<Edit>(*dialog, "txtSlozka")->setText(book.folder.filePath(str(folder)));
            child<Button>(*dialog, qPrintable(u"cmdOkStorno(%1)"_s.arg(button)))->click();
            if (dialog->isVisible()) QTest::keyClick(dialog, Qt::Key_Escape);
        });
        child<Button>(*print, "cmdTiskarna")->setFocus();
        child<Button>(*print, "cmdTiskarna")->click();
    };
    answer(1, "Jinam");
    EXPECT_TRUE(child<Button>(*print, "cmdTiskarna")->hasFocus()) << "the keyboard comes back";
    EXPECT_EQ(printer.choice().paper, Paper::A4);
    answer(0, "Sarne.drc/x");
    EXPECT_EQ(run.messages, QStringList{u"48: Do této složky nelze ukládat. Zvolte jinou."_s});
    EXPECT_TRUE(kept.isEmpty());
    answer(0, "Karty");
    EXPECT_TRUE(printer.scale().card);
    EXPECT_TRUE(child<Label>(*print, "lblTiskarna")->text().contains(u"Kartička A6"_s));
    EXPECT_FALSE(child<PageSheet>(*print, "picStrana")->accessibleValue().contains(u"poznámka"_s));
    child<Button>(*print, "Command1")->click();
    EXPECT_TRUE(QFileInfo::exists(book.folder.filePath(u"Karty/Recepty (2).pdf"_s)));

    kept.clear();
    FakePrinter lost;
    frmPrint tries(run, lost, memory);
    tries.Zobraz({3}, {});
    lost.isThere = false;
    run.messages.clear();
    QTimer::singleShot(0, below, [&] { child<Button>(*loaded("frmTiskarna"), "cmdOkStorno(0)")->click(); });
    child<Button>(tries, "cmdTiskarna")->click();
    EXPECT_EQ(run.messages, QStringList{u"48: Tiskárna Zkušební teď není k dispozici."_s});

    SystemPrinter another(book.folder.path());
    kept = printer.choice().toText();
    frmPrint next(run, another, memory);
    next.Zobraz({3}, {});
    EXPECT_EQ(another.choice().paper, Paper::Card);
    EXPECT_FALSE(another.choice().colour);
    kept = PrinterChoice{u"Zmizelá"_s}.toText();
    frmPrint gone(run, another, memory);
    gone.Zobraz({3}, {});
    EXPECT_EQ(child<Label>(gone, "lblVysledek")->text(),
              u"Tiskárna Zmizelá teď není k dispozici, tisk půjde do souboru."_s);
}

TEST_F(FrmPrintTest, QuickRecipesAndHelpPagesPrintAboveTheirDialog) {
    const auto select = [&](const PrintEntry& entry, const char* mode) {
        QTimer::singleShot(0, below, [&] {
            auto* save = loaded("frmSave");
            child<Button>(*save, "cmdRuka(3)")->click();
            QTimer::singleShot(0, below, [&, save] {
                EXPECT_EQ(run.window.modalForm(), form()) << "the dialog waits below";
                control("Command1")->click();
                control("Command2")->click();
                QTimer::singleShot(0, below, [save] { QTest::keyClick(save, Qt::Key_Escape); });
            });
            child<Button>(*save, "cmdOkEnd(0)")->click();
        });
        printing.showSelection({entry}, str(mode), {});
        EXPECT_EQ(run.window.modalForm(), nullptr);
        EXPECT_EQ(run.FormStack.top(), below);
    };
    select({u"Pět minut"_s, 3}, "RychleRecepty");
    EXPECT_EQ(test::pdfPages(file("Štika.pdf")).size(), 1);
    select({u"O tisku"_s, 10}, "Help");
    EXPECT_EQ(test::pdfText(file("O tisku.pdf")).simplified(),
              u"CD Tobrela - Velisa sarn O tisku Text stránky."_s)
        << "a title that the text repeats is printed once";
    frmPrint two(run, printer);
    two.ZobrazTexty({{u"Jedna"_s, u"text"_s}, {u"Druhá"_s, u"text"_s}});
    child<Button>(two, "Command1")->click();
    EXPECT_EQ(test::pdfPages(file("Texty z kuchařky (2).pdf")).size(), 2);
    two.goBack();
    printing.printText(u"Tabulka"_s, test::rtf(u"Řádek."_s));
    EXPECT_FALSE(control("Frame1")->isEnabled()) << "there is nothing to choose";
    control("Command1")->click();
    EXPECT_EQ(test::pdfText(file("Tabulka.pdf")).simplified(), u"CD Tobrela - Velisa sarn Tabulka Řádek."_s);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
