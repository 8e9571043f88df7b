#include "screens/index/barform.h"

#include <QPainter>

#include "core/texts.h"
#include "forms/colors.h"
#include "forms/resources.h"
#include "screens/index/musicswitch.h"

namespace sarne {
namespace {

const TextFont kTitleFont{QStringLiteral("Arial"), 20, true};

constexpr BarFace kFaces[BarForm::kBarButtons] = {barface::kPrint,
                                                  {"Help", QT_TRANSLATE_NOOP("Texts", "Nápověda")},
                                                  barface::kBack,
                                                  barface::kEnd,
                                                  {"ZvukOff", QT_TRANSLATE_NOOP("Texts", "Hudba")}};

}  // namespace

BarForm::BarForm(basSarne& sarne, const QString& name)
    : Form(sarne, name),
      title_(*this, QStringLiteral("lblTitul")),
      imgBtnHlavni(*this, QStringLiteral("imgBtnHlavni"), kFaces, [this](int i) { barClicked(i); }) {
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    title_.place(kTitle);
    title_.setFont(kTitleFont);
    title_.setColor(colors::kTitle);
    title_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    imgBtnHlavni.placeRow(kBar);
    setContent({});
    ring().setArrows(FocusRing::Arrows::Sideways);
    showSound();
}

void BarForm::setContent(const std::vector<TwipWidget*>& controls) {
    std::vector<TwipWidget*> stops = controls;
    for (TwipWidget* stop : imgBtnHlavni.stops()) stops.push_back(stop);
    ring().setStops(stops);
}

void BarForm::setTitle(const QString& title) {
    title_.setText(title);
    setAccessibleName(title);
}

int BarForm::titleEnd() const {
    return kTitle.left() + Label::measure(title(), larger(kTitleFont, textScale())).width();
}

void BarForm::open(Control& first) {
    app().PushScreen(*this);
    showForm();
    ring().focus(first);
    app().HookMessage(title());
}

void BarForm::goBack() {
    app().PopScreen(*this);
}

void BarForm::restored() {
    showSound();
    Form::restored();
}

void BarForm::showSound() {
    Button& button = imgBtnHlavni[kSound];
    const bool on = app().SoundFlags[kMusic];
    button.setLatched(!on);
    button.setTip(on ? Texts::tr("Vypnout hudbu") : Texts::tr("Zapnout hudbu"));
}

void BarForm::barClicked(int button) {
    if (button == kPrint) return print();
    if (button == kHelp) return helpButton();
    switchMusic(app());
    showSound();
}

void BarForm::paintGround(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
}

void BarForm::paint(QPainter& painter) {
    paintGround(painter);
    const QRectF all = covered();
    const auto band = [&](double top, double bottom, QColor color) {
        painter.fillRect(QRectF(QPointF(all.left(), top), QPointF(all.right(), bottom)), color);
    };
    band(all.top(), kTitleBand - 30, colors::kTeal);
    band(kBarBand + 30, all.bottom(), colors::kTeal);
    band(kTitleBand - 30, kTitleBand, colors::kCopper);
    band(kBarBand, kBarBand + 30, colors::kCopper);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
