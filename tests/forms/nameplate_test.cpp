#include "forms/nameplate.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "forms/label.h"
#include "support/explore.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// "x y w h" of the thing, and of the pointer where it is not far away.
TEST(NamePlatePlace, BelowTheThingOnTheStageAndNeverUnderThePointer) {
    test::expectCases(u"jmenovka-kde"_s, [](const QString& text) {
        std::vector<int> at;
        for (const QString& number : text.split(u' ')) at.push_back(number.toInt());
        at.resize(8);
        const QRect away(11500, 8500, 500, 500), pointer(at[4], at[5], at[6], at[7]);
        const QPoint corner =
            namePlatePlace({2000, 400}, {at[0], at[1], at[2], at[3]}, pointer.isEmpty() ? away : pointer)
                .topLeft();
        return u"%1 %2"_s.arg(corner.x()).arg(corner.y());
    });
}

/// Things with names, all over the stage; a timer changes "cmdMeni" step by step.
class Named : public Form {
  public:
    Named(FakeSarne& run, bool isChanging) : Form(run, u"frmUkazka"_s), timer_(new Timer(this)) {
        run.PushScreen(*this);
        Button& changing = add("cmdMeni", {3000, 3000, 900, 900}, u"Pánev"_s);
        add("cmdDlouhy", {300, 300, 900, 900}, u"Dlouhé jméno věci, které se na jednu řádku nevejde"_s);
        add("cmdRoh", {11400, 8400, 600, 600}, u"Konec"_s);
        add("cmdNejde", {5000, 6000, 900, 900}, u"Nejde"_s).setEnabled(false);
        add("cmdText", {7000, 6000, 3600, 540}, u"Storno"_s).dressAsText(u"Storno"_s);
        add("cmdMaly", {7000, 7000, 600, 540}, u"Jídelníček"_s).dressAsText(u"Jídelníček"_s);
        add("cmdBezejmenny", {9000, 3000, 900, 900}, {});
        ring().setStops(stops_);
        showForm();
        if (!isChanging) return;
        timer_->setInterval(1000);
        timer_->setEnabled(true);
        connect(timer_, &Timer::tick, this, [this, &changing] {
            const auto tip = [&changing](const QString& text) { changing.setTip(text); };
            switch (++ticks_) {
                case 2:
                    return changing.moveTo({3000, 6000});
                case 3:
                    return tip(u"Velká pánev"_s);
                case 4:
                    return changing.place({3000, 6000, 1500, 1500});
                case 5:
                    return tip(u"Hrnec"_s);
                case 6:
                    return changing.hide();
                case 7:
                    return changing.show();
                case 8:
                    return changing.setEnabled(false);
            }
        });
    }

  private:
    Button& add(const char* name, const QRect& place, const QString& tip) {
        auto* button = new Button(*this, QString::fromLatin1(name));
        button->place(place);
        button->setTip(tip);
        stops_.push_back(button);
        return *button;
    }
    std::vector<TwipWidget*> stops_;
    Timer* timer_;
    int ticks_ = 0;
};

TEST(NamePlates, StepByStep) {
    test::walkAll("cesty-jmenovek", [](const QString& what, const test::Look& look) {
        FakeSarne run;
        new Named(run, what == u"meni");
        look(run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
