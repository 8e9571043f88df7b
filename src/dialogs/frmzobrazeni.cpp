#include "dialogs/frmzobrazeni.h"

#include "core/texts.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/stage.h"

namespace sarne {
namespace {

const TextFont kTitleFont{QStringLiteral("Times New Roman"), 18, true, true};
const TextFont kFont{QStringLiteral("Arial"), 13};
const TextFont kSmallFont{QStringLiteral("Arial"), 11};

constexpr QRect kForm(2700, 2250, 6600, 4350);
constexpr QRect kTitle(300, 195, 6000, 450);
constexpr QRect kSize(420, 840, 5760, 390);
constexpr int kLeft = 420, kChoices = 1275, kChoiceWidth = 1860, kRow = 660;
constexpr QRect kCalm(kLeft, 1980, 5760, kRow);
constexpr QRect kContrast(kLeft, 2580, 5760, kRow);
constexpr QRect kHint(kLeft, 3420, 3900, 750);
constexpr QRect kDone(4440, 3420, 1740, 660);

}  // namespace

frmZobrazeni::frmZobrazeni(basSarne& sarne)
    : Form(sarne, QStringLiteral("frmZobrazeni")),
      title_(*this, QStringLiteral("lblNadpis")),
      size_(*this, QStringLiteral("lblVelikost")),
      calm_(*this, QStringLiteral("chkKlid")),
      contrast_(*this, QStringLiteral("chkKontrast")),
      hint_(*this, QStringLiteral("lblRada")),
      done_(*this, QStringLiteral("cmdHotovo")) {
    place(kForm);
    setAccessibleName(Texts::tr("Zobrazení"));
    const auto label = [](Label& one, const QString& text, const TextFont& font, const QRect& place) {
        one.setText(text);
        one.setFont(font);
        one.setColor(colors::kPaper);
        one.setWordWrap(true);
        one.place(place);
    };
    label(title_, Texts::tr("Zobrazení"), kTitleFont, kTitle);
    title_.setColor(colors::kTitle);
    title_.setAlignment(Qt::AlignCenter);
    label(size_, Texts::tr("Velikost textů"), kFont, kSize);
    label(hint_, Texts::tr("Velikost mění i Ctrl a plus nebo minus, toto okno otevře F10."), kSmallFont,
          kHint);
    const auto dress = [this](CheckBox& box, const QString& caption, const QRect& place, const char* on,
                              const char* off) {
        box.setMarkPictures(app().resources().picture(QLatin1String(on)),
                            app().resources().picture(QLatin1String(off)));
        box.setFont(kFont);
        box.setColor(colors::kPaper);
        box.setCaption(caption);
        box.place(place);
    };
    for (size_t i = 0; i < sizes_.size(); ++i) {
        sizes_[i] = new OptionButton(*this, QStringLiteral("optVelikost(%1)").arg(i));
        dress(*sizes_[i], Texts::tr("%1 %").arg(Eyes::kSizes[i]),
              {kLeft + int(i) * kChoiceWidth, kChoices, kChoiceWidth, kRow}, "VolbaAno", "VolbaNe");
        connect(sizes_[i], &CheckBox::toggled, this, [this, i](bool chosen) {
            if (chosen && !showing_) app().stage().eyes().setTextPercent(Eyes::kSizes[i]);
        });
    }
    dress(calm_, Texts::tr("Klid: nic se samo nehýbe"), kCalm, "Zaskrtnuto", "Nezaskrtnuto");
    dress(contrast_, Texts::tr("Vysoký kontrast: tmavé pozadí bez obrázků"), kContrast, "Zaskrtnuto",
          "Nezaskrtnuto");
    connect(&calm_, &CheckBox::toggled, this, [this](bool on) {
        if (!showing_) app().stage().eyes().setCalm(on);
    });
    connect(&contrast_, &CheckBox::toggled, this, [this](bool on) {
        if (!showing_) app().stage().eyes().setContrast(on);
    });
    done_.dressAsText(Texts::tr("&Hotovo"));
    done_.place(kDone);
    connect(&done_, &Button::clicked, this, &frmZobrazeni::goBack);
    ring().setStops({sizes_[0], sizes_[1], sizes_[2], &calm_, &contrast_, &done_});
    ring().setArrows(FocusRing::Arrows::All);
}

void frmZobrazeni::Zobraz() {
    showChoices();
    app().PushScreen(*this);
    showForm();
    for (size_t i = 0; i < sizes_.size(); ++i)
        if (sizes_[i]->isChecked()) ring().focus(*sizes_[i]);
    ring().sayWithoutReader(accessibleName());
}

void frmZobrazeni::showChoices() {
    showing_ = true;
    for (size_t i = 0; i < sizes_.size(); ++i) sizes_[i]->setChecked(eyes().textPercent() == Eyes::kSizes[i]);
    calm_.setChecked(eyes().isCalm());
    contrast_.setChecked(eyes().hasContrast());
    showing_ = false;
}

void frmZobrazeni::goBack() {
    app().PopScreen(*this);
}

void frmZobrazeni::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("menu")));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
