#include "print/frmprint.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QUrl>
#include <algorithm>

#include "core/texts.h"
#include "core/value.h"
#include "db/database.h"
#include "db/notestore.h"
#include "forms/bassarne.h"
#include "forms/messagebox.h"
#include "forms/resources.h"
#include "forms/stage.h"
#include "print/formparts.h"
#include "print/frmnahled.h"
#include "print/frmprint_layout.h"
#include "print/frmtiskarna.h"
#include "print/printlogo.h"

namespace sarne {
namespace {

constexpr int kUsualPortions = 4;
constexpr double kFewestPortions = 1, kMostPortions = 99;
constexpr int kYieldInterval = 20;  // milliseconds between two looks at what the user does

const QString kKeepAwake = QStringLiteral("Tisk");

QString recipeName(Database& db, int id) {
    Recordset recipes = db.OpenTable(QStringLiteral("Recepty"));
    recipes.setIndex(QStringLiteral("PrimaryKey"));
    return RecordExists(recipes, id) ? recipes.field(QStringLiteral("Nazev")).toString() : QString();
}

QString outcomeText(const PrintOutcome& outcome) {
    using Kind = PrintOutcome::Kind;
    const QString where =
        outcome.file.isEmpty() ? QString() : Texts::tr("\nStrany jsou v souboru ") + outcome.file;
    switch (outcome.kind) {
        case Kind::Printed:
            return Texts::tr("Tisk je hotov, počet stran: %1.").arg(outcome.pages) + where;
        case Kind::Stopped:
            return Texts::tr("Tisk byl přerušen.") + where;
        case Kind::Failed:
            return Texts::tr("Tisk se nezdařil: tiskárna neodpovídá nebo na disku není místo.");
        case Kind::Nothing:
            return Texts::tr("Není co tisknout.");
    }
    return {};
}

}  // namespace

void frmPrint::Zobraz(const std::vector<std::int16_t>& selection, const Serving& serving) {
    take({selection, {}}, serving);
}

void frmPrint::ZobrazTexty(std::vector<TitledText> texts) {
    take({{}, std::move(texts)}, {});
}

void frmPrint::take(PrintMaterial material, const Serving& serving) {
    if (printing_) return;
    material_ = std::move(material);
    // A note that is being written below is printed as it stands there.
    for (Form* form : app().stage().forms()) form->keepUnsaved();
    lblVysledek.setText({});
    if (!isVisible()) recallPrinter();
    cmdOtevrit->hide();
    prepareOptions(serving);
    showMaterial();
    refreshPreview();
    if (printedBefore_) {
        showForm();
        return start();
    }
    if (serving.portions > kMostPortions) refusePortions();
    open();
}

void frmPrint::open() {
    if (isVisible()) return;
    app().PushScreen(*this);
    showForm();
    setAccessibleName(lblNadpis.text() + QStringLiteral(": ") + lblCo.text());
    app().HookMessage(accessibleName());
}

void frmPrint::prepareOptions(const Serving& serving) {
    const double portions = serving.portions > 0 ? serving.portions : kUsualPortions;
    // Read back with a decimal point, whatever the user's.
    Text1.setSteps(int(kFewestPortions), int(kMostPortions));
    Text1.setText(QString::number(qBound(kFewestPortions, portions, kMostPortions)));
    chkZobrKg.setChecked(serving.units == UnitSystem::Weights);
}

PrintOptions frmPrint::options() const {
    PrintOptions options;
    for (size_t i = 0; i < Chco.size(); ++i) options.sections[i] = Chco[i]->isChecked();
    options.portions = leadingNumber(Text1.text());
    options.units = chkZobrKg.isChecked() ? UnitSystem::Weights : UnitSystem::Spoons;
    return options;
}

PrintSource frmPrint::source() {
    return {app().Db(),
            [this](const QString& path) { return app().mediaFile(path); },
            app().Locale,
            printLogo(app().resources()),
            !printer_.choice().colour,
            [this](int id) { return app().notes().draft(id); }};
}

QString frmPrint::materialName() const {
    if (material_.isText()) return material_.texts.front().title;
    return material_.recipes.empty() ? QString() : recipeName(app().Db(), material_.recipes.front());
}

void frmPrint::showMaterial() {
    const int more = material_.count() - 1;
    QString name = materialName();
    if (more > 0) name += Texts::tr(" a další (celkem %1)").arg(more + 1);
    lblCo.setText(name);
    Frame1.setEnabled(!material_.isText());
    showPrinter();
}

void frmPrint::showPrinter() {
    const PrinterChoice choice = printer_.choice();
    const QString paper = Texts::tr("Papír: ") + paperName(choice.paper);
    if (!choice.printer.isEmpty()) {
        const QString copies =
            choice.copies > 1 ? Texts::tr(", počet kopií: %1").arg(choice.copies) : QString();
        lblTiskarna.setToolTip({});
        return lblTiskarna.setText(Texts::tr("Tiskárna: ") + choice.printer + u'\n' + paper + copies);
    }
    const QString file = printer_.fileFor(documentName());
    const QFontMetricsF metrics(printforms::kSmallFont.toQFont());
    // The end of a long path says more than its middle.
    const auto shown = [&](const QString& line) {
        return metrics.elidedText(line, Qt::ElideMiddle, printlayout::kPrinter.width());
    };
    lblTiskarna.setText(shown(Texts::tr("Tisk do souboru: ") + QFileInfo(file).fileName()) + u'\n' +
                        shown(Texts::tr("Složka: ") + QFileInfo(file).path()) + u'\n' + paper);
    lblTiskarna.setToolTip(file);
}

void frmPrint::recallPrinter() {
    const QString kept = memory_.load();
    if (kept.isEmpty()) return;
    const PrinterChoice choice = PrinterChoice::fromText(kept);
    if (printer_.use(choice)) return;
    lblVysledek.setText(
        Texts::tr("Tiskárna %1 teď není k dispozici, tisk půjde do souboru.").arg(choice.printer));
}

bool frmPrint::portionsFit() const {
    const double portions = leadingNumber(Text1.text());
    return material_.isText() || (portions >= kFewestPortions && portions <= kMostPortions);
}

bool frmPrint::checkPortions() {
    const bool fit = portionsFit();
    if (!fit) refusePortions();
    return fit;
}

void frmPrint::refusePortions() {
    app().ZobrazZpravu(Texts::tr("Musí být zadáno celé číslo od 1 do 99!"), kWarningBox);
    Text1.focusAll();
}

void frmPrint::start() {
    if (printing_ || !checkPortions() || !mayReplaceFile()) return;
    printedBefore_ = true;
    prgSeznam.setMaximum(material_.count());
    prgSeznam.setValue(0);
    setPrinting(true);
    spoken_ = SpokenProgress(app().clock().now());
    app().HookMessage(Texts::tr("Tisknu: %1").arg(lblCo.text()));
    const QPointer<frmPrint> self(this);
    run();
    if (self) setPrinting(false);
}

bool frmPrint::mayReplaceFile() {
    const QString file = printer_.fileFor(documentName());
    if (file.isEmpty() || !QFileInfo::exists(file)) return true;
    const QString question = Texts::tr("Soubor %1 už existuje. Chcete ho nahradit?");
    return app().ZobrazZpravu(question.arg(QFileInfo(file).fileName()), kQuestionBox) == kAnswerYes;
}

void frmPrint::openFile() {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(printedFile_)))
        app().ZobrazZpravu(Texts::tr("Soubor se nepodařilo otevřít."), kWarningBox);
}

void frmPrint::run() {
    stopped_ = false;
    app().Yield();
    QtTextMetrics metrics;
    PageComposer composer(source(), printer_.scale(), metrics);
    PrintJob job(printer_, composer, *this);
    showOutcome(job.print(material_, options(), documentName()));
}

void frmPrint::setPrinting(bool printing) {
    printing_ = printing;
    for (Control* control : std::initializer_list<Control*>{Command1, Command2, cmdNahled, cmdTiskarna})
        control->setEnabled(!printing);
    Frame1.setEnabled(!printing && !material_.isText());
    for (Control* control :
         std::initializer_list<Control*>{&Label1, &lblRecept, &prgRecept, &prgSeznam, cmdPrerus})
        control->setVisible(printing);
    lblVysledek.setVisible(!printing);
    cmdOtevrit->setVisible(!printing && !printedFile_.isEmpty());
    // A recipe below keeps the display awake by itself when it is on top again.
    if (printing || !liesOverRecipe()) app().keepAwake(printing ? kKeepAwake : QString());
    if (printing) {
        hideOthers();
        cmdPrerus->setFocus();
    } else {
        showOthers();
        Command2->setFocus();
    }
}

bool frmPrint::liesOverRecipe() const {
    return std::ranges::any_of(app().stage().forms(),
                               [](const Form* form) { return form->name() == QLatin1String("frmRecept"); });
}

void frmPrint::hideOthers() {
    for (Form* form : app().stage().forms()) {
        if (form == this || !form->isVisible()) continue;
        others_.emplace_back(form);
        form->hideForm();
    }
}

void frmPrint::showOthers() {
    for (const QPointer<Form>& form : others_) {
        if (form && form->isLoaded()) form->show();
    }
    others_.clear();
}

void frmPrint::showOutcome(const PrintOutcome& outcome) {
    printedFile_ = outcome.file;
    lblVysledek.setText(outcomeText(outcome));
    app().HookMessage(lblVysledek.text());
}

void frmPrint::askToStop() {
    const QString question = Texts::tr(" Opravdu chcete ukončit tisk? ");
    if (app().ZobrazZpravu(question, kWarningQuestionBox) == kAnswerYes) stopped_ = true;
}

std::unique_ptr<PagePreview> frmPrint::newPreview(const PrintOptions& wanted) {
    return std::make_unique<PagePreview>(source(), printer_.scale(), material_, wanted,
                                         PagesOnSheet::of(printer_.choice().paper));
}

void frmPrint::preview() {
    if (printing_ || !checkPortions()) return;
    auto preview = newPreview(options());
    (new frmNahled(app(), std::move(preview)))->Zobraz(previewed_);
}

/// Shows the pages as they would be printed now; the first ones at once, the others when there is time.
void frmPrint::refreshPreview() {
    if (printing_ || !portionsFit()) return;
    auto preview = newPreview(options());
    while (preview->sheetCount() <= previewed_ && preview->layOutMore()) {
    }
    picStrana.showSheet(*preview, 0);
    preview_ = std::move(preview);
    turnTo(previewed_);
    Timer1.setInterval(0);
    Timer1.setEnabled(!preview_->isComplete());
}

void frmPrint::layOutMore() {
    if (!preview_->layOutMore()) Timer1.setEnabled(false);
    showPosition();
}

void frmPrint::turnTo(int sheet) {
    if (!preview_) return;
    previewed_ = qBound(0, sheet, qMax(0, preview_->sheetCount() - 1));
    picStrana.showSheet(*preview_, previewed_);
    showPosition();
}

void frmPrint::showPosition() {
    const int count = preview_->sheetCount();
    const QString place = preview_->onSheet().count() > 1 ? Texts::tr("List %1 z %2") : Texts::tr("%1 z %2");
    lblStrana.setText(count == 0 ? QString() : place.arg(previewed_ + 1).arg(count));
    cmdStrana[0]->setEnabled(previewed_ > 0 && !printing_);
    cmdStrana[1]->setEnabled(previewed_ + 1 < count && !printing_);
}

void frmPrint::choosePrinter() {
    auto* dialog = new frmTiskarna(app(), printer_.printers(), printer_.choice(), documentName());
    const std::optional<PrinterChoice> choice = dialog->ask();
    dialog->unload();
    if (!choice) return;
    if (!printer_.use(*choice))
        app().ZobrazZpravu(Texts::tr("Tiskárna %1 teď není k dispozici.").arg(choice->printer), kWarningBox);
    memory_.store(printer_.choice().toText());
    showPrinter();
    refreshPreview();
}

void frmPrint::goBack() {
    if (printing_) return askToStop();
    app().PopScreen(*this);
}

void frmPrint::endProgram() {
    if (printing_) return askToStop();
    Form::endProgram();
}

void frmPrint::musicSettings() {
    if (!printing_) Form::musicSettings();
}

void frmPrint::help() {
    if (!printing_) Form::help();
}

void frmPrint::restored() {
    Frame1.setEnabled(!material_.isText());
    showPosition();
    Form::restored();
}

void frmPrint::recipeStarted(const QString& name) {
    lblRecept.setText(name);
    prgRecept.setValue(0);
}

void frmPrint::status(const QString& text) {
    Label1.setText(text);
    app().Yield();
}

void frmPrint::progressed(double part) {
    prgRecept.setValue(qRound(part * prgRecept.maximum()));
    const auto said = spoken_.at((prgSeznam.value() + part) / prgSeznam.maximum(), app().clock().now());
    if (said) app().HookMessage(Texts::tr("Vytištěno %1 %").arg(*said));
}

void frmPrint::recipeDone() {
    prgSeznam.advance();
}

bool frmPrint::goOn() {
    if (!sinceYield_.isValid() || sinceYield_.hasExpired(kYieldInterval)) {
        app().Yield();
        sinceYield_.restart();
    }
    return !stopped_;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
