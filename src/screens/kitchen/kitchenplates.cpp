#include "screens/kitchen/kitchenplates.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "core/czech.h"
#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/messagebox.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/stage.h"
#include "kitchen/foundtimes.h"
#include "kitchen/ringwave.h"
#include "kitchen/timerstore.h"
#include "platform/effectplayer.h"

namespace sarne {
namespace {

constexpr int kLook = 250, kSayingTime = 4000, kRingAgain = 3500;  // milliseconds
constexpr int kWidth = 1920, kHeight = 630, kGap = 60;
// Without room beside the screens: what shows the time alone, above their titles.
constexpr QSize kSmall(1260, 330);
constexpr int kSmallTop = 15, kColumns = 8;
/// Of what is said: between the buttons that the screens have at their sides, above those below.
constexpr int kSayingLeft = 2640, kSayingWidth = 5880, kSayingBottom = 7800;
const TextFont kTime{QStringLiteral("Arial"), 15, true}, kSmallTime{QStringLiteral("Arial"), 11, true},
    kName{QStringLiteral("Arial"), 9}, kSaying{QStringLiteral("Arial"), 14, true};

/// Where the plate of timer \a index lies: beside the design area where the display is wide enough, else
/// along the upper edge from the right, small, so that no title is covered.
QRect timerPlace(int index, double roomBeside, double textScale) {
    const double scale = std::min(textScale, (roomBeside - kGap) / kWidth);
    const QSize size(int(kWidth * scale), int(kHeight * scale));
    if (scale >= 1) return {QPoint(Stage::kWidth + kGap / 2, 90 + index * (size.height() + kGap)), size};
    const int column = index % kColumns, row = index / kColumns;
    return {
        {Stage::kWidth - (column + 1) * (kSmall.width() + kGap), kSmallTop + row * (kSmall.height() + kGap)},
        kSmall};
}

}  // namespace

/// One plate. A click on it does what it is for.
class KitchenPlates::Plate : public TwipWidget {
  public:
    Plate(Stage& stage, Picture picture) : TwipWidget(&stage), picture_(std::move(picture)) {
        setCursor(Qt::PointingHandCursor);
    }

    /// \a scale is of what is said; a timer's plate has its texts as large as itself.
    void set(const QString& text, const QString& name, bool rings, double scale = 1) {
        if (text == text_ && name == name_ && rings == rings_ && scale == scale_) return;
        scale_ = scale;
        text_ = text;
        name_ = name;
        rings_ = rings;
        setToolTip(name);
        setAccessibleName(name.isEmpty() ? text : name + QStringLiteral(", ") + text);
        update();
    }
    const QString& text() const { return text_; }
    const QString& name() const { return name_; }

    std::function<void()> use;

  protected:
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        event->accept();
        const auto doIt = use;
        if (doIt && rect().contains(event->position().toPoint())) doIt();
    }

    void paint(QPainter& painter) override {
        const QRectF all({0, 0}, QSizeF(twips().size()));
        painter.setPen(QPen(colors::kCopper, 30));
        painter.setBrush(rings_ ? colors::kSelected : colors::kTeal);
        painter.drawRoundedRect(all.adjusted(15, 15, -15, -15), 100, 100);
        const bool small = twips().height() <= kSmall.height();
        const double edge = small ? 30 : 60, side = all.height() - 2 * edge;
        double left = 1.5 * edge;
        if (!picture_.isNull()) {
            picture_.draw(painter, QRectF(edge, edge, side, side), Fit::Inside);
            left += side + 30;
        }
        const QRectF text(left, 30, all.width() - left - edge, all.height() - 60);
        painter.setPen(colors::kTitle);
        if (small) {
            painter.setFont(kSmallTime.toQFont());
            return painter.drawText(text, Qt::AlignCenter, text_);
        }
        if (name_.isEmpty()) {
            painter.setFont(larger(kSaying, scale_).toQFont());
            return painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, text_);
        }
        const double grown = double(twips().height()) / kHeight;
        painter.setFont(larger(kTime, grown).toQFont());
        painter.drawText(text, Qt::AlignTop | Qt::AlignLeft, text_);
        painter.setFont(larger(kName, grown).toQFont());
        painter.setPen(colors::kPaper);
        painter.drawText(text, Qt::AlignBottom | Qt::AlignLeft,
                         QFontMetricsF(painter.font()).elidedText(name_, Qt::ElideRight, text.width()));
    }

  private:
    Picture picture_;
    QString text_, name_;
    bool rings_ = false;
    double scale_ = 1;
};

KitchenPlates::KitchenPlates(basSarne& sarne, KitchenTimers& timers, UserFile& file)
    : app_(sarne), timers_(timers), file_(file), clock_(this), sayingTime_(this) {
    clock_.setInterval(kLook);
    connect(&clock_, &Timer::tick, this, &KitchenPlates::look);
    sayingTime_.setInterval(kSayingTime);
    connect(&sayingTime_, &Timer::tick, this, &KitchenPlates::hush);
    QCoreApplication::instance()->installEventFilter(this);
}

KitchenPlates::~KitchenPlates() = default;

bool KitchenPlates::eventFilter(QObject* watched, QEvent* event) {
    const bool moves = event->type() == QEvent::Show || event->type() == QEvent::ZOrderChange;
    if (moves && (!plates_.empty() || saying_) && qobject_cast<Form*>(watched)) raisePlates();
    return false;
}

void KitchenPlates::raisePlates() {
    for (const QPointer<Plate>& plate : plates_)
        if (plate) plate->raise();
    if (saying_) saying_->raise();
}

void KitchenPlates::resume() {
    restoreTimers(file_, timers_, app_.clock().now(), QDateTime::currentMSecsSinceEpoch());
    look();
}

void KitchenPlates::giveUp() {
    const bool any = !timers_.all().empty();
    while (!timers_.all().empty()) timers_.stop(timers_.all().front().id);
    if (any) keep();
}

void KitchenPlates::keep() {
    storeTimers(file_, timers_.all(), app_.clock().now(), QDateTime::currentMSecsSinceEpoch());
}

void KitchenPlates::start(const QString& name, int seconds) {
    timers_.start(name, seconds, app_.clock().now());
    keep();
    app_.HookMessage(Texts::tr("Časovač běží: %1").arg(durationText(seconds)));
    look();
}

void KitchenPlates::look() {
    const std::vector<KitchenTimer> over = timers_.over(app_.clock().now());
    for (const KitchenTimer& timer : over) {
        const QString words = Texts::tr("Čas vypršel: %1").arg(timer.name);
        app_.HookMessage(words);
        app_.readAloud().read(words);
    }
    if (!over.empty()) lastRing_ = app_.clock().now() - kRingAgain;
    if (timers_.ringing()) ring();
    show();
    clock_.setEnabled(!timers_.all().empty());
}

void KitchenPlates::ring() {
    if (app_.clock().now() - lastRing_ < kRingAgain) return;
    lastRing_ = app_.clock().now();
    app_.EffectWave = ringWave();
    app_.effects().play(app_.EffectWave);
}

void KitchenPlates::show() {
    const std::vector<KitchenTimer>& timers = timers_.all();
    while (plates_.size() > timers.size()) {
        if (Plate* plate = plates_.back()) {
            plate->setObjectName({});
            plate->hide();
            plate->deleteLater();  // its own click may have brought it here
        }
        plates_.pop_back();
    }
    while (plates_.size() < timers.size()) {
        auto* plate = new Plate(app_.stage(), app_.resources().picture(QStringLiteral("Casovac")));
        plate->setObjectName(QStringLiteral("casovac(%1)").arg(plates_.size()));
        plate->show();
        plate->raise();
        plates_.emplace_back(plate);
    }
    for (size_t i = 0; i < timers.size(); ++i) {
        if (!plates_[i]) continue;
        const KitchenTimer& timer = timers[i];
        const double beside = app_.stage().designOrigin().x() / app_.stage().scale();
        const QRect place = timerPlace(static_cast<int>(i), beside, app_.stage().eyes().textScale());
        if (plates_[i]->twips() != place) plates_[i]->place(place);
        plates_[i]->set(timer.rings ? Texts::tr("Hotovo!") : clockText(timer.left(app_.clock().now())),
                        timer.name, timer.rings);
        plates_[i]->use = [this, id = timer.id] { timerClicked(id); };
    }
}

void KitchenPlates::timerClicked(int id) {
    for (const KitchenTimer& timer : timers_.all()) {
        if (timer.id != id) continue;
        const QString question = Texts::tr("Zbývá %1: %2.\r\nZastavit časovač?")
                                     .arg(clockText(timer.left(app_.clock().now())), timer.name);
        if (!timer.rings && app_.ZobrazZpravu(question, kQuestionBox) != kAnswerYes) return;
        timers_.stop(id);
        keep();
        if (!timers_.ringing()) app_.StopEffect();
        return look();
    }
}

bool KitchenPlates::stopRinging() {
    if (!timers_.ringing()) return false;
    const std::vector<KitchenTimer> all = timers_.all();
    for (const KitchenTimer& timer : all)
        if (timer.rings) timers_.stop(timer.id);
    keep();
    app_.StopEffect();
    look();
    return true;
}

bool KitchenPlates::readyToEnd() {
    const int running = timers_.running();
    if (running == 0) return true;
    const QString question =
        running == 1
            ? Texts::tr("Ještě běží časovač: %1.\r\nPřestane, když program skončí. Opravdu skončit?")
                  .arg(timers_.all().front().name)
            : Texts::tr("Ještě běží časovače (%1).\r\nPřestanou, když program skončí. Opravdu skončit?")
                  .arg(running);
    return app_.ZobrazZpravu(question, kQuestionBox) == kAnswerYes;
}

void KitchenPlates::say(const QString& text, std::function<void()> use) {
    if (!saying_) saying_ = new Plate(app_.stage(), app_.resources().picture(QStringLiteral("Nakup")));
    constexpr int kPicture = 900;
    const double scale = app_.stage().eyes().textScale();
    const QSize size = Label::measure(text, larger(kSaying, scale), kSayingWidth - kPicture);
    const QSize plate(std::min(kSayingWidth, size.width() + kPicture + 60),
                      std::max(720, size.height() + 240));
    saying_->place(
        {{kSayingLeft + (kSayingWidth - plate.width()) / 2, kSayingBottom - plate.height()}, plate});
    saying_->set(text, {}, false, scale);
    saying_->use = [this, use = std::move(use)] {
        if (saying_) saying_->hide();
        if (use) use();
    };
    saying_->show();
    saying_->raise();
    sayingTime_.setEnabled(true);
    app_.HookMessage(text);
}

void KitchenPlates::hush() {
    sayingTime_.setEnabled(false);
    if (saying_) saying_->hide();
}

QStringList KitchenPlates::texts() const {
    QStringList all;
    for (const QPointer<Plate>& plate : plates_)
        if (plate) all << plate->text() + QStringLiteral(" ") + plate->name();
    if (saying_ && saying_->isVisible()) all << saying_->text();
    return all;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
