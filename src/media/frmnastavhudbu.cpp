#include "media/frmnastavhudbu.h"

#include <QFileInfo>
#include <QKeyEvent>

#include "core/texts.h"
#include "forms/backgroundmusic.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"

namespace sarne {
namespace {

const TextFont kTitleFont{QStringLiteral("Times New Roman"), 18, true, true};
const TextFont kFont{QStringLiteral("Arial"), 12};

constexpr QRect kForm(3000, 2100, 6000, 4800);
constexpr QRect kTitle(300, 195, 5400, 450);
constexpr int kLeft = 420, kWidth = 5200, kFirstRow = 840, kRow = 435, kRowHeight = 390;
constexpr int kTrackTop = 3165, kTrackWidth = 2500;
constexpr QRect kButtons[] = {{1230, 4020, 1680, 540}, {3090, 4020, 1680, 540}};

}  // namespace

frmNastavHudbu::frmNastavHudbu(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmNastavHudbu")),
      title_(*this, QStringLiteral("lblNadpis")),
      missing_(*this, QStringLiteral("lblChybi")) {
    place(kForm);
    title_.setText(Texts::tr("Nastavení hudby"));
    title_.setFont(kTitleFont);
    title_.setColor(colors::kTitle);
    title_.setAlignment(Qt::AlignCenter);
    title_.place(kTitle);
    const Resources& pictures = app().resources();
    for (size_t i = 0; i < kSoundSettings; ++i) {
        auto* box = chkNastav[i] = new CheckBox(*this, QStringLiteral("chkNastav(%1)").arg(i));
        box->setMarkPictures(pictures.picture(QStringLiteral("Zaskrtnuto")),
                             pictures.picture(QStringLiteral("Nezaskrtnuto")));
        box->setFont(kFont);
        box->setColor(colors::kPaper);
        box->place({kLeft, kFirstRow + int(i) * kRow, kWidth, kRowHeight});
        connect(box, &CheckBox::toggled, this, [this, i] { switched(i); });
    }
    const QString tracks[] = {Texts::tr("Hudba"), Texts::tr("Zvuky vín")};
    const QString captions[] = {QStringLiteral("&Nastav"), QStringLiteral("&Storno")};
    for (int i = 0; i < 2; ++i) {
        auto* track = opthudba[size_t(i)] = new OptionButton(*this, QStringLiteral("opthudba(%1)").arg(i));
        track->setMarkPictures(pictures.picture(QStringLiteral("VolbaAno")),
                               pictures.picture(QStringLiteral("VolbaNe")));
        track->setFont(kFont);
        track->setColor(colors::kPaper);
        track->setCaption(tracks[i]);
        track->place({kLeft + i * kTrackWidth, kTrackTop, kTrackWidth, kRowHeight});
        connect(track, &OptionButton::toggled, this, [this, i](bool chosen) {
            if (chosen) trackChosen(i == 1);
        });
        auto* button = cmdOkEnd[size_t(i)] = new Button(*this, QStringLiteral("cmdOkEnd(%1)").arg(i));
        button->dressAsText(captions[i]);
        button->place(kButtons[i]);
        connect(button, &Button::clicked, this, [this, i] { press(i); });
    }
    missing_.setFont(kFont);
    missing_.setColor(colors::kPaper);
    missing_.setWordWrap(true);
    std::vector<TwipWidget*> stops(chkNastav.begin(), chkNastav.end());
    stops.insert(stops.end(), opthudba.begin(), opthudba.end());
    stops.insert(stops.end(), cmdOkEnd.begin(), cmdOkEnd.end());
    ring().setStops(stops);
    ring().setArrows(FocusRing::Arrows::All);
}

void frmNastavHudbu::Zobraz() {
    load();
    app().PushScreen(*this);
    showForm();
    cmdOkEnd[0]->setFocus();
}

void frmNastavHudbu::load() {
    loading_ = true;
    settings_ = readSoundSettings(app().Db());
    for (size_t i = 0; i < kSoundSettings; ++i) {
        chkNastav[i]->setVisible(i < settings_.size());
        if (i >= settings_.size()) continue;
        chkNastav[i]->setChecked(settings_[i].on);
        showCaption(i);
    }
    opthudba[app().SoundFlags[kWineSounds] ? 1 : 0]->setChecked(true);
    enableTracks();
    tellWhatIsMissing();
    loading_ = false;
}

void frmNastavHudbu::tellWhatIsMissing() {
    if (settings_.empty()) {
        missing_.setText(
            Texts::tr("Kuchařku se nepodařilo otevřít, přepínače zvuků proto chybějí. Víc řekne "
                      "nápověda (F1)."));
        missing_.place({kLeft, kFirstRow, kWidth, 2 * kRow});
    } else if (!QFileInfo(app().mediaFile({})).isDir()) {
        missing_.setText(Texts::tr("Složka s hudbou nebyla nalezena (F1)."));
        missing_.place({kLeft, kTrackTop + kRow, kWidth, kRowHeight});
    }
}

void frmNastavHudbu::showCaption(size_t index) {
    const QString state =
        chkNastav[index]->isChecked() ? QStringLiteral(" - Zapnuto") : QStringLiteral(" - Vypnuto");
    chkNastav[index]->setCaption(settings_[index].name + state);
}

void frmNastavHudbu::switched(size_t index) {
    if (loading_ || index >= settings_.size()) return;
    showCaption(index);
    if (index == kMusic) enableTracks();
    if (index == kWineSounds) opthudba[chkNastav[index]->isChecked() ? 1 : 0]->setChecked(true);
}

void frmNastavHudbu::trackChosen(bool wineSounds) {
    if (!loading_) chkNastav[kWineSounds]->setChecked(wineSounds);
}

void frmNastavHudbu::enableTracks() {
    // Without music there is no track to choose.
    const bool music = chkNastav[kMusic]->isChecked();
    for (OptionButton* track : opthudba) track->setEnabled(music);
    chkNastav[kWineSounds]->setEnabled(music);
}

void frmNastavHudbu::restored() {
    enableTracks();
    Form::restored();
}

void frmNastavHudbu::press(int index) {
    if (index == 0) store();
    app().PopScreen(*this);
}

void frmNastavHudbu::store() {
    std::vector<bool> on;
    for (size_t i = 0; i < settings_.size(); ++i) on.push_back(chkNastav[i]->isChecked());
    storeSoundSettings(app().Db(), on);
    const bool wineSounds = opthudba[1]->isChecked();
    for (size_t i = 0; i < on.size(); ++i) app().SoundFlags[i] = on[i];
    applyMusicSwitches(app(), wineSounds);
}

bool frmNastavHudbu::keyDown(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_S:
            press(1);
            return true;
        case Qt::Key_N:
            press(0);
            return true;
        default:
            return Form::keyDown(event);
    }
}

void frmNastavHudbu::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("zprava")));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
