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
    const auto add = [&steps](const QString& name, const QString& words, bool byKey, bool isForEyes = false) {
        const Act act = [=](FakeSarne& on) {
            for (const QString& word : words.split(u' ')) perform(on, word);
        };
        steps.push_back({name, act, byKey, isForEyes});
    };
    for (const QString& key :
         u"Down Up Left Right Home End PgDown PgUp Tab Backtab Return Space Esc Del "
         "Backspace F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 0 3 A C K N S X + -"_s.split(u' '))
        add(u"key "_s + key, key, true);
    for (const QString& key : {u"Down"_s, u"Tab"_s})
        add(u"keys %1, Enter"_s.arg(key), key + u" Return"_s, true);
    for (const QString& key : {u"Return"_s, u"Space"_s}) add(u"held "_s + key, u"held:"_s + key, true);
    for (const QString& keys : {u"Alt+F4"_s, u"Ctrl+Z"_s, u"Ctrl+C"_s}) add(u"keys "_s + keys, keys, true);
    add(u"key F9 with a voice"_s, u"voice F9"_s, true);
    add(u"all timers"_s, u"tick"_s, false);
    steps.push_back({u"wheel"_s, [](FakeSarne& on) {
                         if (front(on)) wheel(*front(on), -120);
                     }});
    add(u"letters of 150 %"_s, u"letters:150"_s, false, true);
    add(u"contrast"_s, u"contrast"_s, false, true);
    add(u"wide"_s, u"size:1200x600"_s, false, true);
    return steps;
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
