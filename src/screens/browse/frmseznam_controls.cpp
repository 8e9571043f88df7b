#include <QKeyEvent>
#include <QPainter>
#include <QSet>
#include <QWheelEvent>
#include <algorithm>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/holdrepeat.h"
#include "forms/keys.h"
#include "forms/ninepatch.h"
#include "forms/resources.h"
#include "screens/browse/frmseznam.h"
#include "screens/browse/frmseznam_layout.h"

// The list's controls: how they are made, painted, and moved with the keyboard.
namespace sarne {
namespace {

constexpr int kHoldInterval = 50;  // milliseconds between the steps of a held arrow

constexpr int kPlateBorder = 130;  // thickness of a button plate's edge, twips

const TextFont kTitleFont{QStringLiteral("Times New Roman"), 22, true};
const TextFont kPositionFont{QStringLiteral("Arial"), 16};
const TextFont kRowFont{QStringLiteral("Arial"), 14}, kLargeRowFont{QStringLiteral("Arial"), 18};
const TextFont kHintFont{QStringLiteral("Arial"), 11};

constexpr BarFace kActions[] = {
    {"Foto", QT_TRANSLATE_NOOP("Texts", "Foto"), QT_TRANSLATE_NOOP("Texts", "Zobrazí malé foto")},
    {"Vino", QT_TRANSLATE_NOOP("Texts", "Víno"), QT_TRANSLATE_NOOP("Texts", "Zobrazí vhodná vína")},
    {"Recept", QT_TRANSLATE_NOOP("Texts", "Recept"), QT_TRANSLATE_NOOP("Texts", "Otevře recept")}};
constexpr BarFace kOpenPage{"Help", QT_TRANSLATE_NOOP("Texts", "Otevřít"),
                            QT_TRANSLATE_NOOP("Texts", "Otevře stránku nápovědy")};
constexpr BarFace kBar[] = {barface::kPrint, barface::kHelp, barface::kBack, barface::kEnd, barface::kMusic};

}  // namespace

frmSeznam::frmSeznam(basSarne& sarne, Panel* panel)
    : Form(sarne, QStringLiteral("frmSeznam")),
      panelMode_(panel ? *panel : Panel::Photo),
      keptPanel_(panel),
      lblNadpis(*this, QStringLiteral("lblNadpis")),
      lblPozice(*this, QStringLiteral("lblPozice")),
      lblHint(*this, QStringLiteral("lblHint")),
      list_(*this, QStringLiteral("lstSeznam"), QAccessible::List),
      imgJablko(*this, QStringLiteral("imgJablko")),
      picFoto(*this, QStringLiteral("picFoto")),
      lblVino(*this, QStringLiteral("lblVino")),
      imgBtn(*this, QStringLiteral("imgBtn"), kActions, [this](int index) { action(index); }),
      imgBtnHlavni(*this, QStringLiteral("imgBtnHlavni"), kBar, [this](int) { printEntries(); }) {
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    buildList();
    buildPanel();
    imgBtnHlavni.placeRow(seznam::kBar);
    setFocusOrder();
}

// --- making them

void frmSeznam::buildList() {
    lblNadpis.place(seznam::kTitle);
    lblNadpis.setFont(kTitleFont);
    lblNadpis.setColor(colors::kTitle);
    lblNadpis.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblHint.place(seznam::kHint);
    lblHint.setFont(kHintFont);
    lblHint.setColor(colors::kPaper);
    lblHint.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblPozice.place(seznam::kPosition);
    lblPozice.setFont(kPositionFont);
    lblPozice.setColor(colors::kTitle);
    lblPozice.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int row = 1; row <= seznam::kRows; ++row) connectRow(row);
    imgJablko.place(seznam::apple(1));
    imgJablko.setPicture(app().resources().picture(QStringLiteral("Jablko")));
    imgJablko.setAttribute(Qt::WA_TransparentForMouseEvents);
    imgJablko.setUnheard(true);
    lblPozice.setUnheard(true);
    list_.place(seznam::kSheet);
    for (int arrow = 0; arrow < seznam::kArrows; ++arrow) connectArrow(arrow);
}

void frmSeznam::connectRow(int row) {
    auto* label = new Label(*this, QStringLiteral("lblSeznam(%1)").arg(row));
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setWordWrap(true);
    label->setUnheard(true);
    connect(label, &Control::clicked, this, [this, row] { selectRow(row); });
    connect(label, &Control::doubleClicked, this, [this, row] {
        if (pages_.selectedRow() == row) action(2);
    });
    lblSeznam.push_back(label);
}

void frmSeznam::placeRows() {
    takeCards();
    const bool large = pages_.count() <= seznam::kRows / 2;
    pitch_ = !cards_.empty() ? seznam::kCardPitch
             : large         ? seznam::kLargePitch
                             : seznam::kRows * seznam::kPitch / shownRows();
    const TextFont& font = large ? kLargeRowFont : kRowFont;
    for (int number = 1; number <= seznam::kRows; ++number) {
        Label& label = *lblSeznam[size_t(number - 1)];
        const QRect bar = seznam::rowBar(number, pitch_);
        label.place(bar);
        const int before = seznam::row(number, pitch_).x() - bar.x();
        label.setMargins(cards_.empty() ? before : seznam::cardPhoto(1).right() + before - bar.x(), 0);
        label.setFont(font);
        label.setVisible(number <= shownRows() && seznam::kSheet.contains(bar));
    }
}

/// The photos of a list that would leave most of the sheet blank, where each of its dishes has its own.
void frmSeznam::takeCards() {
    cards_.clear();
    if (source_ == Source::Help || entries_.size() > seznam::kCards) return;
    QSet<int> shown;
    for (const ListEntry& entry : entries_)
        if (Picture photo = Picture::fromFile(smallPhotoFile(entry)); !photo.isNull()) {
            cards_.push_back(photo);
            shown << entry.target;
        }
    if (static_cast<size_t>(shown.size()) < entries_.size()) cards_.clear();
}

void frmSeznam::connectArrow(int arrow) {
    static constexpr const char* kFaces[] = {"SipkaDolu", "SipkaNahoru", "SipkaNahoruRychle",
                                             "SipkaDoluRychle"};
    static constexpr const char* kWords[] = {"▼", "▲", "▲▲", "▼▼"};
    static const QString kTips[] = {Texts::tr("O řádek dolů"), Texts::tr("O řádek nahoru"),
                                    Texts::tr("O půl strany nahoru"), Texts::tr("O půl strany dolů")};
    auto* button = new Button(*this, QStringLiteral("imgSipky(%1)").arg(arrow));
    button->place(seznam::arrow(arrow));
    const Picture face = resources().picture(QLatin1String(kFaces[arrow]));
    button->setFace(face);
    if (face.isNull()) button->setCaption(QString::fromUtf8(kWords[arrow]));
    button->setTip(kTips[arrow]);
    button->setFocusPolicy(Qt::NoFocus);
    const auto step = [this, arrow] {
        return arrow == 0 ? 1 : arrow == 1 ? -1 : pages_.halfPage(arrow == 2 ? -1 : 1);
    };
    auto* held = new HoldRepeat(*button, [this, step] { scroll(step()); });
    held->setInterval(kHoldInterval);
    imgSipky.push_back(button);
}

void frmSeznam::buildPanel() {
    picFoto.place(seznam::kPhoto);
    connect(&picFoto, &Control::clicked, this, [this] {
        if (panelMode_ == Panel::Photo && selectedEntry()) showPhotos(false);
    });
    lblVino.setWordWrap(true);
    lblVino.hide();
    for (int index = 0; index < seznam::kActions; ++index) {
        auto* plate = new PictureBox(*this, QStringLiteral("ImgTlacitko(%1)").arg(index));
        plate->setAttribute(Qt::WA_TransparentForMouseEvents);
        plate->setUnheard(true);
        plate->stackUnder(&imgBtn[0]);
        plate->addPainted(
            [picture = app().resources().picture(QStringLiteral("Tlacitko"))](
                QPainter& painter, const QRect& all) { drawNinePatch(painter, picture, all, kPlateBorder); },
            seznam::actionPlate(0).height());
        ImgTlacitko.push_back(plate);
    }
}

void frmSeznam::setFocusOrder() {
    std::vector<TwipWidget*> stops = imgBtn.stops();
    for (TwipWidget* stop : imgBtnHlavni.stops()) stops.push_back(stop);
    ring().setStops(stops);
    ring().setArrows(FocusRing::Arrows::Sideways);
}

void frmSeznam::showButtonsOfSource() {
    const bool help = source_ == Source::Help;
    const QString what = help                         ? Texts::tr("Nápověda")
                         : source_ == Source::Recipes ? QStringLiteral("Recepty")
                                                      : Texts::tr("Rychlé recepty");
    lblNadpis.setText(subject_.isEmpty() ? what : what + QStringLiteral(" – ") + subject_);
    setAccessibleName(lblNadpis.text());
    list_.setAccessibleName(lblNadpis.text());
    const bool shown[] = {source_ == Source::Recipes, !help, true};
    const int count = int(std::count(std::begin(shown), std::end(shown), true));
    int place = 0;
    for (int index = 0; index < seznam::kActions; ++index) {
        imgBtn[index].setVisible(shown[index]);
        ImgTlacitko[size_t(index)]->setVisible(shown[index]);
        if (!shown[index]) continue;
        imgBtn[index].place(seznam::action(place, count));
        ImgTlacitko[size_t(index)]->place(seznam::actionPlate(place++, count));
    }
    lblHint.setText(
        help ? Texts::tr("Písmeno najde název, Enter otevře stránku.")
             : Texts::tr("Písmeno najde název, mezerník promítá. Tabulátorem na Recept, Enter ho otevře."));
    imgBtn.setFace(2, help ? kOpenPage : kActions[2]);
    setPanel(panelMode_);
}

// --- painting

void frmSeznam::paint(QPainter& painter) {
    ground_.draw(painter, covered(), [this](QPainter& ground) { paintGround(ground); });
    painter.setPen(Qt::NoPen);
    painter.setBrush(eyes().selected());
    if (markedRow_ > 0) painter.drawRoundedRect(seznam::rowBar(markedRow_, pitch_), 90, 90);
    for (size_t card = 0; card < cards_.size(); ++card)
        cards_[card].draw(painter, seznam::cardPhoto(static_cast<int>(card) + 1), Fit::Cover);
    painter.setBrush(colors::kCopper);
    if (pages_.scrolls()) painter.drawRoundedRect(thumb(), 55, 55);
}

void frmSeznam::paintGround(QPainter& painter) const {
    if (eyes().hasContrast())
        painter.fillRect(covered(), Qt::black);
    else
        app().Pictures.seznam.compose(painter, covered());
    if (app().Pictures.seznam.isNull() || eyes().hasContrast()) {
        for (const QRect& plate : {seznam::kHeader, seznam::kSide, seznam::kFoot}) paintPlate(painter, plate);
    }
    eyes().hasContrast() ? paintPaper(painter, seznam::kSheet) : paintSheet(painter, seznam::kSheet);
    paintPlate(painter, seznam::kPanel);
    if (!pages_.scrolls()) return;
    paintPlate(painter, seznam::kArrowPlate);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kNight);
    painter.drawRoundedRect(seznam::kTrack, 55, 55);
}

/// The part of the track that stands for the page.
QRectF frmSeznam::thumb() const {
    const double entry = double(seznam::kTrack.height()) / pages_.count();
    return {double(seznam::kTrack.x()), seznam::kTrack.y() + entry * pages_.top(),
            double(seznam::kTrack.width()), entry * pages_.rows()};
}

// --- the keyboard and the wheel

void frmSeznam::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (!pages_.scrolls()) return;
    if (const int steps = wheel_.take(*event)) scroll(steps);
}

bool frmSeznam::keyDown(QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    switch (event.key()) {
        case Qt::Key_Space:
            showPhotos(true);
            return true;
        case Qt::Key_F3:
            if (event.modifiers() & Qt::ShiftModifier) return false;
            buySelected();
            return true;
        default:
            return moveByKey(event.key()) || jumpToLetter(event) || Form::keyDown(event);
    }
}

bool frmSeznam::moveByKey(int key) {
    const int selected = pages_.selectedEntry();
    if (!moveInList(pages_, key)) return false;
    drawPage();
    if (pages_.selectedEntry() != selected) selectionChanged();
    return true;
}

bool frmSeznam::jumpToLetter(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.size() != 1 || !text[0].isLetter()) return false;
    if (event.key() == Qt::Key_C || event.key() == Qt::Key_X) return false;
    const int current = pages_.selectedEntry();
    const auto find = [&](const QString& letters) {
        const auto nameAt = [this](int at) { return entries_[size_t(at)].Nazev; };
        return findByLetters(static_cast<int>(entries_.size()), nameAt, current, letters);
    };
    int found = find(letters_.add(text[0], app().clock().now()));
    if (found < 0) found = find(letters_.restart());
    if (pages_.selectEntry(found)) selectionChanged();
    drawPage();
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
