#include "support/steps.h"

#include "forms/control.h"
#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/wheel.h"

namespace sarne::test {
namespace {

/// The number of one of several alike: "imgFoto(1)"; 0 of one that stands alone.
int numberOf(const QString& name) {
    return name.section(u'(', 1).section(u')', 0, 0).toInt();
}

/// Steps that use \a control: the wheel over it unless it is a button, its middle, and the first things
/// within it.
void addClicks(std::vector<Step>& steps, const Control& control) {
    const QString name = control.objectName();
    if (!control.isPressable())
        steps.push_back({u"wheel over "_s + name, [=](FakeSarne& run) {
                             auto* over = front(run) ? front(run)->findChild<Control*>(name) : nullptr;
                             if (over) wheel(*over, -120);
                         }});
    std::vector<QPoint> places{QRect({}, control.twips().size()).center()};
    for (int i = 0, found = 0; i < control.partCount() && found < 3; ++i)
        if (const QRect place = control.part(i).place; !place.isEmpty() && ++found)
            places.push_back(place.center());
    for (const QPoint place : places) {
        const QString step = u"%1 at %2,%3"_s.arg(name).arg(place.x()).arg(place.y());
        steps.push_back({u"click "_s + step,
                         [=](FakeSarne& run) { click(run, front(run), name, place, false); }, false, false,
                         place == places[0] ? name : QString()});
        if (places.size() > 1 || name.startsWith(u"lbl"))
            steps.push_back(
                {u"double "_s + step, [=](FakeSarne& run) { click(run, front(run), name, place, true); }});
    }
}

}  // namespace

bool isOneOfMany(const Form& form, const QString& name) {
    const QString stem = name.section(u'(', 0, 0) + u'(';
    const int number = numberOf(name);
    constexpr int kFew = 10;
    int last = 0;
    for (const auto* control : form.findChildren<Control*>())
        if (control->isVisible() && control->objectName().startsWith(stem))
            last = std::max(last, numberOf(control->objectName()));
    return name.contains(u'(') && last >= kFew && number > 2 && number < last;
}

std::vector<Step> stepsOn(const FakeSarne& run) {
    std::vector<Step> steps;
    const Form* form = front(run);
    if (!form) return steps;
    for (const auto* control : form->findChildren<Control*>()) {
        if (!control->isVisible() || !control->isEnabled() || control->size().isEmpty()) continue;
        if (!control->testAttribute(Qt::WA_TransparentForMouseEvents) &&
            !isOneOfMany(*form, control->objectName()))
            addClicks(steps, *control);
    }
    const auto keys = {Qt::Key_Down,   Qt::Key_Up,       Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home,
                       Qt::Key_End,    Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Tab,    Qt::Key_Backtab,
                       Qt::Key_Return, Qt::Key_Space,    Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Backspace,
                       Qt::Key_F1,     Qt::Key_F2,       Qt::Key_F3,     Qt::Key_F4,     Qt::Key_F5,
                       Qt::Key_F6,     Qt::Key_F7,       Qt::Key_F8,     Qt::Key_F9,     Qt::Key_F10,
                       Qt::Key_0,      Qt::Key_3,        Qt::Key_A,      Qt::Key_C,      Qt::Key_K,
                       Qt::Key_N,      Qt::Key_S,        Qt::Key_X,      Qt::Key_Plus,   Qt::Key_Minus};
    for (const Qt::Key key : keys)
        steps.push_back(
            {u"key "_s + QKeySequence(key).toString(), [=](FakeSarne& on) { pressKey(on, key); }, true});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Tab})
        steps.push_back({u"keys %1, Enter"_s.arg(QKeySequence(key).toString()),
                         [=](FakeSarne& on) {
                             pressKey(on, key);
                             pressKey(on, Qt::Key_Return);
                         },
                         true});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space})
        steps.push_back({u"held "_s + QKeySequence(key).toString(),
                         [=](FakeSarne& on) { perform(on, u"held:"_s + QKeySequence(key).toString()); },
                         true});
    for (const auto& [key, with] : {std::pair(Qt::Key_F4, Qt::AltModifier),
                                    {Qt::Key_Z, Qt::ControlModifier},
                                    {Qt::Key_C, Qt::ControlModifier}})
        steps.push_back({u"keys "_s + QKeySequence(with | key).toString(),
                         [=](FakeSarne& on) { pressKey(on, key, with); }, true});
    steps.push_back({u"key F9 with a voice"_s,
                     [](FakeSarne& on) {
                         on.speech.find();
                         pressKey(on, Qt::Key_F9);
                     },
                     true});
    steps.push_back({u"all timers"_s, [](FakeSarne& on) { perform(on, u"tick"_s); }});
    steps.push_back({u"wheel"_s, [](FakeSarne& on) {
                         if (front(on)) wheel(*front(on), -120);
                     }});
    steps.push_back(
        {u"letters of 150 %"_s, [](FakeSarne& on) { on.window.eyes().setTextPercent(150); }, false, true});
    steps.push_back({u"contrast"_s, [](FakeSarne& on) { on.window.eyes().setContrast(true); }, false, true});
    steps.push_back({u"wide"_s, [](FakeSarne& on) { on.window.resize(1200, 600); }, false, true});
    return steps;
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
