#include <QKeyEvent>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/decimalentry.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "print/formparts.h"
#include "print/frmprint.h"
#include "print/frmprint_layout.h"

namespace sarne {
namespace {

namespace at = printlayout;

const char* const kSections[kPrintSections] = {QT_TRANSLATE_NOOP("Texts", "Foto"),
                                               QT_TRANSLATE_NOOP("Texts", "Suroviny"),
                                               QT_TRANSLATE_NOOP("Texts", "Úvod, recept, poznámka"),
                                               QT_TRANSLATE_NOOP("Texts", "Jak podávat"),
                                               QT_TRANSLATE_NOOP("Texts", "Víno"),
                                               QT_TRANSLATE_NOOP("Texts", "Vlastní poznámka"),
                                               QT_TRANSLATE_NOOP("Texts", "Pomůcky"),
                                               QT_TRANSLATE_NOOP("Texts", "Odkazy")};

constexpr int kMostPortionDigits = 8;
constexpr int kProgressSteps = 1000;

}  // namespace

frmPrint::frmPrint(basSarne& sarne, Printer& printer, PrinterMemory memory)
    : Form(sarne, QStringLiteral("frmPrint")),
      printer_(printer),
      memory_(std::move(memory)),
      lblNadpis(*this, QStringLiteral("lblNadpis")),
      lblCo(*this, QStringLiteral("lblCo")),
      Frame1(*this, QStringLiteral("Frame1")),
      lblPorce(*this, QStringLiteral("lblPorce")),
      Text1(*this, QStringLiteral("Text1")),
      chkZobrKg(*this, QStringLiteral("chkZobrKg")),
      lblTiskarna(*this, QStringLiteral("lblTiskarna")),
      lblVysledek(*this, QStringLiteral("lblVysledek")),
      Label1(*this, QStringLiteral("Label1")),
      lblRecept(*this, QStringLiteral("lblRecept")),
      prgRecept(*this, QStringLiteral("prgRecept")),
      prgSeznam(*this, QStringLiteral("prgSeznam")),
      picStrana(*this, QStringLiteral("picStrana")),
      lblStrana(*this, QStringLiteral("lblStrana")),
      Timer1(this) {
    lblNadpis.place(at::kTitle);
    dressLabel(lblNadpis, printforms::kTitleFont, colors::kTitle, Texts::tr("Tisk"));
    lblCo.place(at::kMaterial);
    dressLabel(lblCo, printforms::kTextFont, colors::kPaper);
    makeOptions();
    makePrinterLine();
    makeProgress();
    makePreview();
    makeButtons();
    watchOptions();
}

/// Puts \a control into the frame of the options, which is disabled with all that is in it.
void frmPrint::putIntoFrame(Control& control, const QRect& place) {
    control.setParent(&Frame1);
    control.show();
    control.place(place);
}

void frmPrint::makeOptions() {
    Frame1.place(at::kFrame);
    Frame1.setTip(Texts::tr("Co se má tisknout"));
    Frame1.setToolTip({});
    auto* title = new Label(*this, QStringLiteral("lblCoTisknout"));
    dressLabel(*title, printforms::kButtonFont, colors::kInk, Texts::tr("Co se má tisknout"));
    putIntoFrame(*title, at::kFrameTitle);
    for (int i = 0; i < kPrintSections; ++i) {
        auto* box = Chco[size_t(i)] = new CheckBox(*this, QStringLiteral("Chco(%1)").arg(i));
        dressCheckBox(*box, app().resources(), Texts::tr(kSections[i]));
        box->setFont(printforms::kSmallFont);
        box->setChecked(true);
        QRect place = at::kFirstSection.translated(at::kSectionColumn * (i / at::kSectionRows),
                                                   at::kSectionRow * (i % at::kSectionRows));
        place.setRight(std::min(place.right(), at::kFrame.width() - at::kFirstSection.left() / 2));
        putIntoFrame(*box, place);
    }
    lblPorce.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    dressLabel(lblPorce, printforms::kTextFont, colors::kInk, Texts::tr("Počet porcí"));
    putIntoFrame(lblPorce, at::kPortionsTitle);
    Text1.setFont(printforms::kTextFont);
    Text1.setMaxLength(kMostPortionDigits);
    takeDecimalComma(Text1);
    Text1.setTip(Texts::tr("Počet porcí, 1 až 99"));
    putIntoFrame(Text1, at::kPortions);
    dressCheckBox(chkZobrKg, app().resources(), Texts::tr("Množství i v gramech"));
    chkZobrKg.setFont(printforms::kSmallFont);
    putIntoFrame(chkZobrKg, at::kWeights);
}

Button* frmPrint::makeButton(const QString& name, const QString& caption, const QString& tip,
                             const QRect& place) {
    auto* button = new Button(*this, name);
    button->dressAsText(caption, tip);
    button->place(place);
    return button;
}

void frmPrint::makePrinterLine() {
    lblTiskarna.place(at::kPrinter);
    lblTiskarna.setWordWrap(true);
    lblTiskarna.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    dressLabel(lblTiskarna, printforms::kSmallFont, colors::kInk);
    cmdTiskarna = makeButton(QStringLiteral("cmdTiskarna"), Texts::tr("Tiskárna ..."),
                             Texts::tr("Vybrat tiskárnu, papír a počet kopií"), at::kChoosePrinter);
    connect(cmdTiskarna, &Button::clicked, this, [this] { choosePrinter(); });
}

void frmPrint::makeProgress() {
    Label1.place(at::kStatus);
    dressLabel(Label1, printforms::kTextFont, colors::kTitle);
    lblRecept.place(at::kRecipeName);
    dressLabel(lblRecept, printforms::kTextFont, colors::kPaper);
    prgRecept.place(at::kRecipeBar);
    prgRecept.setTip(Texts::tr("Průběh tisku receptu"));
    prgRecept.setMaximum(kProgressSteps);
    prgSeznam.place(at::kListBar);
    prgSeznam.setTip(Texts::tr("Průběh tisku všech receptů"));
    lblVysledek.place(at::kOutcome);
    lblVysledek.setWordWrap(true);
    dressLabel(lblVysledek, printforms::kTextFont, colors::kTitle);
    cmdPrerus = makeButton(QStringLiteral("cmdPrerus"), Texts::tr("Přerušit tisk"),
                           Texts::tr("Přerušit tisk"), at::kStop);
    connect(cmdPrerus, &Button::clicked, this, [this] { askToStop(); });
    cmdOtevrit = makeButton(QStringLiteral("cmdOtevrit"), Texts::tr("Otevřít"),
                            Texts::tr("Otevřít vytištěný soubor"), at::kOpen);
    connect(cmdOtevrit, &Button::clicked, this, [this] { openFile(); });
    for (Control* control :
         std::initializer_list<Control*>{&Label1, &lblRecept, &prgRecept, &prgSeznam, cmdPrerus, cmdOtevrit})
        control->hide();
}

void frmPrint::makePreview() {
    picStrana.place(at::kSheet);
    picStrana.setTip(Texts::tr("Náhled strany; kliknutím se zvětší"));
    lblStrana.place(at::kPosition);
    lblStrana.setAlignment(Qt::AlignCenter);
    dressLabel(lblStrana, printforms::kTextFont, colors::kPaper);
    const QString captions[] = {QStringLiteral("◄"), QStringLiteral("►")};
    const QString tips[] = {Texts::tr("Předchozí strana"), Texts::tr("Další strana")};
    const QRect places[] = {at::kPrevious, at::kNext};
    for (int i = 0; i < 2; ++i) {
        cmdStrana[size_t(i)] =
            makeButton(QStringLiteral("cmdStrana(%1)").arg(i), captions[i], tips[i], places[i]);
        connect(cmdStrana[size_t(i)], &Button::clicked, this, [this, i] { turnTo(previewed_ + 2 * i - 1); });
    }
    connect(&picStrana, &Control::clicked, this, [this] { preview(); });
    connect(&picStrana, &PageSheet::turned, this, [this](int sheets) { turnTo(previewed_ + sheets); });
    connect(&Timer1, &Timer::tick, this, [this] { layOutMore(); });
}

/// Whatever is changed shows at once.
void frmPrint::watchOptions() {
    for (CheckBox* box : Chco) connect(box, &CheckBox::toggled, this, [this] { refreshPreview(); });
    connect(&chkZobrKg, &CheckBox::toggled, this, [this] { refreshPreview(); });
    connect(&Text1, &Edit::textChanged, this, [this] { refreshPreview(); });
}

void frmPrint::makeButtons() {
    Command1 = makeButton(QStringLiteral("Command1"), Texts::tr("Tisk"), Texts::tr("Začít tisk"), at::kPrint);
    cmdNahled = makeButton(QStringLiteral("cmdNahled"), Texts::tr("Náhled"),
                           Texts::tr("Ukázat strany tak, jak se vytisknou"), at::kPreview);
    Command2 =
        makeButton(QStringLiteral("Command2"), Texts::tr("Zavřít"), Texts::tr("Zavřít tisk"), at::kClose);
    connect(Command1, &Button::clicked, this, [this] { start(); });
    connect(cmdNahled, &Button::clicked, this, [this] { preview(); });
    connect(Command2, &Button::clicked, this, [this] { goBack(); });
    std::vector<TwipWidget*> stops(Chco.begin(), Chco.end());
    for (Control* control :
         std::initializer_list<Control*>{&Text1, &chkZobrKg, cmdTiskarna, cmdPrerus, cmdOtevrit, Command1,
                                         cmdNahled, Command2, cmdStrana[0], cmdStrana[1]})
        stops.push_back(control);
    ring().setStops(stops);
    ring().setArrows(FocusRing::Arrows::All);
    ring().startAt(Command1);
}

bool frmPrint::keyDown(QKeyEvent& event) {
    if (event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown) {
        turnTo(previewed_ + (event.key() == Qt::Key_PageDown ? 1 : -1));
        return true;
    }
    const bool enter = isEnter(event);
    if (Form::keyDown(event)) return true;
    if (enter && !printing_) start();
    return enter;
}

void frmPrint::paint(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
    for (const QRect& panel : {at::kLeftPanel, at::kRightPanel}) paintPanel(painter, panel);
    for (const QRect& paper : {at::kFrame, at::kPrinterPaper}) paintPaper(painter, paper);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
