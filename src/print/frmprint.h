#pragma once

#include <QElapsedTimer>
#include <array>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/edit.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/progressbar.h"
#include "forms/timer.h"
#include "platform/printer.h"
#include "print/pagesheet.h"
#include "print/printjob.h"
#include "print/spokenprogress.h"

namespace sarne {

/// Where the user's choice of the printer is kept from run to run.
struct PrinterMemory {
    std::function<QString()> load = [] { return QString(); };
    std::function<void(const QString&)> store = [](const QString&) {};
};

/// The printing form: what of a recipe is printed and for how many portions, where it goes, how it will look,
/// and how far it is. Printing runs within start(), which lets window events run between the lines.
class frmPrint : public Form, private PrintProgress {
    Q_OBJECT
  public:
    /// Prints on \a printer, which must outlive the form.
    frmPrint(basSarne& sarne, Printer& printer, PrinterMemory memory = {});

    /// Takes the ids of recipes to print and shows the form. The first selection waits for the user to look
    /// through the options; one that comes while the form is open is printed at once.
    void Zobraz(const std::vector<std::int16_t>& selection, const Serving& serving);
    /// Takes texts to print that are no recipes: there is nothing to choose but the printer.
    void ZobrazTexty(std::vector<TitledText> texts);

    bool isPrinting() const { return printing_; }
    void goBack() override;
    void endProgram() override;
    void musicSettings() override;
    void help() override;
    void restored() override;

  protected:
    void paint(QPainter& painter) override;
    bool keyDown(QKeyEvent& event) override;

  private:
    void putIntoFrame(Control& control, const QRect& place);
    void makeOptions();
    void makePrinterLine();
    void makeProgress();
    void makeButtons();
    void makePreview();
    void watchOptions();
    Button* makeButton(const QString& name, const QString& caption, const QString& tip, const QRect& place);

    void take(PrintMaterial material, const Serving& serving);
    void open();
    void prepareOptions(const Serving& serving);
    PrintOptions options() const;
    PrintSource source();
    QString materialName() const;
    QString documentName() const { return material_.documentName(materialName()); }
    void showMaterial();
    void showPrinter();

    void start();
    bool portionsFit() const;
    /// As portionsFit(); what does not fit is refused.
    bool checkPortions();
    void refusePortions();
    void run();
    void setPrinting(bool printing);
    bool liesOverRecipe() const;
    void hideOthers();
    void showOthers();
    void showOutcome(const PrintOutcome& outcome);
    void askToStop();
    bool mayReplaceFile();
    void openFile();
    std::unique_ptr<PagePreview> newPreview(const PrintOptions& wanted);
    void preview();
    void refreshPreview();
    void layOutMore();
    void turnTo(int sheet);
    void showPosition();
    void recallPrinter();
    void choosePrinter();

    // Printing tells how far it is.
    void recipeStarted(const QString& name) override;
    void status(const QString& text) override;
    void progressed(double part) override;
    void recipeDone() override;
    bool goOn() override;

    Printer& printer_;
    PrinterMemory memory_;
    std::unique_ptr<PagePreview> preview_;
    int previewed_ = 0;  // the sheet that shows
    QString printedFile_;
    PrintMaterial material_;
    bool printedBefore_ = false;  // further selections are printed at once
    bool printing_ = false;
    SpokenProgress spoken_;
    bool stopped_ = false;
    QElapsedTimer sinceYield_;
    std::vector<QPointer<Form>> others_;

    Label lblNadpis, lblCo;
    Control Frame1;
    std::array<CheckBox*, kPrintSections> Chco{};
    Label lblPorce;
    Edit Text1;
    CheckBox chkZobrKg;
    Label lblTiskarna, lblVysledek;
    Label Label1, lblRecept;
    ProgressBar prgRecept, prgSeznam;
    PageSheet picStrana;
    Label lblStrana;
    Timer Timer1;
    Button *Command1, *Command2, *cmdPrerus, *cmdTiskarna, *cmdNahled, *cmdOtevrit;
    std::array<Button*, 2> cmdStrana{};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
