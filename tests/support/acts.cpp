#include "support/acts.h"

#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <algorithm>

#include "forms/control.h"
#include "forms/timer.h"
#include "support/fakesarne.h"
#include "support/wheel.h"

namespace sarne::test {
namespace {

/// The highest first.
std::vector<Form*> showing(const FakeSarne& run) {
    std::vector<Form*> forms;
    for (QObject* child : run.window.children())
        if (auto* one = qobject_cast<Form*>(child); one && one->isVisible()) forms.insert(forms.begin(), one);
    return forms;
}

/// The mouse at \a place: of a control of the highest form that has it, or a point of the form in front.
void useMouse(const FakeSarne& run, const QString& place, bool clicks, bool twice) {
    if (const QStringList at = place.split(u','); at.size() == 2) {
        const QPoint pixel(at[0].toInt(), at[1].toInt());
        QWidget* hit = run.window.childAt(pixel);
        QTest::mouseMove(hit, hit->mapFrom(&run.window, pixel));
        return clicks ? QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&run.window, pixel)) : void();
    }
    qsizetype below = place.count(u'^');
    const QString name = place.section(u'.', 0, 0).remove(u'^');
    for (Form* form : showing(run)) {
        auto* control = form->findChild<Control*>(name);
        if (!control || !control->isVisible() || below-- > 0) continue;
        const QPoint middle = place.contains(u'.')
                                  ? control->part(place.section(u'.', 1).toInt()).place.center()
                                  : QRect({}, control->twips().size()).center();
        if (clicks) return click(run, form, name, middle, twice);
        QTest::mouseMove(control, control->toPixels(middle) + QPoint(1, 0));
        return QTest::mouseMove(control, control->toPixels(middle));
    }
    ADD_FAILURE() << "there is no " << place.toStdString();
}

void type(const FakeSarne& run, const QString& letters) {
    for (const QChar letter : letters) {
        const int key = letter.unicode() < 128 ? letter.toUpper().unicode() : int(Qt::Key_unknown);
        QKeyEvent typed(QEvent::KeyPress, key, {}, letter);
        QApplication::sendEvent(run.window.focusWidget(), &typed);
    }
}

void tick(const FakeSarne& run) {
    for (auto* timer : run.window.findChildren<Timer*>()) timer->fire();
}

/// As a screen reader does for its user.
void pressByReader(const Form& form, const QString& name) {
    QAccessibleInterface* heard =
        QAccessible::queryAccessibleInterface(form.findChild<Control*>(name.section(u'.', 0, 0)));
    if (name.contains(u'.')) heard = heard->child(name.section(u'.', 1).toInt());
    ASSERT_TRUE(heard && heard->actionInterface());
    heard->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace

bool canBePressed(const Control& control) {
    return control.isPressable() && control.isVisible() && control.isEnabled() &&
           control.focusPolicy() != Qt::NoFocus;
}

void settle() {
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

Form* front(const FakeSarne& run) {
    const auto forms = showing(run);
    return forms.empty() ? nullptr : forms.front();
}

void pressKey(FakeSarne& run, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* at = run.window.focusWidget();
    if (!at) at = front(run);
    if (at) QTest::keyClick(at, key, modifiers);
}

void click(const FakeSarne& run, const Form* form, const QString& name, QPoint twips, bool twice) {
    const auto* control = form ? form->findChild<Control*>(name) : nullptr;
    if (!control) return;
    const QPoint at = control->mapTo(&run.window, control->toPixels(twips));
    auto* hit = run.window.childAt(at);
    if (!hit) return;
    const QPoint within = hit->mapFrom(&run.window, at);
    QTest::mouseMove(hit, within + QPoint(1, 0));
    QTest::mouseMove(hit, within);
    const QPointer<QWidget> still = hit;
    QTest::mouseClick(hit, Qt::LeftButton, {}, within);
    if (twice && still) QTest::mouseDClick(still, Qt::LeftButton, {}, within);
}

QStringList pressables(const FakeSarne& run) {
    QStringList names;
    if (!front(run)) return names;
    for (const auto* control : front(run)->findChildren<Control*>())
        if (canBePressed(*control)) names << control->objectName();
    return names;
}

QStringList outOfReach(const FakeSarne& run) {
    constexpr int kLongest = 60;  // steps within a list or a text until the keyboard goes on
    const Form* screen = front(run);
    std::vector<QPointer<QWidget>> reached{run.window.focusWidget()};
    for (size_t at = 0; at < reached.size() && reached.size() < 200; ++at)
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up}) {
            if (!reached[at]) break;
            reached[at]->setFocus(Qt::TabFocusReason);
            for (int step = 0; step < kLongest && run.window.focusWidget() == reached[at]; ++step)
                QTest::keyClick(reached[at], arrow);
            if (front(run) != screen) return {u"everything that lies behind another screen"_s};
            if (std::ranges::find(reached, QPointer<QWidget>(run.window.focusWidget())) == reached.end())
                reached.emplace_back(run.window.focusWidget());
        }
    QStringList names = pressables(run);
    for (const QPointer<QWidget>& one : reached)
        if (one) names.removeOne(one->objectName());
    return names;
}

void setReader(bool listens) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listens);
}

void perform(FakeSarne& run, const QString& word) {
    const QString verb = word.section(u':', 0, 0), what = word.section(u':', 1);
    if (verb == u"wheel")
        wheel(*front(run)->findChild<Control*>(what), -120);
    else if (verb == u"click" || verb == u"double" || verb == u"hover")
        useMouse(run, what, verb != u"hover", verb == u"double");
    else if (verb == u"press")
        pressByReader(*front(run), what);
    else if (verb == u"type")
        type(run, what);
    else if (verb == u"answer")
        run.answers.push_back(what.toInt());
    else if (verb == u"wait")
        run.time.time += what.toInt();
    else if (verb == u"hide")
        front(run)->findChild<Control*>(what)->hide();
    else if (verb == u"voice")
        run.speech.find();
    else if (verb == u"tick")
        tick(run);
    else if (verb == u"letters")
        run.window.eyes().setTextPercent(what.toInt());
    else if (verb == u"held") {
        const bool space = what == u"Space";
        QKeyEvent again(QEvent::KeyPress, QKeySequence(what)[0].key(),
                        QKeySequence(what)[0].keyboardModifiers(), space ? u" "_s : u"\r"_s, true);
        QApplication::sendEvent(run.window.focusWidget() ? run.window.focusWidget() : front(run), &again);
    } else if (verb == u"reader")
        setReader(true);
    else if (verb == u"contrast")
        run.window.eyes().setContrast(true);
    else if (verb == u"lowest")
        showing(run).back()->setFocus();
    else if (verb == u"size")
        run.window.resize(what.section(u'x', 0, 0).toInt(), what.section(u'x', 1).toInt());
    else if (verb == u"over")
        run.openAbove("frmNad");
    else if (verb == u"pop")
        run.PopScreen(*run.FormStack.top());
    else {
        const QKeyCombination key = QKeySequence(word)[0];
        EXPECT_NE(key.key(), Qt::Key_unknown) << word.toStdString();
        pressKey(run, key.key(), key.keyboardModifiers());
    }
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
