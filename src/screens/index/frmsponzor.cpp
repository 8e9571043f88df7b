#include "screens/index/frmsponzor.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "core/value.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/followlink.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "richtext/plaintext.h"
#include "richtext/rtfdocument.h"

namespace sarne {
namespace {

constexpr QRect kHint{600, 60, 11100, 690};  // less the title
constexpr int kAreasBottom = BarForm::kBarBand - 60;
constexpr QRect kPosition{300, 8145, 2850, 750};
constexpr QRect kPrevious{120, 4200, 600, 600};
constexpr QRect kNext{11280, 4200, 600, 600};
// The card stands in the middle between title and bar, as high as its text, within limits.
constexpr int kCardLeft = 2100, kCardWidth = 7800, kCardMiddle = 4440;
constexpr int kCardMargin = 180, kCardFoot = 810;
constexpr int kLeastText = 1500, kMostText = 5400;
constexpr QPoint kTextStart(180, 105);  // in the view: room for the ring that shows where the keyboard is
constexpr QSize kClose(1800, 600);
constexpr int kThousand = 1000;

QRect onScreen(const QRect& thousandths, QSize screen) {
    return {thousandths.x() * screen.width() / kThousand, thousandths.y() * screen.height() / kThousand,
            thousandths.width() * screen.width() / kThousand,
            thousandths.height() * screen.height() / kThousand};
}

void dress(Button& button, const Picture& face, const QString& caption, const QString& tip) {
    button.setFace(face);
    button.setFrame(Button::Frame::Raised);
    button.setFont({QStringLiteral("Arial"), 13});
    if (face.isNull()) button.setCaption(caption);
    button.setTip(tip);
}

/// What a card says below its own heading, which mostly is the \a name of its thing.
QString textBelow(const QString& name, const QString& text) {
    const QString first = text.section(u'\n', 0, 0);
    return first.trimmed() == name ? text.mid(first.size()).trimmed() : text;
}

}  // namespace

frmSponzor::frmSponzor(basSarne& sarne)
    : BarForm(sarne, QStringLiteral("frmSponzor")),
      hint_(*this, QStringLiteral("lblPopis")),
      position_(*this, QStringLiteral("lblPozice")),
      previous_(*this, QStringLiteral("imgSipky(0)")),
      next_(*this, QStringLiteral("imgSipky(1)")),
      card_(*this, QStringLiteral("picText")),
      close_(*this, QStringLiteral("imgZavri")) {
    hint_.setColor(colors::kPaper);
    hint_.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hint_.setWordWrap(true);
    position_.place(kPosition);
    position_.setFont({QStringLiteral("Arial"), 14});
    position_.setColor(colors::kTitle);
    position_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    makeArrows();
    makeCard();
}

void frmSponzor::makeArrows() {
    const Resources& resources = app().resources();
    dress(previous_, resources.picture(QStringLiteral("SipkaVlevo")), QStringLiteral("◄"),
          Texts::tr("Předchozí obraz"));
    dress(next_, resources.picture(QStringLiteral("SipkaVpravo")), QStringLiteral("►"),
          Texts::tr("Další obraz"));
    previous_.place(kPrevious);
    next_.place(kNext);
    connect(&previous_, &Button::clicked, this, [this] { showPicture(at_ - 1); });
    connect(&next_, &Button::clicked, this, [this] { showPicture(at_ + 1); });
}

void frmSponzor::makeCard() {
    const Resources& resources = app().resources();
    placeCard();
    card_.setFocusPolicy(Qt::ClickFocus);
    card_.setRightMargin(kTextStart.x());
    card_.setArrowPictures(resources.picture(QStringLiteral("SipkaNahoru")),
                           resources.picture(QStringLiteral("SipkaDolu")));
    close_.dressAsText(Texts::tr("Zavřít"), Texts::tr("Zavřít text"));
    connect(&close_, &Button::clicked, this, &frmSponzor::closeCard);
    connect(&card_, &TextView::linkActivated, this, [this](LinkKey key) { followLink(this->app(), key); });
    closeCard();
}

void frmSponzor::placeCard() {
    const int text = std::clamp(card_.contentHeight() + kTextStart.y(), kLeastText, kMostText);
    const int height = text + 2 * kCardMargin + kCardFoot;
    cardPlace_ = QRect(kCardLeft, kCardMiddle - height / 2, kCardWidth, height);
    card_.setSheet(cardPlace_.adjusted(0, 0, 0, -kCardFoot));
    // The arrows' room at both sides, so that the text stands in the middle.
    card_.place({cardPlace_.left() + TextView::kArrowRoom, cardPlace_.top() + kCardMargin,
                 kCardWidth - 2 * TextView::kArrowRoom - kCardMargin, text});
    QRect close({}, kClose);
    close.moveCenter({cardPlace_.center().x(), cardPlace_.bottom() - kCardFoot / 2});
    close_.place(close);
}

bool frmSponzor::Zobraz(std::int16_t topic, const QString& text) {
    pictures_ = readGallery(app().Db(), topic);
    if (pictures_.empty()) {
        unload();
        return false;
    }
    if (!showNumber(text.toInt())) showPicture(0);
    open(firstControl());
    return true;
}

Control& frmSponzor::firstControl() const {
    return areas_.empty() ? barButton(kBack) : *areas_.front();
}

bool frmSponzor::showNumber(int number) {
    const auto found = std::find_if(pictures_.begin(), pictures_.end(),
                                    [number](const GalleryPicture& one) { return one.number == number; });
    if (found == pictures_.end()) return false;
    showPicture(static_cast<int>(found - pictures_.begin()));
    return true;
}

void frmSponzor::showPicture(int index) {
    const int count = static_cast<int>(pictures_.size());
    at_ = (index + count) % count;
    closeCard();
    const QString file = QStringLiteral("foto\\sponzor\\%1").arg(current().number);
    room_ = Room(app().mediaPicture(file + QStringLiteral(".bmp")),
                 Picture::fromFile(app().mediaFile(file + QStringLiteral("-siroke.jpg"))));
    setTitle(current().title);
    showHint();
    position_.setText(count > 1 ? QStringLiteral("%1 z %2").arg(at_ + 1).arg(count) : QString());
    previous_.setVisible(count > 1);
    next_.setVisible(count > 1);
    makeAreas();
    setKeyboardOrder();
    if (isVisible()) ring().focus(firstControl());
}

/// What the picture is about stands beside the title, in one line as long as that can be read.
void frmSponzor::showHint() {
    // Its blanks that hold words together stay what they are.
    hint_.setText(plainText(current().text, 400).trimmed().replace(u'\n', u' '));
    QRect place = kHint;
    place.setLeft(std::min(titleEnd() + kHint.x(), kHint.center().x()));
    TextFont font{QStringLiteral("Arial"), 12};
    while (font.size > 10 && Label::measure(hint_.text(), font).width() > place.width()) font.size -= .5;
    hint_.setFont(font);
    hint_.place(place);
}

/// The bar hides what of a picture lies below it; the name of a thing is not to.
QRect frmSponzor::areaPlace(const GalleryArea& area) const {
    QRect place = onScreen(area.place, twips().size());
    if (place.top() < kAreasBottom) place.setBottom(std::min(place.bottom(), kAreasBottom));
    return place;
}

void frmSponzor::makeAreas() {
    for (AreaButton* area : areas_) {
        area->hide();
        area->deleteLater();  // a click on it may have brought us here
    }
    areas_.clear();
    for (const GalleryArea& area : current().areas) {
        const int number = static_cast<int>(areas_.size());
        auto* button = new AreaButton(*this, QStringLiteral("lblOblast(%1)").arg(number), area.name);
        button->place(areaPlace(area));
        button->stackUnder(&previous_);
        connect(button, &AreaButton::clicked, this, [this, number] { choose(number); });
        areas_.push_back(button);
    }
}

void frmSponzor::choose(int area) {
    const GalleryArea& chosen = current().areas[static_cast<size_t>(area)];
    ring().focus(*areas_[static_cast<size_t>(area)]);
    if (chosen.target.kind != GalleryTarget::Kind::None) return follow(chosen.target);
    if (chosen.text.isEmpty()) return app().Beep();
    chosen_ = area;
    openCard(chosen.text);
}

void frmSponzor::follow(const GalleryTarget& target) {
    const auto number = toRecordId(target.number).value_or(0);
    switch (target.kind) {
        case GalleryTarget::Kind::Keyword:
            return app().screens().showIndex(number);
        case GalleryTarget::Kind::Video:
            return app().screens().showVideo(number);
        case GalleryTarget::Kind::Picture:
            if (!showNumber(number)) app().Beep();
            return;
        case GalleryTarget::Kind::Beep:
        case GalleryTarget::Kind::None:
            return app().Beep();
    }
}

bool frmSponzor::cardIsOpen() const {
    return card_.isVisibleTo(this);
}

void frmSponzor::openCard(const QString& text) {
    card_.Cls();
    card_.setCurrentX(kTextStart.x());
    card_.setCurrentY(kTextStart.y());
    card_.drawRichText(text);
    card_.setAccessibleName(card_.readable().text().trimmed().section(u'\n', 0, 0));
    placeCard();
    card_.setVisible(true);
    card_.raise();
    close_.show();
    close_.raise();
    for (AreaButton* area : areas_) area->setVisible(!area->twips().intersects(cardPlace_));
    setKeyboardOrder();
    ring().focus(card_);
    ring().sayWithoutReader(plainText(text, 2000));  // a reader goes through it by caret
    update();
}

void frmSponzor::closeCard() {
    card_.setVisible(false);
    close_.hide();
    for (AreaButton* area : areas_) area->show();
    setKeyboardOrder();
    const int area = std::exchange(chosen_, -1);
    if (area >= 0 && area < static_cast<int>(areas_.size())) ring().focus(*areas_[static_cast<size_t>(area)]);
    update();
}

void frmSponzor::setKeyboardOrder() {
    std::vector<TwipWidget*> order{&card_, &close_};
    order.insert(order.end(), areas_.begin(), areas_.end());
    order.push_back(&previous_);
    order.push_back(&next_);
    setContent(order);
}

void frmSponzor::goBack() {
    if (cardIsOpen()) return closeCard();
    BarForm::goBack();
}

void frmSponzor::print() {
    RtfDocument document;
    document.heading(current().title);
    constexpr int kAll = 1'000'000;
    document.paragraph(plainText(current().text, kAll));
    for (const GalleryArea& area : current().areas) {
        document.paragraph({});
        document.paragraph(area.name, textBelow(area.name, plainText(area.text, kAll)));
    }
    app().screens().printText(current().title, document.text());
}

bool frmSponzor::cardKey(const QKeyEvent& event) {
    if (!cardIsOpen()) return false;
    return ring().isAt(&card_) ? card_.keyDown(event) : card_.pageKey(event);
}

bool frmSponzor::keyDown(QKeyEvent& event) {
    if (cardKey(event)) return true;
    const auto direction = arrowDirection(event.key());
    if (direction && ring().stepTowards(*direction, {areas_.begin(), areas_.end()})) return true;
    if (pictures_.size() > 1 && (event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown)) {
        showPicture(at_ + (event.key() == Qt::Key_PageDown ? 1 : -1));
        return true;
    }
    return BarForm::keyDown(event);
}

bool frmSponzor::swiped(int direction) {
    if (pictures_.size() < 2) return false;
    showPicture(at_ + direction);
    return true;
}

void frmSponzor::mousePressEvent(QMouseEvent* event) {
    BarForm::mousePressEvent(event);
    if (cardIsOpen() && !cardPlace_.contains(toTwips(event->position()))) closeCard();
}

void frmSponzor::paintGround(QPainter& painter) {
    if (room_.isNull()) return BarForm::paintGround(painter);
    paintRoom(painter, room_);
}

void frmSponzor::paint(QPainter& painter) {
    BarForm::paint(painter);
    if (!cardIsOpen()) return;
    paintPaper(painter, cardPlace_);
    painter.setClipRect(cardPlace_.adjusted(0, cardPlace_.height() - kCardFoot, 0, 0));
    paintPlate(painter, cardPlace_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
