#include "screens/navigation/frmhlavni.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "core/texts.h"
#include "core/unbreakable.h"
#include "forms/backgroundmusic.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "forms/stage.h"
#include "platform/multimediacontrol.h"
#include "screens/navigation/frmmenu.h"
#include "screens/navigation/menulevel.h"

namespace sarne {
namespace {

constexpr int kNone = -5;
constexpr int kFrameInterval = 100;           // milliseconds
constexpr int kLookAgain = 2000;              // milliseconds until it is seen that somebody is there again
constexpr double kName = 12, kLeastName = 9;  // points, where the things' names stand in their places
constexpr int kFirstEffect = 100;             // button i sounds effect i + 100

/// What button \a i is called: as the menu that it opens.
QString nameOf(Database& db, int i) {
    if (i == kExitButton) return Texts::tr("Konec");
    if (i == kMusicButton) return Texts::tr("Hudba a zvuky");
    return MenuLevel::build(db, QString::number(i)).name();
}

}  // namespace

frmHlavni::frmHlavni(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmHlavni")),
      current_(kNone),
      TmrPohyby(this),
      Label2(*this, QStringLiteral("Label2")),
      tmrSvetlo(this),
      tmrOzdoby(this) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    setAccessibleName(Texts::tr("Kuchyně"));
    TmrPohyby.setInterval(kFrameInterval);
    TmrPohyby.setTag(QStringLiteral("0"));
    connect(&TmrPohyby, &Timer::tick, this, &frmHlavni::tick);
    tmrSvetlo.setInterval(Sweep::kInterval);
    connect(&tmrSvetlo, &Timer::tick, this, &frmHlavni::stepSweep);
    connect(&tmrOzdoby, &Timer::tick, this, &frmHlavni::liveOn);
    Label2.setText(QStringLiteral("Velisa sarn"));
    Label2.setUnheard(true);  // the window is called so
    Label2.setFont({QStringLiteral("Times New Roman"), 15, true, true});
    Label2.setColor(colors::kTitle);
    Label2.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    Label2.setGround(QColor(11, 34, 38, 170));
    Label2.place({4800, 90, 2400, 420});
}

void frmHlavni::makeButton(int i) {
    auto* button = imgClick[size_t(i)] = new Button(*this, QStringLiteral("imgClick(%1)").arg(i));
    const ButtonPlace& place = table_[size_t(i)];
    button->setVisible(place.isShown());
    if (!place.isShown()) return;
    button->setTip(nameOf(app().Db(), i));
    if (eyes().hasContrast()) button->setToolTip({});  // its name is written in its place
    button->place(place.hotArea);
    connect(button, &Button::hovered, this, [this, i] { hover(i); });
    connect(button, &Button::clicked, this, [this, i] { clickButton(i); });
}

void frmHlavni::Zobraz() {
    app().FormStack.add(*this);
    current_ = kNone;
    table_ = buttonTable(app().resources().layout(QStringLiteral("hlavni")));
    for (int i = 0; i < kButtonCount; ++i) makeButton(i);
    showForm();
    tmrOzdoby.setInterval(kLookAgain);
    tmrOzdoby.setEnabled(true);
    menu_ = new frmMenu(app(), [this] { SkryjMenu(); });
    startMusic();
}

void frmHlavni::startMusic() {
    MultimediaControl& player = app().music();
    connect(&player, &MultimediaControl::done, this, &frmHlavni::playAgain);
    if (!app().SoundFlags[kMusic]) return;
    player.setFileName(musicTrack(app(), app().SoundFlags[kWineSounds]));
    player.setNotify(MediaNotify::Off);
    player.command(u"open");
    player.setNotify(MediaNotify::On);
    player.command(u"play");
}

void frmHlavni::playAgain(int code) {
    if (code != int(MediaDone::Successful)) return;
    app().music().setPosition(0);
    app().music().command(u"play");
}

void frmHlavni::hover(int i) {
    if (menuOpen_ || i == current_) return;
    if (current_ >= 0) endHover();
    current_ = i;
    if (app().SoundFlags[kEffects]) app().PlayEffect(i + kFirstEffect);
    if (current_ == i && eyes().isCalm()) return tick();  // its first picture, at rest
    TmrPohyby.setEnabled(current_ == i);  // the effect lets events run: the mouse may be gone already
}

void frmHlavni::endHover() {
    current_ = kNone;
    TmrPohyby.setEnabled(false);
    TmrPohyby.setTag(QStringLiteral("0"));
    shownFrame_ = 0;
    update();
    app().StopEffect();
}

void frmHlavni::mouseMoveEvent(QMouseEvent*) {
    if (!menuOpen_ && current_ >= 0) endHover();
}

const std::vector<Picture>& frmHlavni::frames(int i) {
    // Only those of the thing that moves: decoded, all together take more than the rest of the program.
    if (std::exchange(framesOf_, i) != i) frames_ = app().resources().animation(i);
    return frames_;
}

QRect frmHlavni::frameRect(int i) const {
    return {table_[size_t(i)].position, table_[size_t(i)].frame};
}

void frmHlavni::tick() {
    if (current_ < 0) return;
    const int count = int(frames(current_).size());
    int frame = TmrPohyby.tag().toInt() + 1;
    if (frame > count) frame = 1;
    shownFrame_ = count > 0 ? frame : 0;
    TmrPohyby.setTag(QString::number(frame));
    const QRect place = frameRect(current_);
    update(QRect(toPixels(place.topLeft()), toPixels(place.bottomRight())).adjusted(-2, -2, 2, 2));
}

/// What moves comes to rest.
void frmHlavni::eyesChanged() {
    // Where the things' names are written no plate is to cover them.
    for (Button* thing : imgClick)
        if (thing) thing->setToolTip(eyes().hasContrast() ? QString() : thing->accessibleName());
    if (!eyes().isCalm()) return;
    TmrPohyby.setEnabled(false);
    endSweep();
}

void frmHlavni::showThings() {
    if (eyes().isCalm()) return;
    sweep_.start(readingOrder(table_));
    tmrSvetlo.setEnabled(true);
}

void frmHlavni::stepSweep() {
    sweep_.step();
    if (!sweep_.isRunning()) tmrSvetlo.setEnabled(false);
    update();
}

void frmHlavni::endSweep() {
    if (!sweep_.isRunning()) return;
    sweep_.stop();
    stepSweep();
}

/// Whether what belongs to no button may move: somebody looks at the kitchen.
bool frmHlavni::mayMoveByItself() const {
    return !eyes().isCalm() && isVisible() && app().FormStack.top() == this && app().stage().isActiveWindow();
}

void frmHlavni::liveOn() {
    std::vector<QRectF> changed;
    const auto gather = [&] {
        for (int thing = 0; thing < Ornaments::kThings; ++thing)
            if (ornaments_.phase(Ornaments::Thing(thing)) >= 0)
                changed.push_back(Ornaments::place(Ornaments::Thing(thing)));
    };
    gather();  // also what comes to rest has to be painted once more
    const bool moves = mayMoveByItself();
    moves ? ornaments_.step() : ornaments_.rest();
    gather();
    for (const QRectF& place : changed)
        update(QRect(toPixels(place.topLeft().toPoint()), toPixels(place.bottomRight().toPoint())));
    const int wait = ornaments_.stepsUntilMove();
    if (moves && wait > 0) ornaments_.skip(wait - 1);
    tmrOzdoby.setInterval(moves ? std::max(1, wait) * Ornaments::kInterval : kLookAgain);
}

void frmHlavni::paintGlow(QPainter& painter, int thing) const {
    constexpr QColor kLight(255, 236, 170);
    const QRectF area = QRectF(table_[size_t(thing)].hotArea);
    const double radius = std::max(area.width(), area.height()) * .7;
    QRadialGradient light(area.center(), radius);
    QColor middle = kLight, edge = kLight;
    middle.setAlphaF(float(.7 * sweep_.glow(thing)));
    edge.setAlpha(0);
    light.setColorAt(0, middle);
    light.setColorAt(1, edge);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(area.center(), radius, radius);
}

void frmHlavni::clickButton(int i) {
    endSweep();
    current_ = i;
    lastClicked_ = i;
    if (i == kExitButton) return app().ConfirmExit();
    if (i == kMusicButton) return app().screens().showMusicSettings();
    unfoldMenu(i);
}

void frmHlavni::unfoldMenu(int i) {
    menuOpen_ = true;
    setPointer(Pointer::Back);
    enableControls(false);
    TmrPohyby.setEnabled(!eyes().isCalm());
    shownFrame_ = frames(i).empty() ? 0 : std::max(1, TmrPohyby.tag().toInt());
    update();
    menu_->unfold(QString::number(i), QRect(table_[size_t(i)].position, QSize(1, 1)));
}

void frmHlavni::SkryjMenu() {
    menuOpen_ = false;
    menu_->fold();
    if (current_ >= 0) endHover();
    if (app().FormStack.top() != this) return;
    enableControls(true);
    setPointer(Pointer::Normal);
    showForm();
    // Whoever goes on by keyboard goes on from where they were.
    if (lastClicked_ >= 0 && hasFocus()) imgClick[size_t(lastClicked_)]->setFocus(Qt::OtherFocusReason);
}

void frmHlavni::restored() {
    if (menuOpen_) return showMenuAgain();
    if (current_ >= 0) endHover();
    // Who came by keyboard goes on from where they were.
    if (lastClicked_ >= 0 && app().stage().keyboardInUse()) moveTo(lastClicked_);
}

/// A help page or the settings, opened from the menu, have closed.
void frmHlavni::showMenuAgain() {
    setPointer(Pointer::Back);
    enableControls(false);
    menu_->comeBack();
}

void frmHlavni::mousePressEvent(QMouseEvent*) {
    endSweep();
    if (!menuOpen_) return;
    SkryjMenu();
}

void frmHlavni::gotFocus() {
    if (app().FormStack.count() > 1) app().FormStack.top()->bringToFront();
}

int frmHlavni::keyboardButton() const {
    if (current_ >= 0) return current_;
    const auto focused = std::ranges::find_if(imgClick, [](const Button* b) { return b && b->hasFocus(); });
    return focused == imgClick.end() ? kNone : int(focused - imgClick.begin());
}

void frmHlavni::moveTo(int button) {
    if (button < 0) return;
    imgClick[size_t(button)]->setFocus(Qt::TabFocusReason);
    hover(button);
    ring().sayWithoutReader(imgClick[size_t(button)]->accessibleName());
}

void frmHlavni::handToMenu(QKeyEvent& event) {
    frmMenu* deepest = menu_;
    while (deepest->child()) deepest = deepest->child();
    deepest->bringToFront();
    QCoreApplication::sendEvent(deepest, &event);
}

bool frmHlavni::keyDown(QKeyEvent& event) {
    endSweep();
    if (menuOpen_) return handToMenu(event), true;
    const bool leaves = event.key() == Qt::Key_X || event.key() == Qt::Key_F4;
    if (leaves && (event.modifiers() & Qt::AltModifier)) return true;
    return buttonKey(event.key());
}

bool frmHlavni::buttonKey(int key) {
    const int here = keyboardButton();
    if (const auto direction = arrowDirection(key)) {
        moveTo(nearestButton(table_, here, *direction));
        return true;
    }
    switch (key) {
        case Qt::Key_Tab:
            moveTo(buttonInReadingOrder(table_, here, 1));
            return true;
        case Qt::Key_Backtab:
            moveTo(buttonInReadingOrder(table_, here, -1));
            return true;
        case Qt::Key_PageUp:
            moveTo(firstButton(table_));
            return true;
        case Qt::Key_PageDown:
            moveTo(lastButton(table_));
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (here >= 0) clickButton(here);
            return true;
        default:
            return false;
    }
}

/// The place of \a thing, wider and higher where its name has no room in \a font.
QRect frmHlavni::roomForName(const Button& thing, const TextFont& font) const {
    QRect room = thing.twips().adjusted(60, 30, -60, -30);
    int longest = 0;
    for (const QString& word : unbroken(thing.accessibleName()).split(u' '))
        longest = std::max(longest, Label::measure(word, font).width());
    const int missing = longest - room.width();
    if (missing > 0) room.adjust(-missing / 2 - 15, 0, missing / 2 + 15, 0);
    const int low = Label::measure(thing.accessibleName(), font, room.width()).height() - room.height();
    if (low > 0) room.adjust(0, -low / 2 - 15, 0, low / 2 + 15);
    const int right = std::max(0, room.right() + 1 - Stage::kWidth);
    return room.translated(std::max(0, -room.left()) - right, 0);
}

/// For eyes that need contrast: in the place of the picture the names of its things.
void frmHlavni::paintNames(QPainter& painter) const {
    painter.fillRect(covered(), Qt::black);
    painter.setPen(QPen(Qt::white, 30));
    std::vector<const Button*> things;
    std::ranges::copy_if(imgClick, std::back_inserter(things),
                         [](const Button* b) { return b && b->isVisible(); });
    const TextFont least{QStringLiteral("Arial"), kLeastName, true};
    for (const Button* thing : things)
        painter.drawRect(thing->twips().united(roomForName(*thing, least).adjusted(-60, -30, 60, 30)));
    for (const Button* thing : things) {
        constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
        const QString name = unbroken(thing->accessibleName());
        const QRect room = roomForName(*thing, least);
        const double growth =
            RoomToGrow().of(least, kName / kLeastName * textScale(), name, room.size(), kFlags);
        painter.setFont(larger(least, growth).toQFont());
        painter.fillRect(painter.boundingRect(room, kFlags, name), Qt::black);  // over a neighbour's frame
        painter.drawText(room, kFlags, name);
    }
}

void frmHlavni::paint(QPainter& painter) {
    if (eyes().hasContrast()) return paintNames(painter);
    paintRoom(painter, app().Pictures.hlavni);
    ornaments_.paint(painter, [this](QPainter& part) { paintRoom(part, app().Pictures.hlavni); });
    for (const int thing : sweep_.lit()) paintGlow(painter, thing);
    if (current_ < 0 || shownFrame_ == 0) return;
    const auto& pictures = frames(current_);
    if (size_t(shownFrame_) <= pictures.size())
        pictures[size_t(shownFrame_ - 1)].drawExactly(painter, frameRect(current_));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
