#include "forms/bassarne.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <algorithm>

#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/stage.h"
#include "platform/effectplayer.h"

namespace sarne {
namespace {

/// Silent where nobody asks for it: the tour does, users have no use for it.
Q_LOGGING_CATEGORY(lackingMedia, "sarne.media", QtFatalMsg)

}  // namespace

Picture basSarne::mediaPicture(const QString& relative) const {
    const QString file = mediaFile(relative);
    Picture picture = Picture::fromFile(file);
    if (picture.isNull())
        qCWarning(lackingMedia).noquote()
            << (file.isEmpty() ? "no picture at" : "nothing reads the picture at") << relative;
    return picture;
}

void basSarne::PlayEffect(int n) {
    EffectWave.clear();
    EffectWave = resources().effect(n + 1);
    if (!EffectWave.isEmpty()) effects().play(EffectWave);
    Yield();
}

void basSarne::StopEffect() {
    effects().stop();
}

void basSarne::PushScreen(Form& screen, KeepEnabled keep) {
    readAloud().stop();
    if (Form* below = FormStack.top()) {
        below->setPointer(Pointer::Back);
        if (keep == KeepEnabled::No) below->enableControls(false);
    }
    FormStack.add(screen);
    if (stage().modalForm()) stage().enterModal(screen);  // opened from a dialog: it stands above that one
}

void basSarne::PopScreen(Form& screen) {
    readAloud().stop();
    FormStack.remove(screen);
    Form* below = FormStack.top();
    if (below) below->raise();
    screen.unload();
    if (!below) return;
    below->show();
    below->raise();
    below->setPointer(Pointer::Normal);
    below->enableControls(true);
    below->setFocus();
    below->restored();
    stage().leaveModal(screen);  // a dialog that had opened the screen is in front again
}

bool basSarne::ReadyToEnd() const {
    const std::vector<QPointer<Form>> screens = FormStack.screens();
    return std::all_of(screens.rbegin(), screens.rend(),
                       [](const QPointer<Form>& screen) { return !screen || screen->readyToEnd(); });
}

bool basSarne::BringTopToFront(const QString& formName) {
    Form* top = FormStack.top();
    if (!top || top->name() == formName) return false;
    top->bringToFront();
    return true;
}

void basSarne::Yield() {
    QCoreApplication::processEvents();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
