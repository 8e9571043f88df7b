// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/kitchen/frmvarime.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "core/value.h"
#include "db/ownnote.h"
#include "forms/bassarne.h"
#include "forms/keys.h"
#include "forms/messagebox.h"
#include "forms/panel.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "kitchen/cooked.h"

namespace sarne {
namespace {

constexpr QRect kTitle{1140, 60, 6300, 510};
constexpr QRect kPrevious{8250, 6480, 1410, 1410};
constexpr QRect kNext{9810, 5970, 1950, 1950};
constexpr QRect kRead{300, 7965, 1260, 930};

}  // namespace

frmVarime::frmVarime(basSarne& sarne, UserFile& file, StartTimer startTimer)
    : KitchenForm(sarne, QStringLiteral("frmVarime"), Place::Stove, Texts::tr("Vaříme"), Bar::Plain),
      file_(file),
      startTimer_(std::move(startTimer)),
      board_(*this),
      next_(*this, QStringLiteral("imgDal")),
      previous_(*this, QStringLiteral("imgZpatky")),
      read_(*this, QStringLiteral("imgCist")) {
    dress(title_, kTitle, 18, true);
    makeButtons();
    connect(&board_.paper, &Button::clicked, this, &frmVarime::forward);
    connect(&board_.list, &TickList::used, this, &frmVarime::tick);
    connect(&board_.cooked, &Button::clicked, this, &frmVarime::cooked);
    connect(&board_.stars, &StarRow::given, this, [this](int stars) {
        app().screens().giveStars(toRecordId(recipe_.id).value_or(0), stars);
        app().HookMessage(board_.stars.accessibleValue());
    });
    for (int i = 0; i < CookingBoard::kTimes; ++i)
        connect(board_.timeButtons[static_cast<size_t>(i)], &Button::clicked, this,
                [this, i] { startTime(i); });
    std::vector<TwipWidget*> stops{&next_, &previous_, &board_.cooked, &read_};
    for (TwipWidget* stop : board_.stops()) stops.push_back(stop);
    for (TwipWidget* stop : bar_.stops()) stops.push_back(stop);
    ring().setStops(stops);
    ring().setArrows(FocusRing::Arrows::None);
}

void frmVarime::makeButtons() {
    const auto make = [this](Button& button, const QRect& place, const char* picture,
                             const QString& caption) {
        button.place(place);
        button.setFace(app().resources().picture(QString::fromLatin1(picture)));
        button.setFrame(Button::Frame::Raised);
        button.setCaption(caption);
        button.setCaptionPlace(Button::CaptionPlace::Below);
        button.setTip(caption);
    };
    make(next_, kNext, "SIPKAVPRAVO", Texts::tr("Další krok"));
    make(previous_, kPrevious, "SIPKAVLEVO", Texts::tr("Předchozí krok"));
    make(read_, kRead, "ZvukOn", Texts::tr("Přečíst"));
    read_.setTip(Texts::tr("Přečíst nahlas (F9)"));
    connect(&read_, &Button::clicked, this, [this] { app().readAloud().toggle(textToRead()); });
    connect(&app().readAloud(), &ReadAloud::offeredChanged, this, &frmVarime::offerReading);
    offerReading();
    make(board_.cooked, board_.cooked.twips(), "Varime", Texts::tr("Uvařeno!"));
    next_.setFont({QStringLiteral("Arial"), 13, true});
    connect(&next_, &Button::clicked, this, &frmVarime::forward);
    connect(&previous_, &Button::clicked, this, [this] { go(-1); });
}

/// Only where the system has a voice.
void frmVarime::offerReading() {
    read_.setVisible(app().readAloud().isOffered());
    update();
}

QString frmVarime::textToRead() const {
    const QString heading = board_.counter.text() + QStringLiteral(".\n");
    switch (shown().kind) {
        case CookingPage::Kind::Ready: {
            QStringList lines;
            for (const TickRow& row : board_.list.rows()) lines << (row.text + u' ' + row.right).trimmed();
            return heading + lines.join(QStringLiteral(".\n"));
        }
        case CookingPage::Kind::Step:
            return heading + shown().text;
        case CookingPage::Kind::Done:
            return board_.text.text();
    }
    return {};
}

bool frmVarime::Zobraz(std::int16_t id, const Serving& serving, QDate day) {
    day_ = day;
    readRecipe(id, serving);
    if (pages_.empty()) {
        unload();
        return false;
    }
    open();
    app().keepAwake(Texts::tr("Vaří se podle receptu"));
    showPage();
    return true;
}

void frmVarime::readRecipe(std::int16_t id, const Serving& serving) {
    recipe_ = readCookingRecipe(app().Db(), id, serving, app().Locale);
    ready_.assign(recipe_.ingredients.size(), false);
    layOutPages();
    board_.photo.setAccessibleName(Texts::tr("Fotografie: %1").arg(recipe_.name));
    board_.photo.setPicture(app().mediaPicture(QStringLiteral("foto\\Velke\\r%1.bmp").arg(id)));
    title_.setText(recipe_.name);
    setAccessibleName(Texts::tr("Vaříme: %1").arg(recipe_.name));
}

void frmVarime::layOutPages() {
    board_.takeTextSize();
    pages_ = cookingPages(recipe_.steps, [this](const QString& text) { return board_.fits(text); });
}

/// Larger texts take more pages: the one is shown on which the step begins.
void frmVarime::eyesChanged() {
    if (pages_.empty()) return;
    const CookingPage before = shown();
    layOutPages();
    const auto same = [&before](const CookingPage& page) {
        return page.kind == before.kind && page.step == before.step;
    };
    page_ = static_cast<int>(std::ranges::find_if(pages_, same) - pages_.begin());
    drawPage();
}

bool frmVarime::go(int pages) {
    const int wanted = std::clamp(page_ + pages, 0, pageCount() - 1);
    if (wanted == page_) return false;
    page_ = wanted;
    showPage();
    return true;
}

void frmVarime::forward() {
    if (!go(1)) goBack();
}

void frmVarime::drawPage() {
    const CookingPage::Kind kind = shown().kind;
    previous_.setEnabled(page_ > 0);
    next_.setCaption(kind == CookingPage::Kind::Ready  ? Texts::tr("Začít vařit")
                     : kind == CookingPage::Kind::Done ? Texts::tr("Zpět k receptu")
                                                       : Texts::tr("Dál"));
    next_.setTip(next_.caption());
    if (kind == CookingPage::Kind::Ready) board_.showReady(recipe_, ready_);
    if (kind == CookingPage::Kind::Step) board_.showStep(recipe_, shown());
    if (kind == CookingPage::Kind::Done) showDone();
    update();
}

void frmVarime::showPage() {
    const bool wasReading = app().readAloud().isReading();
    drawPage();
    switch (shown().kind) {
        case CookingPage::Kind::Ready:
            app().HookMessage(board_.counter.text());
            ring().focus(board_.list);
            break;
        case CookingPage::Kind::Step:
            app().HookMessage(board_.counter.text() + QStringLiteral(". ") + shown().text);
            ring().focus(next_);
            break;
        case CookingPage::Kind::Done:
            ring().focus(board_.cooked);
    }
    if (wasReading) app().readAloud().read(textToRead());  // who listens goes on listening
}

void frmVarime::tick(int row) {
    const auto index = static_cast<size_t>(row - 1);
    if (index >= ready_.size()) return;
    ready_[index] = !ready_[index];
    board_.showReady(recipe_, ready_);
    ring().sayPart(board_.list);
}

void frmVarime::showDone() {
    const std::vector<QDate> days = cookedDays(file_, recipe_.id);
    QString text = Texts::tr("Dobrou chuť!");
    if (!days.empty()) text += u'\n' + Texts::tr("Naposledy uvařeno %1.").arg(dayText(days.front()));
    board_.showDone(text, app().screens().starsOf(toRecordId(recipe_.id).value_or(0)));
    board_.cooked.setCaption(Texts::tr("Uvařeno!"));
    app().HookMessage(text);
}

void frmVarime::startTime(int index) {
    if (index < 0 || index >= static_cast<int>(board_.times().size())) return;
    startTimer_(recipe_.timerName(shown()), board_.times()[static_cast<size_t>(index)].shortest);
}

void frmVarime::cooked() {
    const bool kept = keepCooked(file_, recipe_.id, recipe_.name, day_, recipe_.serving.portions);
    const bool noted = keepLine();
    showDone();
    board_.cooked.setCaption(kept ? Texts::tr("Zapsáno") : Texts::tr("Nelze zapsat"));
    app().HookMessage(board_.cooked.caption());
    ring().focus(next_);
    if (!noted)
        app().ZobrazZpravu(Texts::tr("Poznámku se nepodařilo uložit na disk.\r\n"
                                     "Zůstala rozepsaná u receptu, v oddílu Vlastní poznámka."),
                           kInformationBox);
}

bool frmVarime::keepLine() {
    const QString typed = board_.note.text().simplified();
    if (typed.isEmpty()) return true;
    board_.note.setText({});
    const QString line = Texts::tr("Uvařeno %1: %2").arg(dayText(day_), typed);
    return appendToNote(app().Db(), app().notes(), recipe_.id, line);
}

/// A line that was typed and not kept yet goes to the note, whichever way the screen is left.
void frmVarime::goBack() {
    keepLine();
    app().keepAwake({});
    app().PopScreen(*this);
}

bool frmVarime::readyToEnd() {
    keepLine();
    return true;
}

void frmVarime::keepUnsaved() {
    keepLine();
}

void frmVarime::restored() {
    app().keepAwake(Texts::tr("Vaří se podle receptu"));
    previous_.setEnabled(page_ > 0);
    Form::restored();
}

void frmVarime::unload() {
    if (isLoaded()) app().keepAwake({});
    Form::unload();
}

bool frmVarime::turnKey(int key) {
    switch (key) {
        case Qt::Key_Down:
            return go(1);
        case Qt::Key_Up:
            return go(-1);
        case Qt::Key_Right:
        case Qt::Key_PageDown:
            go(1);
            return true;
        case Qt::Key_Left:
        case Qt::Key_PageUp:
        case Qt::Key_Backspace:
            go(-1);
            return true;
        case Qt::Key_Home:
            go(-pageCount());
            return true;
        default:
            return false;
    }
}

bool frmVarime::keyDown(QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) return false;
    TickList& list = board_.list;
    if (ring().isAt(&board_.note) && isEnter(event)) {
        cooked();
        return true;
    }
    if (ring().isAt(&board_.stars) && board_.stars.keyDown(event)) return true;
    const bool turns = event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
    if (list.isVisible() && !turns && listKey(list, event, [this] { go(1); })) return true;
    if (event.key() >= Qt::Key_1 && event.key() < Qt::Key_1 + CookingBoard::kTimes) {
        startTime(event.key() - Qt::Key_1);
        return true;
    }
    return turnKey(event.key()) || Form::keyDown(event);
}

void frmVarime::paint(QPainter& painter) {
    paintGround(painter);
    if (!read_.isHidden()) paintPlate(painter, kRead.adjusted(-60, -30, 60, 0));
    board_.paint(painter);
}

}  // namespace sarne
