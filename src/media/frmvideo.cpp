#include "media/frmvideo.h"

#include <QKeyEvent>
#include <QPainter>

#include "core/texts.h"
#include "db/queries.h"
#include "forms/backgroundmusic.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/messagebox.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "platform/multimediacontrol.h"

namespace sarne {
namespace {

const TextFont kChapterFont{QStringLiteral("Arial"), 10}, kStatusFont{QStringLiteral("Arial"), 9};
const TextFont kTimeFont{QStringLiteral("Arial"), 12};
const TextFont kTitleFont{QStringLiteral("Arial"), 12, true};

// The film, and below it, as wide, a plate: title, chapter, state and time, the bar, the buttons.
constexpr QRect kArea(1400, 105, 9200, 6900);
constexpr QRect kWholeScreen(0, 0, 12000, 9000);
constexpr QRect kBarPlate(1400, 7065, 9200, 1860);
constexpr QRect kTitle(1600, 7125, 3500, 390);
constexpr QRect kChapter(5150, 7125, 2700, 390);
constexpr QRect kStatus(7850, 7110, 1280, 420);
constexpr QRect kOpening(5200, 7125, 5200, 390);  // of the longer state before a film plays
constexpr QRect kTime(9130, 7125, 1300, 390);
constexpr QRect kBar(1600, 7530, 8800, 330);
constexpr QRect kButtons(1470, 7905, 8200, 975);
constexpr QRect kBackButton(9740, 7905, 760, 975);
constexpr int kLightsOut = 215;  // how dark the room is around a film on the whole screen, of 255

constexpr int kStartDelay = 10;     // milliseconds: the form is on the screen before the file is opened
constexpr int kProgressStep = 200;  // milliseconds
constexpr double kSlowSpeed = .5;
constexpr qint64 kJump = 5000;  // milliseconds

// The sound button's face and tip follow its switch.
constexpr BarFace kFaces[] = {
    {"ZvukOn", QT_TRANSLATE_NOOP("Texts", "Zvuk"), QT_TRANSLATE_NOOP("Texts", "Vypnout zvuk")},
    {"Hrat", QT_TRANSLATE_NOOP("Texts", "Přehrát")},
    {"Stop", QT_TRANSLATE_NOOP("Texts", "Stop"), QT_TRANSLATE_NOOP("Texts", "Konec")},
    {"Pauza", QT_TRANSLATE_NOOP("Texts", "Pauza")},
    {"NaZacatek", QT_TRANSLATE_NOOP("Texts", "Na začátek"), QT_TRANSLATE_NOOP("Texts", "Skok na začátek")},
    {"NaKonec", QT_TRANSLATE_NOOP("Texts", "Na konec"), QT_TRANSLATE_NOOP("Texts", "Skok na konec")}};
constexpr BarFace kSoundIsOff{"ZvukOff", QT_TRANSLATE_NOOP("Texts", "Zvuk"),
                              QT_TRANSLATE_NOOP("Texts", "Zapnout zvuk")};
constexpr BarFace kChapterFaces[] = {
    {"KapZpet", QT_TRANSLATE_NOOP("Texts", "Předchozí"), QT_TRANSLATE_NOOP("Texts", "Předchozí kapitola")},
    {"Znovu", QT_TRANSLATE_NOOP("Texts", "Ještě jednou"),
     QT_TRANSLATE_NOOP("Texts", "Kapitolu ještě jednou")},
    {"KapDal", QT_TRANSLATE_NOOP("Texts", "Další"), QT_TRANSLATE_NOOP("Texts", "Další kapitola")},
    {"Pomalu", QT_TRANSLATE_NOOP("Texts", "Pomalu"),
     QT_TRANSLATE_NOOP("Texts", "Přehrávat poloviční rychlostí")}};
constexpr BarFace kBack[] = {barface::kBack};

QString clockText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

void dress(Label& label, const QRect& place, const TextFont& font, Qt::Alignment side = Qt::AlignLeft) {
    label.setFont(font);
    label.setColor(colors::kTitle);
    label.setAlignment(side | Qt::AlignVCenter);
    label.place(place);
}

}  // namespace

frmVideo::frmVideo(basSarne& sarne, std::unique_ptr<MultimediaControl> player)
    : Form(sarne, QStringLiteral("frmVideo")),
      MMControlVideo(std::move(player)),
      area_(*this, QStringLiteral("picVideo"), MMControlVideo.get()),
      title_(*this, QStringLiteral("lblNazev")),
      Label1(*this, QStringLiteral("Label1")),
      time_(*this, QStringLiteral("lblCas")),
      chapter_(*this, QStringLiteral("lblKapitola")),
      bar_(*this, QStringLiteral("prgPozice")),
      ImgTlacitko(*this, QStringLiteral("ImgTlacitko"), kFaces, [this](int index) { press(index); }),
      imgKapitola(*this, QStringLiteral("imgKapitola"), kChapterFaces,
                  [this](int index) { pressChapter(index); }),
      imgBtn(*this, QStringLiteral("imgBtn"), kBack, {}),
      tmrStart(this),
      progress_(this) {
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    area_.place(kArea);
    Label1.setWordWrap(true);
    dress(Label1, kOpening, kStatusFont);
    dress(title_, kTitle, kTitleFont);
    dress(time_, kTime, kTimeFont, Qt::AlignRight);
    dress(chapter_, kChapter, kChapterFont);
    bar_.place(kBar);
    placeButtons();
    connect(&area_, &VideoArea::doubleClicked, this, &frmVideo::toggleFullScreen);
    connect(&bar_, &SeekBar::sought, this, &frmVideo::seek);
    connect(&tmrStart, &Timer::tick, this, &frmVideo::start);
    progress_.setInterval(kProgressStep);
    connect(&progress_, &Timer::tick, this, &frmVideo::showProgress);
    if (MMControlVideo) connect(MMControlVideo.get(), &MultimediaControl::done, this, &frmVideo::ended);
}

frmVideo::~frmVideo() = default;

/// Left to right as they are used: the film, its places from the beginning to the end, how it plays. Each as
/// wide as its name asks.
void frmVideo::placeButtons() {
    const std::pair<Button*, int> order[] = {{&ImgTlacitko[kPlay], 745},        {&ImgTlacitko[kPause], 740},
                                             {&ImgTlacitko[kStop], 740},        {&ImgTlacitko[kPrev], 940},
                                             {&imgKapitola[kChapterBack], 860}, {&imgKapitola[kAgain], 1060},
                                             {&imgKapitola[kChapterOn], 740},   {&ImgTlacitko[kNext], 850},
                                             {&imgKapitola[kSlow], 760},        {&ImgTlacitko[kSound], 740}};
    std::vector<TwipWidget*> stops;
    int left = kButtons.left();
    for (const auto& [button, width] : order) {
        button->place({left, kButtons.top(), width, kButtons.height()});
        left += width;
        stops.push_back(button);
    }
    imgBtn[0].place(kBackButton);
    stops.push_back(&imgBtn[0]);
    ring().setStops(stops);
}

void frmVideo::Zobraz(std::int16_t number) {
    if (app().ShowMode) app().SoundFlags[kVideoSound] = true;
    stopMusic();
    title_.setText(queries::filmTitle(app().Db(), number));
    Label1.setText(Texts::tr("Chvilku prosím počkejte, otevírám soubor s videem...."));
    applySound();
    app().PushScreen(*this);
    number_ = number;
    if (MMControlVideo)
        MMControlVideo->setFileName(fileForPlayer(app(), QStringLiteral("VIDEO\\%1.AVI").arg(number)));
    tmrStart.setInterval(kStartDelay);
    tmrStart.setEnabled(true);
    showForm();
    setAccessibleName(title_.text());
    app().HookMessage(Texts::tr("Film: %1").arg(title_.text()));
    ring().focus(ImgTlacitko[kPlay]);
    app().keepAwake(Texts::tr("Přehrává se video"));
}

/// Also a music that is still being opened, which would start over the film.
void frmVideo::stopMusic() {
    if (app().SoundFlags[kMusic]) app().music().command(u"stop");
}

/// Back from the settings or a help page: the music waits on, the film's sound follows its switch.
void frmVideo::restored() {
    stopMusic();
    applySound();
    Form::restored();
}

void frmVideo::start() {
    tmrStart.setEnabled(false);
    if (!MMControlVideo) return Skryj();
    stopMusic();
    readChapters();
    MMControlVideo->setWait(MediaWait::DontWait);
    MMControlVideo->setNotify(MediaNotify::On);
    MMControlVideo->command(u"open");
    if (MMControlVideo->error() > 0) return showError();
    Label1.setText(Texts::tr("Soubor otevřen, začínám přehrávat ...."));
    MMControlVideo->command(u"play");
    if (MMControlVideo->error() > 0) return showError();
    setPlaying(true);
    progress_.setEnabled(true);
}

void frmVideo::showError() {
    const QString text = MMControlVideo->errorMessage();
    const QPointer<frmVideo> self(this);
    app().ZobrazZpravu(text, kErrorBox);
    if (self) Skryj();
}

void frmVideo::setPlaying(bool playing) {
    if (playing) {
        Label1.setText(Texts::tr("Přehrávám"));
        Label1.place(kStatus);
    }
    ImgTlacitko[kPlay].setLatched(playing);
    ImgTlacitko[kPause].setLatched(false);
}

/// A clip that turns out to be none while it is being opened ends in a failure.
void frmVideo::ended(int code) {
    if (!closed_ && code == int(MediaDone::Failed)) return showError();
    if (closed_ || MMControlVideo->mode() == MediaMode::Playing) return;
    Label1.setText(Texts::tr("Přehrávání skončeno"));
    setPlaying(false);
    sayState();
}

void frmVideo::press(int index) {
    if (!MMControlVideo) return;
    switch (index) {
        case kSound:
            return toggleSound();
        case kPlay:
            MMControlVideo->command(u"prev");
            MMControlVideo->command(u"play");
            return setPlaying(true);
        case kStop:
            MMControlVideo->command(u"stop");
            Label1.setText(Texts::tr("Zastaveno"));
            setPlaying(false);
            return sayState();
        case kPause:
            return pause();
        case kPrev:
        case kNext:
            MMControlVideo->command(index == kPrev ? u"prev" : u"next");
            Label1.setText(index == kPrev ? Texts::tr("Na začátku") : Texts::tr("Na konci"));
            setPlaying(false);
            return sayState();
        default:
            return;
    }
}

void frmVideo::readChapters() {
    chapters_ = Chapters::read(app().mediaFile(QStringLiteral("VIDEO\\%1.KAP").arg(number_)));
    bar_.setChapters(chapters_);
    for (const int step : {kChapterBack, kChapterOn}) imgKapitola[step].setEnabled(!chapters_.isEmpty());
}

void frmVideo::showProgress() {
    const qint64 position = MMControlVideo->position();
    bar_.show(position, MMControlVideo->length());
    time_.setText(clockText(position) + QStringLiteral(" / ") + clockText(MMControlVideo->length()));
    chapter_.setText(chapters_.titleAt(position));
    bar_.setAccessibleDescription(time_.text());
}

void frmVideo::pressChapter(int index) {
    if (!MMControlVideo) return;
    const qint64 position = MMControlVideo->position();
    switch (index) {
        case kChapterBack:
            return seek(chapters_.previous(position));
        case kAgain:
            return seeAgain();
        case kChapterOn:
            return seek(chapters_.next(position, MMControlVideo->length()));
        case kSlow:
            return toggleSpeed();
        default:
            return;
    }
}

/// The chapter once more, whatever the film was doing; without chapters the whole film.
void frmVideo::seeAgain() {
    if (MMControlVideo->mode() == MediaMode::NotOpen) return;
    seek(chapters_.again(MMControlVideo->position()));
    if (MMControlVideo->mode() != MediaMode::Playing) MMControlVideo->command(u"play");
    setPlaying(true);
}

void frmVideo::toggleSpeed() {
    slow_ = !slow_;
    MMControlVideo->setSpeed(slow_ ? kSlowSpeed : 1);
    imgKapitola[kSlow].setLatched(slow_);
}

void frmVideo::pause() {
    const MediaMode before = MMControlVideo->mode();
    MMControlVideo->command(u"pause");
    if (before != MediaMode::Paused && before != MediaMode::Playing) return;
    setPlaying(before == MediaMode::Paused);
    if (before == MediaMode::Paused) return sayState();
    ImgTlacitko[kPause].setLatched(true);
    Label1.setText(Texts::tr("Pozastaveno"));
    sayState();
}

/// What the film does now, and where in it.
void frmVideo::sayState() {
    app().HookMessage(Label1.text());
}

void frmVideo::sayPlace() {
    const QStringList words{chapter_.text(), time_.text()};
    app().HookMessage(chapter_.text().isEmpty() ? time_.text() : words.join(QStringLiteral(", ")));
}

void frmVideo::toggleSound() {
    app().SoundFlags[kVideoSound] = !app().SoundFlags[kVideoSound];
    applySound();
}

void frmVideo::applySound() {
    const bool on = app().SoundFlags[kVideoSound];
    if (MMControlVideo) MMControlVideo->setSilent(on ? MediaSound::On : MediaSound::Silent);
    ImgTlacitko.setFace(kSound, on ? kFaces[kSound] : kSoundIsOff);
}

void frmVideo::seek(qint64 milliseconds) {
    if (MMControlVideo && MMControlVideo->mode() != MediaMode::NotOpen)
        MMControlVideo->setPosition(milliseconds);
    if (!progress_.isEnabled()) return;
    showProgress();
    sayPlace();
}

void frmVideo::jump(qint64 milliseconds) {
    if (MMControlVideo) seek(MMControlVideo->position() + milliseconds);
}

void frmVideo::toggleFullScreen() {
    wholeScreen_ = !wholeScreen_;
    area_.place(wholeScreen_ ? kWholeScreen : kArea);
    wholeScreen_ ? area_.raise() : area_.lower();
    update();
}

void frmVideo::Skryj() {
    if (closed_) return;
    app().PopScreen(*this);
}

void frmVideo::unload() {
    if (!closed_) {
        closed_ = true;
        tmrStart.setEnabled(false);
        if (app().SoundFlags[kMusic]) app().music().command(u"play");
        if (MMControlVideo) MMControlVideo->command(u"stop");
        if (MMControlVideo) MMControlVideo->command(u"close");
        app().keepAwake({});
    }
    Form::unload();
}

/// The keys that steer the film.
bool frmVideo::mediaKey(int key) {
    if (!MMControlVideo) return false;
    switch (key) {
        case Qt::Key_Space:
            return pause(), true;
        case Qt::Key_Left:
            return jump(-kJump), true;
        case Qt::Key_Right:
            return jump(kJump), true;
        case Qt::Key_PageUp:
            return pressChapter(kChapterBack), true;
        case Qt::Key_PageDown:
            return pressChapter(kChapterOn), true;
        case Qt::Key_J:
            return pressChapter(kAgain), true;
        case Qt::Key_P:
            return pressChapter(kSlow), true;
        default:
            return false;
    }
}

bool frmVideo::keyDown(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            if (wholeScreen_)
                toggleFullScreen();
            else
                Skryj();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Enter presses the button that shows the focus; while none does, it fills the screen with the
            // video and back.
            if (focusMoved_ && !wholeScreen_) return ring().keyDown(event);
            toggleFullScreen();
            return true;
        default:
            if (mediaKey(event.key())) return true;
            focusMoved_ |= event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab ||
                           event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
            return ring().keyDown(event);
    }
}

void frmVideo::paint(QPainter& painter) {
    paintRoom(painter, app().Pictures.video);
    if (!wholeScreen_) return paintPlate(painter, kBarPlate);
    QColor dark = colors::kNight;
    dark.setAlpha(kLightsOut);
    painter.fillRect(covered(), dark);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
