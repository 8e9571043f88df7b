#include "forms/nameplate.h"

#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "forms/label.h"
#include "support/explore.h"
#include "support/fakesarne.h"

namespace sarne {
namespace {

TEST(NamePlatePlace, BelowTheThingOnTheStageAndNeverUnderThePointer) {
    const QSize plate(2000, 400);
    const QRect away(11500, 8500, 500, 500);
    const struct {
        const char* what;
        QRect thing, pointer;
        QPoint corner;
    } cases[] = {
        {"below, in the middle", {5000, 4000, 1000, 1000}, away, {4499, 5075}},
        {"at the left edge", {0, 4000, 600, 600}, away, {0, 4675}},
        {"at the right edge", {11400, 4000, 600, 600}, away, {10000, 4675}},
        {"at the lower edge: above", {5000, 8200, 1000, 800}, away, {4499, 7725}},
        {"pointer at the lower rim: below the pointer",
         {5000, 4000, 1000, 1000},
         {5400, 4900, 500, 600},
         {4499, 5575}},
        {"lower edge, pointer at the upper rim: above the pointer",
         {5000, 8200, 1000, 800},
         {5400, 8000, 500, 600},
         {4499, 7525}},
        {"as large as the stage", {0, 0, 12000, 9000}, {6000, 4000, 500, 500}, {4999, 3525}},
        {"as large as the stage, by keyboard", {0, 0, 12000, 9000}, {6000, 8700, 500, 500}, {4999, 8225}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(namePlatePlace(plate, c.thing, c.pointer).topLeft(), c.corner) << c.what;
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
