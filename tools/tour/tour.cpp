#include "tour.h"

#include <QApplication>
#include <QPointingDevice>
#include <QTest>
#include <QTimer>
#include <memory>

#include "app/program.h"
#include "blackline.h"
#include "forms/control.h"
#include "forms/label.h"
#include "screentext.h"
#include "textcontrast.h"

namespace sarne {

Form* Tour::front() const {
    Stage& stage = program_.stage();
    return stage.modalForm() ? stage.modalForm() : stage.focusForm();
}

void Tour::stop(const QString& form, const QString& what) {
    wait();
    const QString name = what.isEmpty() ? form : form + u'-' + what;
    const qsizetype before = faults_.size();
    const QImage seen = picture(name);
    check(form, name, seen);
    if (faults_.size() > before) save(name, seen);
}

void Tour::check(const QString& form, const QString& name, const QImage& seen) {
    const QString there = frontName();
    if (there != form) fault(QStringLiteral("%1: %2 is in front").arg(name, there));
    sheets_.add(name, seen);
    const bool groundsAreBlack = program_.stage().eyes().hasContrast();
    if (const QString black = blackLine(seen); !groundsAreBlack && !black.isEmpty())
        fault(name + QStringLiteral(": ") + black);
    const std::vector<TextContrast> painted = textContrasts(program_.stage());
    const ScreenText shown = screenText(program_.stage(), painted);
    texts_ << QStringLiteral("== ") + name + u'\n' + shown.lines.join(u'\n');
    for (const QString& cut : shown.cut)
        fault(QStringLiteral("%1: not all can be read of %2").arg(name, cut));
    checkContrast(name, painted);
    checkNames(name);
    checkReading(name, painted);
    if (form == u"frmSplash") return;  // a film plays there: it looks as the moment has it
    if (const QString wrong = looks_.fault(name, seen); !wrong.isEmpty()) fault(wrong);
}

/// Whoever hears the screen is told of everything that can be used or looked at by words.
void Tour::checkNames(const QString& name) {
    if (!front()) return;
    for (const Control* control : front()->findChildren<Control*>()) {
        if (!control->isVisible() || control->isUnheard()) continue;
        bool named = control->role() == QAccessible::StaticText || !control->accessibleName().isEmpty();
        for (int part = 0; part < control->partCount(); ++part) named &= !control->part(part).name.isEmpty();
        if (!named) fault(QStringLiteral("%1: %2 has no name to hear").arg(name, control->objectName()));
    }
}

/// Whoever has the screen read aloud hears what is written there.
void Tour::checkReading(const QString& name, const std::vector<TextContrast>& painted) {
    const QString read = front() ? front()->textToRead() : QString();
    read_ << QStringLiteral("== ") + name + u'\n' + read;
    if (read.isEmpty() && !painted.empty()) fault(name + QStringLiteral(": nothing of it is read aloud"));
}

void Tour::checkContrast(const QString& name, const std::vector<TextContrast>& painted) {
    for (const TextContrast& text : painted) {
        leastContrast_ = std::min(leastContrast_, text.contrast);
        if (text.contrast >= readable_) continue;
        fault(QStringLiteral("%1: \"%2\" at %3, %4 has a contrast of %5 (%6 on %7)")
                  .arg(name, text.text)
                  .arg(text.place.x())
                  .arg(text.place.y())
                  .arg(text.contrast, 0, 'f', 1)
                  .arg(text.ink.name(), text.ground.name()));
    }
}

bool Tour::has(const QString& control) const {
    const QWidget* found = front() ? front()->findChild<QWidget*>(control) : nullptr;
    return found && found->isVisible();
}

QString Tour::frontName() const {
    return front() ? front()->name() : QStringLiteral("nothing");
}

void Tour::visitHelp() {
    const QString form = frontName();
    key(Qt::Key_F1);
    stop(QStringLiteral("frmStranka"), QStringLiteral("F1-") + form);
    key(Qt::Key_Escape);
}

void Tour::skipIntro() {
    constexpr int kSomeFrames = 600;  // milliseconds
    QTimer::singleShot(kSomeFrames, &program_.stage(), [this] {
        if (!front() || front()->name() != u"frmSplash") return;
        stop(QStringLiteral("frmSplash"));
        key(Qt::Key_Space);
    });
}

QImage Tour::picture(const QString& name, As how) {
    QImage seen = program_.stage().grab().toImage();
    if (kept_.match(name).hasMatch()) save(name, seen, how);
    return seen;
}

void Tour::save(const QString& name, const QImage& seen, As how) {
    const QString file = pictures_.filePath(name + QLatin1String(how == As::Exact ? ".png" : ".jpg"));
    constexpr int kQuick = 80;  // of a picture without loss: larger, and sooner written
    if (!seen.save(file, nullptr, kQuick))
        fault(QStringLiteral("%1: the picture cannot be written").arg(name));
}

QWidget* Tour::find(const QString& control) {
    QWidget* found = front() ? front()->findChild<QWidget*>(control) : nullptr;
    if (found && found->isVisible()) return found;
    fault(QStringLiteral("no %1 on %2")
              .arg(control, front() ? front()->name() : QStringLiteral("an empty stage")));
    return nullptr;
}

void Tour::hover(const QString& control) {
    if (QWidget* widget = find(control)) {
        const auto [hit, at] = hitBy(*widget);
        QTest::mouseMove(hit, at);
    }
    wait();
}

std::pair<QWidget*, QPoint> Tour::hitBy(const QWidget& aimedAt) const {
    // The mouse meets whatever lies there, as a real one does.
    Stage& stage = program_.stage();
    const QPoint at = aimedAt.mapTo(&stage, aimedAt.rect().center());
    QWidget* hit = stage.childAt(at);
    if (!hit) hit = &stage;
    return {hit, hit->mapFrom(&stage, at)};
}

void Tour::clickWidget(QWidget& widget) const {
    const auto [hit, at] = hitBy(widget);
    QTest::mouseClick(hit, Qt::LeftButton, {}, at);
}

void Tour::press(const QString& control) {
    if (QWidget* widget = find(control)) clickWidget(*widget);
}

void Tour::click(const QString& control) {
    press(control);
    wait();
}

void Tour::doubleClick(const QString& control) {
    if (QWidget* widget = find(control)) {
        const auto [hit, at] = hitBy(*widget);
        QTest::mouseDClick(hit, Qt::LeftButton, {}, at);
    }
    wait();
}

void Tour::swipe(int direction) {
    constexpr int kStep = 30;  // pixels of a display of the design's size
    constexpr int kTurned = 600;
    static const auto screen = std::unique_ptr<QPointingDevice>(QTest::createTouchDevice());
    Stage& stage = program_.stage();
    const QImage before = stage.grab().toImage();
    QPoint at = stage.rect().center();
    auto finger = QTest::touchEvent(&stage, screen.get(), false);
    finger.press(0, at, &stage).commit();
    for (int step = 0; step < 5; ++step)
        finger.move(0, at -= QPoint(direction * kStep * stage.height() / 600, 0), &stage).commit();
    finger.release(0, at, &stage).commit();
    wait(kTurned);
    if (stage.grab().toImage() == before) fault(frontName() + QStringLiteral(": a swipe turns nothing"));
}

void Tour::clickItem(const QString& label) {
    for (Form* form : program_.stage().forms()) {
        if (form->name() != u"frmMenu" || !form->isVisible()) continue;
        for (auto* item : form->findChildren<Label*>()) {
            if (item->isVisible() && item->text().trimmed() == label) {
                clickWidget(*item);
                return wait();
            }
        }
    }
    fault(QStringLiteral("no menu item \"%1\"").arg(label));
}

void Tour::send(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = QApplication::focusWidget();
    QTest::keyClick(target ? target : &program_.stage(), key, modifiers);
}

void Tour::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    send(key, modifiers);
    wait();
}

void Tour::type(const QString& text) {
    if (QWidget* target = QApplication::focusWidget()) QTest::keyClicks(target, text);
}

void Tour::later(const std::function<void()>& what) {
    constexpr int kUntilShown = 150;  // milliseconds
    QTimer::singleShot(kUntilShown, &program_.stage(), what);
}

void Tour::writeSheets() {
    int number = 0;
    for (const QImage& sheet : sheets_.sheets()) {
        const QString file = QStringLiteral("sheet-%1.jpg").arg(++number);
        if (!sheet.save(pictures_.filePath(file))) fault(file + QStringLiteral(" cannot be written"));
    }
}

void Tour::wait(int milliseconds) {
    QTest::qWait(milliseconds);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
