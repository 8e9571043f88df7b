#include "print/frmtiskarna.h"

#include <QDir>
#include <QFileInfo>
#include <QListView>

#include "core/value.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/messagebox.h"
#include "forms/resources.h"
#include "print/formparts.h"

namespace sarne {
namespace {

constexpr QRect kPrinterList(360, 720, 4740, 2400);
constexpr QRect kPaperList(5400, 720, 4740, 2400);
constexpr QRect kCopiesTitle(360, 3420, 1500, 450);
constexpr QRect kCopies(1920, 3420, 900, 450);
constexpr QRect kBothSides(3300, 3420, 3600, 450);
constexpr QRect kColour(7200, 3420, 2940, 450);
constexpr QRect kFolderTitle(360, 4200, 9780, 330);
constexpr QRect kFolder(360, 4530, 9780, 480);
constexpr QRect kFileTitle(360, 5160, 9780, 330);
constexpr QRect kFile(360, 5490, 9780, 480);
constexpr int kMostCopies = 99;
constexpr int kLongestPath = 1000;

/// The nearest folder above \a path that is there already.
QString existingFolder(const QString& path) {
    QFileInfo folder(path);
    while (!folder.exists() && folder.path() != folder.filePath()) folder.setFile(folder.path());
    return folder.filePath();
}

}  // namespace

frmTiskarna::frmTiskarna(basSarne& sarne, const QStringList& printers, const PrinterChoice& choice,
                         const QString& usualFile)
    : PrintDialog(sarne, QStringLiteral("frmTiskarna")),
      usualFile_(usualFile),
      lblTiskarny(*this, QStringLiteral("lblTiskarny")),
      lblPapir(*this, QStringLiteral("lblPapir")),
      lstTiskarny(*this, QStringLiteral("lstTiskarny")),
      lstPapir(*this, QStringLiteral("lstPapir")),
      lblKopie(*this, QStringLiteral("lblKopie")),
      lblSlozka(*this, QStringLiteral("lblSlozka")),
      lblSoubor(*this, QStringLiteral("lblSoubor")),
      txtKopie(*this, QStringLiteral("txtKopie")),
      txtSlozka(*this, QStringLiteral("txtSlozka")),
      txtSoubor(*this, QStringLiteral("txtSoubor")),
      chkOboustranne(*this, QStringLiteral("chkOboustranne")),
      chkBarevne(*this, QStringLiteral("chkBarevne")) {
    makeLists(printers);
    makeOptions();
    static constexpr TextFace kFoot[] = {
        {QT_TRANSLATE_NOOP("Texts", "OK"), QT_TRANSLATE_NOOP("Texts", "Tisknout takto"), kFootLeft},
        {QT_TRANSLATE_NOOP("Texts", "Storno"), QT_TRANSLATE_NOOP("Texts", "Nechat, jak to bylo"),
         kFootRight}};
    makeButtons(*this, QStringLiteral("cmdOkStorno"), kFoot, cmdOkStorno, [this](int i) { close(i == 0); });
    ring().setStops({&lstTiskarny, &lstPapir, &txtKopie, &chkOboustranne, &chkBarevne, &txtSlozka, &txtSoubor,
                     cmdOkStorno[0], cmdOkStorno[1]});
    show(choice);
}

void frmTiskarna::makeLists(const QStringList& printers) {
    const auto make = [this](ListBox& list, Label& title, const QRect& place, const QString& caption,
                             const QStringList& texts) {
        dressLabel(title, printforms::kButtonFont, colors::kTitle, caption);
        placeList(list, title, place);
        list.setFont(printforms::kTextFont);
        list.setTip(caption);
        list.setItems(texts, std::vector<std::int32_t>(static_cast<size_t>(texts.size())));
        list.view().setSelectionMode(QAbstractItemView::SingleSelection);
        connect(&list, &Control::doubleClicked, this, [this] { close(true); });
    };
    make(lstTiskarny, lblTiskarny, kPrinterList, Texts::tr("Tiskárna"),
         QStringList{Texts::tr("Soubor PDF")} + printers);
    QStringList papers;
    for (int paper = 0; paper < kPapers; ++paper) papers << paperName(static_cast<Paper>(paper));
    make(lstPapir, lblPapir, kPaperList, Texts::tr("Papír"), papers);
    connect(lstTiskarny.view().selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { printerChanged(); });
}

void frmTiskarna::makeOptions() {
    lblKopie.place(kCopiesTitle);
    lblSlozka.place(kFolderTitle);
    lblSoubor.place(kFileTitle);
    lblKopie.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    dressLabel(lblKopie, printforms::kTextFont, colors::kPaper, Texts::tr("Počet kopií"));
    dressLabel(lblSlozka, printforms::kTextFont, colors::kPaper, Texts::tr("Složka"));
    dressLabel(lblSoubor, printforms::kTextFont, colors::kPaper, Texts::tr("Název souboru"));
    txtKopie.place(kCopies);
    txtSlozka.place(kFolder);
    txtSoubor.place(kFile);
    txtKopie.setMaxLength(2);
    txtKopie.setSteps(1, kMostCopies);
    txtSlozka.setMaxLength(kLongestPath);
    txtKopie.setTip(Texts::tr("Počet kopií, 1 až 99"));
    txtSlozka.setTip(Texts::tr("Složka, do které se soubor uloží"));
    txtSoubor.setTip(Texts::tr("Název souboru bez přípony"));
    for (Edit* entry : {&txtKopie, &txtSlozka, &txtSoubor}) entry->setFont(printforms::kTextFont);
    chkOboustranne.place(kBothSides);
    chkBarevne.place(kColour);
    dressCheckBox(chkOboustranne, app().resources(), Texts::tr("Tisknout po obou stranách"));
    dressCheckBox(chkBarevne, app().resources(), Texts::tr("Barevně"));
    for (CheckBox* box : {&chkOboustranne, &chkBarevne}) box->setColor(colors::kPaper);
}

void frmTiskarna::show(const PrinterChoice& choice) {
    int printer = 0;
    for (int i = 1; i < lstTiskarny.listCount(); ++i) {
        if (lstTiskarny.text(i) == choice.printer) printer = i;
    }
    lstTiskarny.setListIndex(printer);
    lstPapir.setListIndex(static_cast<int>(choice.paper));
    txtKopie.setText(QString::number(choice.copies));
    chkOboustranne.setChecked(choice.bothSides);
    chkBarevne.setChecked(choice.colour);
    txtSlozka.setText(QDir::toNativeSeparators(choice.folder));
    txtSoubor.setText(choice.file.isEmpty() ? usualFile_ : choice.file);
    printerChanged();
}

PrinterChoice frmTiskarna::shown() const {
    PrinterChoice choice;
    if (!toFile()) choice.printer = lstTiskarny.text(lstTiskarny.listIndex());
    choice.paper = static_cast<Paper>(qMax(0, lstPapir.listIndex()));
    choice.copies = qBound(1, static_cast<int>(leadingNumber(txtKopie.text())), kMostCopies);
    choice.bothSides = chkOboustranne.isChecked();
    choice.colour = chkBarevne.isChecked();
    choice.folder = QDir::fromNativeSeparators(txtSlozka.text().trimmed());
    const QString file = txtSoubor.text().trimmed();
    choice.file = file == usualFile_ ? QString() : file;
    return choice;
}

/// A file has neither copies nor sides, a printer no folder.
void frmTiskarna::printerChanged() {
    for (Control* control : std::initializer_list<Control*>{&lblKopie, &txtKopie, &chkOboustranne})
        control->setEnabled(!toFile());
    for (Control* control : std::initializer_list<Control*>{&lblSlozka, &txtSlozka, &lblSoubor, &txtSoubor})
        control->setEnabled(toFile());
}

std::optional<PrinterChoice> frmTiskarna::ask() {
    accepted_ = false;
    showModal();
    if (!accepted_) return std::nullopt;
    return shown();
}

void frmTiskarna::close(bool accepted) {
    const QFileInfo folder(existingFolder(QDir::fromNativeSeparators(txtSlozka.text().trimmed())));
    if (accepted && toFile() && (!folder.isDir() || !folder.isWritable())) {
        app().ZobrazZpravu(Texts::tr("Do této složky nelze ukládat. Zvolte jinou."), kWarningBox);
        return txtSlozka.focusAll();
    }
    accepted_ = accepted;
    hideForm();
}

void frmTiskarna::enterPressed() {
    if (!ring().press()) close(true);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
