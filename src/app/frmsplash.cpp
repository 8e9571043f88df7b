#include "app/frmsplash.h"

#include <QEventLoop>
#include <QPainter>
#include <QPixmap>
#include <vector>

#include "app/displayquestions.h"
#include "app/program.h"
#include "app/rooms.h"
#include "core/texts.h"
#include "db/soundsettings.h"
#include "forms/colors.h"
#include "forms/label.h"
#include "forms/messagebox.h"
#include "media/videoarea.h"
#include "richtext/surface.h"

namespace sarne {
namespace {

const QString kTitle = QStringLiteral("Velisa sarn - Lumora");

/// An edge of the film that fades into the picture around it.
class SoftEdge final : public Control {
  public:
    static constexpr int kWidth = 300;  ///< twips

    /// \a room is what \a covered shows; the edge is the left or the right one.
    SoftEdge(Form& form, const Room& room, const QRectF& covered, bool left)
        : Control(form, QStringLiteral("okraj")), room_(room), covered_(covered), left_(left) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setUnheard(true);
        place({left ? 0 : basSarne::ScreenWidthTw - kWidth, 0, kWidth, basSarne::ScreenHeightTw});
    }

  protected:
    void paint(QPainter& painter) override {
        if (strip_.size() != size() * devicePixelRatioF()) compose();
        painter.drawPixmap(QRectF({0, 0}, QSizeF(twips().size())), strip_, strip_.rect());
    }

  private:
    void compose() {
        strip_ = QPixmap(size() * devicePixelRatioF());
        strip_.fill(Qt::transparent);
        QPainter inside(&strip_);
        inside.scale(strip_.width() / double(kWidth), strip_.height() / double(twips().height()));
        inside.translate(-twips().topLeft());
        room_.compose(inside, covered_);
        QLinearGradient fade(QPointF(twips().left(), 0), QPointF(twips().left() + kWidth, 0));
        fade.setColorAt(left_ ? 0 : 1, Qt::black);
        fade.setColorAt(left_ ? 1 : 0, Qt::transparent);
        inside.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        inside.fillRect(twips(), fade);
    }

    const Room& room_;
    QRectF covered_;
    bool left_;
    QPixmap strip_;
};

}  // namespace

frmSplash::frmSplash(Program& program) : Form(program, QStringLiteral("frmSplash")), program_(program) {
    setAccessibleName(kTitle);
    Room& room = app().Pictures.uvod;
    if (room.isNull())
        room = Room(app().resources().picture(QStringLiteral("uvod")), widePicture(app(), u"uvod"));
}

frmSplash::~frmSplash() {
    app().Pictures.uvod.forget();  // a screenful of pixels
}

void frmSplash::setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
}

bool frmSplash::Zobraz() {
    showForm();
    repaint();
    if (!checkDisplay() || !checkFonts()) return false;
    readRooms(app());
    playIntro();
    readSettings();
    return !closed_ && !app().Ending;
}

bool frmSplash::checkDisplay() {
    const QSize stored = storedResolution(program_.platform().settings);
    if (stored == kDesignResolution) return true;
    const QSize display = program_.platform().display.current();
    if (display.isEmpty()) return true;  // nothing is known, or nothing can be changed
    const QSize current = stored.isEmpty() ? display : stored;
    if (current == kDesignResolution) return true;
    switch (program_.ask(resolutionQuestion(current), kQuestionBox, kAnswerCancel)) {
        case kAnswerYes:
            if (program_.platform().display.setMode(kDesignResolution))
                program_.SavedDisplayMode = resolutionText(display);
            return true;
        case kAnswerNo:
            return program_.ask(resolutionWarning(), kQuestionBox, kAnswerCancel) != kAnswerNo;
        default:
            return true;
    }
}

bool frmSplash::checkFonts() {
    if (program_.platform().display.twipsPerPixel() == QSize(15, 15)) return true;
    return program_.ask(fontQuestion(), kQuestionBox, kAnswerCancel) != kAnswerNo;
}

void frmSplash::playIntro() {
    const QString file = app().mediaFile(QStringLiteral("video\\UVOD.AVI"));
    if (file.isEmpty() || !program_.platform().makePlayer) return;
    MMControl1 = program_.platform().makePlayer();
    MMControl1->setFileName(file);
    MMControl1->setWait(MediaWait::Wait);
    MMControl1->setNotify(MediaNotify::On);
    MMControl1->command(u"open");
    if (MMControl1->error() > 0) return;
    auto* Picture1 = new VideoArea(*this, QStringLiteral("Picture1"), MMControl1.get());
    Picture1->setAttribute(Qt::WA_TransparentForMouseEvents);
    Picture1->place({0, 0, basSarne::ScreenWidthTw, basSarne::ScreenHeightTw});
    std::vector<std::unique_ptr<SoftEdge>> edges;
    for (const bool left : {true, false})
        if (covered().width() > basSarne::ScreenWidthTw)
            edges.push_back(std::make_unique<SoftEdge>(*this, app().Pictures.uvod, covered(), left));
    const std::unique_ptr<Label> hint = skipHint();
    QEventLoop untilEnd;
    intro_ = &untilEnd;
    connect(MMControl1.get(), &MultimediaControl::done, this, &frmSplash::KonecVideo);
    setFocus();
    MMControl1->command(u"play");
    if (MMControl1->error() == 0 && intro_) untilEnd.exec();
    intro_ = nullptr;
    delete Picture1;
    MMControl1->setNotify(MediaNotify::Off);
    MMControl1->command(u"close");
}

std::unique_ptr<Label> frmSplash::skipHint() {
    auto hint = std::make_unique<Label>(*this, QStringLiteral("lblPreskocit"));
    hint->setText(Texts::tr("Esc přeskočí film"));
    hint->setFont({QStringLiteral("Arial"), 12});
    hint->setColor(colors::kTitle);
    hint->setGround(colors::kNight);
    hint->setAlignment(Qt::AlignCenter);
    hint->place({9450, 150, 2400, 420});
    return hint;
}

void frmSplash::closeRequested() {
    closed_ = true;
    KonecVideo();
}

void frmSplash::KonecVideo() {
    if (intro_) intro_->quit();
    intro_ = nullptr;
}

void frmSplash::Konec() {
    showForm();
    repaint();
    app().Yield();
}

void frmSplash::readSettings() {
    const std::vector<SoundSetting> settings = readSoundSettings(app().Db());
    for (size_t row = 0; row < std::min(app().SoundFlags.size(), settings.size()); ++row)
        app().SoundFlags[row] = settings[row].on;
}

bool frmSplash::keyDown(QKeyEvent&) {
    KonecVideo();  // any key
    return true;
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    KonecVideo();
}

void frmSplash::paint(QPainter& painter) {
    paintRoom(painter, caption_.isEmpty() ? app().Pictures.uvod : app().Pictures.konec);
    const auto write = [&](const QString& text, int points, const QRect& place) {
        painter.setFont(TextFont{QStringLiteral("Times New Roman"), double(points), true, true}.toQFont());
        painter.setPen(colors::kNight);
        painter.drawText(place.translated(30, 30), Qt::AlignCenter, text);
        painter.setPen(colors::kTitle);
        painter.drawText(place, Qt::AlignCenter, text);
    };
    write(kTitle, 36, {0, 900, basSarne::ScreenWidthTw, 1200});
    write(caption_, 20, {0, 2200, basSarne::ScreenWidthTw, 700});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
