// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/kitchen/kitchenform.h"

#include <QKeyEvent>
#include <QPainter>

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "screens/kitchen/ticklist.h"

namespace sarne {
namespace {

constexpr QRect kPicture{240, 60, 840, 840};
constexpr QRect kTitle{1140, 90, 5400, 780};
constexpr QRect kState{6600, 90, 5160, 780};
constexpr QRect kAside{300, 7965, 3900, 930};
constexpr QRect kBar{6600, 7965, 5160, 930}, kBarWithPrint{5220, 7965, 6540, 930};
constexpr int kHeaderEnd = 960, kEdge = 30;

/// The screens that lead to each other, by Place.
struct Neighbour {
    BarFace face;
    void (Screens::*show)();
    bool needsGoods;
};
constexpr Neighbour kNeighbours[] = {
    {{"Nakup", QT_TRANSLATE_NOOP("Texts", "Nákup"), QT_TRANSLATE_NOOP("Texts", "Nákupní seznam (Shift+F3)")},
     &Screens::showShoppingList,
     true},
    {{"Doma", QT_TRANSLATE_NOOP("Texts", "Co mám doma"),
      QT_TRANSLATE_NOOP("Texts", "Recepty podle toho, co je doma (F5)")},
     &Screens::showPantry,
     true},
    {{"Kucharka", QT_TRANSLATE_NOOP("Texts", "Moje kuchařka"),
      QT_TRANSLATE_NOOP("Texts", "Moje kuchařka: hvězdičky, uvařeno, poznámky (F6)")},
     &Screens::showOwnCookbook,
     false},
    {{"Hostina", QT_TRANSLATE_NOOP("Texts", "Hostina"),
      QT_TRANSLATE_NOOP("Texts", "Hostina: předkrm, polévka, hlavní chod a kdy co začít")},
     &Screens::showFeast,
     true}};
const char* const kPictures[] = {"Nakup", "Doma", "Kucharka", "Hostina", "Varime"};

constexpr BarFace kPlainFaces[] = {barface::kHelp, barface::kBack, barface::kEnd, barface::kMusic};
constexpr BarFace kPrintFaces[] = {barface::kPrint, barface::kHelp, barface::kBack, barface::kEnd,
                                   barface::kMusic};

std::vector<BarFace> neighbourFaces(bool any) {
    std::vector<BarFace> faces;
    if (any)
        for (const Neighbour& one : kNeighbours) faces.push_back(one.face);
    return faces;
}

}  // namespace

KitchenForm::KitchenForm(basSarne& sarne, const QString& name, Place place, const QString& title, Bar bar)
    : Form(sarne, name),
      title_(*this, QStringLiteral("lblTitul")),
      state_(*this, QStringLiteral("lblStav")),
      bar_(*this, QStringLiteral("imgBtnHlavni"),
           bar == Bar::WithPrint ? std::span<const BarFace>(kPrintFaces) : kPlainFaces,
           [this](int) { print(); }),
      aside_(*this, QStringLiteral("imgVedle"), neighbourFaces(place != Place::Stove),
             [this](int index) { showNeighbour(index); }),
      place_(place) {
    dress(title_, kTitle, 20, true);
    title_.setText(title);
    setAccessibleName(title);
    dress(state_, kState, 13, false, Qt::AlignRight | Qt::AlignVCenter);
    bar_.placeRow(bar == Bar::WithPrint ? kBarWithPrint : kBar);
    const bool goods = sarne.screens().knowsGoods();
    for (int i = 0; i < aside_.count(); ++i)
        aside_[i].setVisible(i != static_cast<int>(place) && (goods || !kNeighbours[i].needsGoods));
    aside_.placeRow(kAside);
    ring().setArrows(FocusRing::Arrows::All);
}

void KitchenForm::dress(Label& label, const QRect& place, double points, bool bold, Qt::Alignment alignment) {
    label.place(place);
    label.setFont({QStringLiteral("Arial"), points, bold});
    label.setColor(colors::kTitle);
    label.setAlignment(alignment);
}

void KitchenForm::makeActions(std::span<const KitchenAction> texts, const QRect& first, int step) {
    for (const KitchenAction& text : texts) {
        const int index = static_cast<int>(actions_.size());
        auto* button = new Button(*this, QStringLiteral("cmdAkce(%1)").arg(index));
        button->dressAsText(Texts::tr(text.caption), Texts::tr(text.tip));
        button->place(first.translated(0, index * step));
        connect(button, &Button::clicked, this, [this, index] { act(index); });
        actions_.push_back(button);
    }
}

void KitchenForm::open() {
    app().PushScreen(*this);
    showForm();
}

void KitchenForm::sayState() {
    app().HookMessage(title_.text() + QStringLiteral(". ") + state_.text());
}

bool KitchenForm::listKey(TickList& list, const QKeyEvent& event, const std::function<void()>& enter) {
    if (!ring().isAt(&list)) return false;
    const int before = list.selected();
    if (isEnter(event)) {
        if (enter)
            enter();
        else if (before == RowPaging::kNone)
            app().Beep();
        else
            Q_EMIT list.used(before);
        return true;
    }
    if (!list.keyDown(event)) return false;
    if (before != list.selected()) ring().sayPart(list);
    return true;
}

void KitchenForm::setStops(std::vector<FocusGroup> groups) {
    groups.emplace_back(actions_);
    groups.emplace_back(aside_.stops());
    groups.emplace_back(bar_.stops());
    ring().setGroups(std::move(groups));
}

void KitchenForm::goBack() {
    app().PopScreen(*this);
}

void KitchenForm::showNeighbour(int index) {
    const auto show = kNeighbours[index].show;
    (app().screens().*show)();
}

void KitchenForm::paintGround(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
    const QRectF all = covered();
    painter.fillRect(QRectF(all.left(), all.top(), all.width(), kHeaderEnd - all.top()), colors::kTeal);
    painter.fillRect(QRectF(all.left(), kHeaderEnd, all.width(), kEdge), colors::kCopper);
    app()
        .resources()
        .picture(QString::fromLatin1(kPictures[static_cast<size_t>(place_)]))
        .draw(painter, kPicture, Fit::Inside);
    QRect bar, aside;
    for (int i = 0; i < bar_.count(); ++i) bar |= bar_[i].twips();
    for (int i = 0; i < aside_.count(); ++i)
        if (!aside_[i].isHidden()) aside |= aside_[i].twips();
    for (const QRect& plate : {bar, aside})
        if (!plate.isEmpty()) paintPlate(painter, plate.adjusted(-60, -30, 60, 0));
}

}  // namespace sarne
