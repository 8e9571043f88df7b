#include "print/frmnahled.h"

#include <QKeyEvent>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "print/formparts.h"
#include "print/printdialog.h"

namespace sarne {
namespace {

constexpr QRect kPanel(120, 90, 11760, 8820);
constexpr QRect kSheet(240, 180, 9120, 8640);
constexpr QRect kPosition(9540, 420, 2220, 600);
constexpr int kScrollStep = 600;

enum ButtonIndex { kPrevious, kNext, kZoom, kClose };
constexpr TextFace kFaces[] = {{QT_TRANSLATE_NOOP("Texts", "◄ Předchozí"),
                                QT_TRANSLATE_NOOP("Texts", "Předchozí strana"),
                                {9540, 1260, 2220, 600}},
                               {QT_TRANSLATE_NOOP("Texts", "Další ►"),
                                QT_TRANSLATE_NOOP("Texts", "Další strana"),
                                {9540, 2010, 2220, 600}},
                               {QT_TRANSLATE_NOOP("Texts", "Zvětšit"),
                                QT_TRANSLATE_NOOP("Texts", "Zvětšit nebo zmenšit stranu"),
                                {9540, 3060, 2220, 600}},
                               {QT_TRANSLATE_NOOP("Texts", "Zpět"),
                                QT_TRANSLATE_NOOP("Texts", "Zpět k tisku"),
                                {9540, 8040, 2220, 600}}};

}  // namespace

frmNahled::frmNahled(basSarne& sarne, std::unique_ptr<PagePreview> preview)
    : Form(sarne, QStringLiteral("frmNahled")),
      preview_(std::move(preview)),
      picStrana(*this, QStringLiteral("picStrana")),
      lblStrana(*this, QStringLiteral("lblStrana")),
      Timer1(this) {
    picStrana.place(kSheet);
    picStrana.setTip(Texts::tr("Náhled strany"));
    lblStrana.place(kPosition);
    dressLabel(lblStrana, printforms::kTextFont, colors::kTitle);
    lblStrana.setAlignment(Qt::AlignCenter);
    makeButtons(*this, QStringLiteral("cmdStrana"), kFaces, cmdStrana, [this](int i) { command(i); });
    // The sheet is the form's own stop.
    ring().setStops({this, cmdStrana[kPrevious], cmdStrana[kNext], cmdStrana[kZoom], cmdStrana[kClose]});
    connect(&picStrana, &Control::clicked, this, [this] { zoom(); });
    connect(&picStrana, &PageSheet::turned, this, [this](int sheets) { go(current_ + sheets); });
    connect(&Timer1, &Timer::tick, this, [this] { layOutMore(); });
}

void frmNahled::command(int button) {
    switch (button) {
        case kPrevious:
        case kNext:
            go(current_ + (button == kNext ? 1 : -1));
            return;
        case kZoom:
            return zoom();
        case kClose:
            return goBack();
    }
}

void frmNahled::Zobraz(int sheet) {
    while (preview_->sheetCount() <= sheet && preview_->layOutMore()) {
    }
    go(sheet);
    Timer1.setInterval(0);
    Timer1.setEnabled(!preview_->isComplete());
    app().PushScreen(*this);
    showForm();
}

void frmNahled::goBack() {
    Timer1.setEnabled(false);
    app().PopScreen(*this);
}

void frmNahled::layOutMore() {
    if (!preview_->layOutMore()) Timer1.setEnabled(false);
    showPosition();
}

bool frmNahled::go(int sheet) {
    const int before = current_;
    current_ = qBound(0, sheet, qMax(0, preview_->sheetCount() - 1));
    picStrana.showSheet(*preview_, current_);
    showPosition();
    return current_ != before;
}

bool frmNahled::swiped(int direction) {
    return go(current_ + direction);
}

void frmNahled::showPosition() {
    const int count = preview_->sheetCount();
    const QString more = preview_->isComplete() ? QString() : QStringLiteral(" ...");
    const QString place =
        preview_->onSheet().count() > 1 ? Texts::tr("List %1 z %2") : Texts::tr("Strana %1 z %2");
    lblStrana.setText(count == 0 ? Texts::tr("Není co tisknout") : place.arg(current_ + 1).arg(count) + more);
    cmdStrana[kPrevious]->setEnabled(current_ > 0);
    cmdStrana[kNext]->setEnabled(current_ + 1 < count);
}

void frmNahled::zoom() {
    picStrana.setZoomed(!picStrana.isZoomed());
    cmdStrana[kZoom]->setCaption(picStrana.isZoomed() ? Texts::tr("Zmenšit") : Texts::tr("Zvětšit"));
}

bool frmNahled::scrollKey(int key) {
    if (key == Qt::Key_Up) return picStrana.scrollBy(-kScrollStep) || picStrana.isZoomed();
    if (key == Qt::Key_Down) return picStrana.scrollBy(kScrollStep) || picStrana.isZoomed();
    return false;
}

bool frmNahled::keyDown(QKeyEvent& event) {
    if (scrollKey(event.key())) return true;
    switch (event.key()) {
        case Qt::Key_Escape:
            goBack();
            return true;
        case Qt::Key_Down:
            return go(current_ + 1);  // behind the last page come the buttons
        case Qt::Key_PageUp:
        case Qt::Key_Left:
        case Qt::Key_Up:
            go(current_ - 1);
            return true;
        case Qt::Key_PageDown:
        case Qt::Key_Right:
            go(current_ + 1);
            return true;
        case Qt::Key_Home:
            go(0);
            return true;
        case Qt::Key_End:
            go(preview_->sheetCount() - 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (!ring().keyDown(event)) zoom();
            return true;
        default:
            return ring().keyDown(event);
    }
}

void frmNahled::paint(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
    paintPanel(painter, kPanel);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
