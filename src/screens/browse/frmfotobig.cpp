#include "screens/browse/frmfotobig.h"

#include <QKeyEvent>
#include <QPainter>
#include <cstdlib>

#include "core/texts.h"
#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/resources.h"
#include "screens/browse/ground.h"

namespace sarne {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kDefaultInterval = 4000;            // milliseconds
constexpr int kTitleBottom = 8780;                // twips
constexpr int kTitleMargin = 160;                 // from the title to the edge of its ground
constexpr int kShadow = 170, kShadowReach = 420;  // of a photo on its surroundings: of 255, twips
const TextFont kTitleFont{QStringLiteral("Times New Roman"), 22, true};
const TextFont kMomentFont{QStringLiteral("Arial"), 16};

/// The shadow that \a photo casts on its surroundings at both sides, which makes it a picture of its own.
void paintShadow(QPainter& painter, const QRectF& photo) {
    const auto side = [&](double from, double to) {
        QLinearGradient fade(from, 0, to, 0);
        for (const double far : {0., .2, .5, 1.})
            fade.setColorAt(far, QColor(0, 0, 0, int(kShadow * (1 - far) * (1 - far))));
        painter.fillRect(QRectF(QPointF(from, photo.top()), QPointF(to, photo.bottom())).normalized(), fade);
    };
    side(photo.left(), photo.left() - kShadowReach);
    side(photo.right(), photo.right() + kShadowReach);
}

}  // namespace

frmFotoBig::frmFotoBig(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmFotoBig")),
      lblNazev(*this, QStringLiteral("lblNazev")),
      lblMoment(*this, QStringLiteral("lblMoment")),
      tmrPosun(this) {
    setAccessibleName(Texts::tr("Velké foto"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    lblNazev.setFont(kTitleFont);
    lblNazev.setColor(colors::kTitle);
    lblMoment.setFont(kMomentFont);
    lblMoment.setColor(colors::kTitle);
    lblMoment.setText(Texts::tr("Moment prosím, načítám foto ..."));
    lblMoment.place({450, 450, 9000, 450});
    connect(&tmrPosun, &Timer::tick, this, &frmFotoBig::tick);
}

void frmFotoBig::Zobraz(const PhotoRequest& request) {
    if (request.photoIds.empty()) return unload();
    recipes_ = app().Db().OpenTable(QStringLiteral("Recepty"));
    recipes_.setIndex(QStringLiteral("PrimaryKey"));
    if (!app().FormStack.contains(*this)) app().PushScreen(*this);
    showForm();
    repaint();  // the words that ask for patience, while the photo loads
    steps_.start(request.photoIds, request.startPosition);
    zone_ = Zone::Right;  // what a click does; the pointer tells it from the first change of zone on
    setCursor(app().resources().cursor(QStringLiteral("ZPET"), scale(), devicePixelRatioF()));
    loadPhoto();
    tmrPosun.setInterval(request.slideInterval > 0 ? request.slideInterval : kDefaultInterval);
    if (request.slideShow) setSlideShow(true);
}

// --- the photo

QString frmFotoBig::photoFile(std::int16_t id) const {
    return app().mediaFile(QStringLiteral("foto\\Recepty\\r%1.bmp").arg(id));
}

QSize frmFotoBig::room() const {
    return size() * devicePixelRatio();
}

bool frmFotoBig::isNextReady() const {
    const auto next = steps_.neighbours();
    return !next.empty() && decoder_.isReady(photoFile(next.front()), room());
}

void frmFotoBig::loadPhoto() {
    decode();
    lblMoment.hide();
    recipes_.Seek(QStringLiteral("="), steps_.currentId());
    lblNazev.setText(recipes_.NoMatch() ? QString() : recipes_.field(QStringLiteral("Nazev")).toString());
    placeTitle();
    if (!lblNazev.text().isEmpty()) app().HookMessage(lblNazev.text());
    update();
}

void frmFotoBig::decode() {
    const QString shown = photoFile(steps_.currentId());
    photo_ = decoder_.photo(shown, room());
    std::vector<QString> files{shown};
    for (const std::int16_t id : steps_.neighbours()) files.push_back(photoFile(id));
    decoder_.decodeAhead(files, room());
}

void frmFotoBig::placeTitle() {
    const QSize size = Label::measure(lblNazev.text(), larger(kTitleFont, textScale()));
    lblNazev.place({(basSarne::ScreenWidthTw - size.width()) / 2, kTitleBottom - size.height(), size.width(),
                    size.height()});
}

void frmFotoBig::rescale() {
    Form::rescale();
    if (steps_.isEmpty()) return;
    decode();
    loadCursor();
}

/// The photo's own surroundings, where it leaves something of the display: no more of them than is seen.
void frmFotoBig::paintBeside(QPainter& painter, const QRectF& photo) const {
    const QRectF all = covered();
    const bool isBeyondDesign = all != QRectF(QPointF(), QSizeF(twips().size()));
    const QRectF sides[] = {QRectF(all.topLeft(), QPointF(photo.left(), all.bottom())),
                            QRectF(QPointF(photo.right(), all.top()), all.bottomRight()),
                            QRectF(QPointF(photo.left(), all.top()), photo.topRight()),
                            QRectF(photo.bottomLeft(), QPointF(photo.right(), all.bottom()))};
    for (const QRectF& side : sides) {
        if (side.width() < 1 || side.height() < 1) continue;
        painter.save();
        painter.setClipRect(side, Qt::IntersectClip);
        if (isBeyondDesign)
            paintSurroundings(painter, all, photo_);
        else
            painter.fillRect(side, colors::kNight);
        painter.restore();
    }
    if (isBeyondDesign) paintShadow(painter, photo);
}

void frmFotoBig::paint(QPainter& painter) {
    const QRectF screen(QPointF(), QSizeF(twips().size()));
    if (photo_.isNull()) {
        painter.fillRect(covered(), colors::kNight);
    } else {
        const double units = 1 / (scale() * devicePixelRatio());
        QRectF place(QPointF(), QSizeF(photo_.size()) * units);
        place.moveCenter(screen.center());
        // On whole pixels, and untransformed, the photo is copied as it is.
        const QTransform pixels = painter.combinedTransform();
        const QRectF target(pixels.map(place.topLeft()).toPoint(), QSizeF(photo_.size()));
        place = pixels.inverted().mapRect(target);
        painter.save();
        painter.setWorldTransform(QTransform());
        painter.drawImage(painter.combinedTransform().inverted().mapRect(target), photo_);
        painter.restore();
        paintBeside(painter, place);
    }
    if (lblNazev.text().isEmpty()) return;
    paintPlate(painter, QRectF(lblNazev.twips())
                            .adjusted(-kTitleMargin, -kTitleMargin / 4., kTitleMargin, kTitleMargin / 4.));
}

// --- stepping

void frmFotoBig::clickIn(Zone zone) {
    if (!steps_.accept(app().clock().now())) return;
    if (tmrPosun.isEnabled()) {
        tmrPosun.setEnabled(false);
        tmrPosun.setEnabled(true);
    }
    if (zone == Zone::None) return goBack();
    if (steps_.step(zoneStep(zone)))
        loadPhoto();
    else
        app().Beep();
}

void frmFotoBig::tick() {
    if (app().FormStack.top() != this) return;  // what lies over it is looked at now
    tmrPosun.setEnabled(false);
    steps_.advance();
    loadPhoto();
    tmrPosun.setEnabled(true);
    app().Yield();
}

void frmFotoBig::setSlideShow(bool runs) {
    if (runs == tmrPosun.isEnabled()) return;
    tmrPosun.setEnabled(runs);
    app().keepAwake(runs ? Texts::tr("Promítání fotografií") : QString());
}

bool frmFotoBig::keyDown(QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    switch (event.key()) {
        case Qt::Key_Right:
            clickIn(Zone::Right);
            return true;
        case Qt::Key_Left:
            clickIn(Zone::Left);
            return true;
        case Qt::Key_Up:
            clickIn(Zone::Up);
            return true;
        case Qt::Key_Down:
            clickIn(Zone::Down);
            return true;
        case Qt::Key_Space:
            setSlideShow(!tmrPosun.isEnabled());
            return true;
        case Qt::Key_Escape:
            goBack();
            return true;
        default:
            return false;
    }
}

// --- the mouse

/// A finger that goes sideways over the photo pulls the next or the previous one in.
bool frmFotoBig::swipe(QPoint twips) {
    constexpr int kSwipe = 900;
    const QPoint way = twips - pressedAt_;
    if (std::abs(way.x()) < kSwipe || std::abs(way.x()) < 2 * std::abs(way.y())) return false;
    clickIn(way.x() < 0 ? Zone::Right : Zone::Left);
    return true;
}

void frmFotoBig::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = wasPressed_ = true;
    pressedAt_ = toTwips(event->position());
}

void frmFotoBig::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second half of a double click that opened the viewer is no click on it.
    if (event->button() == Qt::LeftButton) pressed_ = wasPressed_;
}

void frmFotoBig::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) return;
    pressed_ = false;
    if (swipe(toTwips(event->position()))) return;
    if (rect().contains(event->position().toPoint())) clickIn(zone_);
}

void frmFotoBig::mouseMoveEvent(QMouseEvent* event) {
    const QPoint twips = toTwips(event->position());
    setZone(zoneAt({twips.x() / kTwipsPerPixel, twips.y() / kTwipsPerPixel}));
}

void frmFotoBig::setZone(Zone zone) {
    if (zone == zone_) return;
    zone_ = zone;
    loadCursor();
}

void frmFotoBig::loadCursor() {
    setCursor(app().resources().cursor(zoneCursor(zone_), scale(), devicePixelRatioF()));
}

// --- coming and going

void frmFotoBig::goBack() {
    app().PopScreen(*this);
}

void frmFotoBig::unload() {
    setSlideShow(false);
    Form::unload();
}

void frmFotoBig::restored() {
    loadCursor();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
