#include <QMouseEvent>
#include <QPainter>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "screens/browse/frmsit.h"
#include "screens/browse/frmsit_layout.h"

// The grid's controls: how they are made, painted, and used with the mouse.
namespace sarne {
namespace {

constexpr int kLocked = 105;    // from the edge to the second line
constexpr int kCellFrame = 48;  // thickness of the frame of the chosen cell, twips

constexpr BarFace kBar[] = {
    {"Foto", QT_TRANSLATE_NOOP("Texts", "Foto"), QT_TRANSLATE_NOOP("Texts", "Zobrazí foto")},
    barface::kHelp,
    {"Recept", QT_TRANSLATE_NOOP("Texts", "Recept"), QT_TRANSLATE_NOOP("Texts", " Zobraz recept ")},
    barface::kBack,
    barface::kEnd};

}  // namespace

TextFont frmSit::nameFont() {
    return {QStringLiteral("Times New Roman"), 16, true};
}

frmSit::frmSit(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmSit")),
      imgCela(new Button(*this, QStringLiteral("imgCela"))),
      imgBtnHlavni(*this, QStringLiteral("imgBtnHlavni"), kBar,
                   [this](int index) { index == 0 ? showPhoto() : showRecipe(); }),
      Label1(*this, QStringLiteral("Label1")) {
    setAccessibleName(Texts::tr("Zobrazení fotografií"));
    setWindowTitle(Texts::tr("Zobrazení fotografií"));
    buildCells();
    buildGroups();
    setFocusOrder();
    Label1.place(sit::kName);
    Label1.setFont(nameFont());
    Label1.setColor(colors::kTitle);
    Label1.setAlignment(Qt::AlignCenter);
}

void frmSit::buildCells() {
    for (int cell = 1; cell <= kGridCells; ++cell) {
        auto* button = new Button(*this, QStringLiteral("imgFoto(%1)").arg(cell));
        button->place(gridCellRect(cell));
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &Control::hovered, this, [this, cell] { hoverOver(cell); });
        connect(button, &Control::clicked, this, [this, cell] { clickOn(cell); });
        connect(button, &Control::doubleClicked, this, [this, cell] {
            grid_.lock(cell);
            showChoice();
            showRecipe();
        });
        imgFoto.push_back(button);
    }
}

void frmSit::buildGroups() {
    for (int group = 0; group < kGridGroups; ++group) {
        auto* button = new Button(*this, QStringLiteral("imgSkupina(%1)").arg(group));
        button->place(sit::group(group));
        button->setFace(resources().picture(QStringLiteral("Skupina%1").arg(group)));
        button->setCaptionPlace(Button::CaptionPlace::Beside);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &Control::clicked, this, [this, group] { setGroup(group); });
        imgSkupina.push_back(button);
    }
    imgCela->place(sit::kWhole);
    imgCela->setCaption(Texts::tr("Všechny"));
    imgCela->setTip(Texts::tr("Zobrazí všechny recepty"));
    imgCela->setFocusPolicy(Qt::TabFocus);
    connect(imgCela, &Control::clicked, this, [this] { setGroup(PhotoGrid::kNoGroup); });
}

/// The groups, then the bar, then the cells, which are the form's own.
void frmSit::setFocusOrder() {
    for (int index = 0; index < imgBtnHlavni.count(); ++index) {
        imgBtnHlavni[index].place(sit::barButton(index));
        imgBtnHlavni[index].setFocusPolicy(Qt::TabFocus);
    }
    std::vector<TwipWidget*> stops(imgSkupina.begin(), imgSkupina.end());
    stops.push_back(imgCela);
    for (TwipWidget* stop : imgBtnHlavni.stops()) stops.push_back(stop);
    stops.push_back(this);
    ring().setStops(stops);
}

void frmSit::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    grid_.unlock();
    setGroup(PhotoGrid::kNoGroup);
    showChoice();
}

QRect frmSit::frameOf(int cell) {
    return gridCellRect(cell).adjusted(-kCellFrame, -kCellFrame, kCellFrame, kCellFrame);
}

void frmSit::paintGround(QPainter& painter) const {
    const QRect screen({0, 0}, twips().size());
    const Picture& composite = composites_[grid_.isWhole() ? size_t(kGridGroups) : size_t(grid_.group())];
    if (eyes().hasContrast())
        painter.fillRect(covered(), Qt::black);
    else
        app().Pictures.Sit.compose(painter, covered());
    composite.draw(painter, screen, Fit::Stretch);
    for (const QRect& plate : {sit::kGroupPlate, sit::kBarPlate}) paintPlate(painter, plate);
}

void frmSit::paint(QPainter& painter) {
    ground_.draw(painter, covered(), [this](QPainter& ground) { paintGround(ground); });
    if (!Label1.text().isEmpty()) paintPlate(painter, sit::kNamePlate);
    if (grid_.cell() == 0) return;
    const QRectF cell = QRectF(gridCellRect(grid_.cell())).adjusted(10, 10, -10, -10);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors::kNight, 2 * kCellFrame));
    painter.drawRoundedRect(cell, 60, 60);
    painter.setPen(QPen(grid_.isLocked() ? colors::kTitle : colors::kCopper, kCellFrame));
    painter.drawRoundedRect(cell, 60, 60);
    if (!grid_.isLocked()) return;
    // What is chosen for good has a second line within the first.
    painter.setPen(QPen(colors::kTitle, kCellFrame / 2.));
    painter.drawRoundedRect(cell.adjusted(kLocked, kLocked, -kLocked, -kLocked), 60, 60);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
