#include "forms/backgroundmusic.h"

#include <QFileInfo>

#include "forms/bassarne.h"
#include "forms/messagebox.h"
#include "platform/multimediacontrol.h"

namespace sarne {
namespace {

/// Whether two paths lead to one file, on a disc that does not care for the case of letters.
bool isSameFile(const QString& one, const QString& other) {
    const auto real = [](const QString& path) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        return (canonical.isEmpty() ? path : canonical).toCaseFolded();
    };
    return real(one) == real(other);
}

/// Tells the user why the track that is being opened cannot be played, when that turns out later. A track
/// that is opened after it is watched in its place.
void watchOpening(basSarne& app, MultimediaControl& player) {
    const auto name = QStringLiteral("openingWatch");
    delete player.findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    auto* watch = new QObject(&player);
    watch->setObjectName(name);
    QObject::connect(&player, &MultimediaControl::opened, watch, &QObject::deleteLater);
    QObject::connect(&player, &MultimediaControl::done, watch, [&app, &player, watch](int code) {
        if (code != int(MediaDone::Failed)) return;
        // Not from within the player, which waits until its report has been heard.
        QMetaObject::invokeMethod(
            watch, [&app, text = player.errorMessage()] { app.ZobrazZpravu(text, kErrorBox); },
            Qt::QueuedConnection);
    });
}

void openTrack(basSarne& app, const QString& track) {
    MultimediaControl& player = app.music();
    player.command(u"stop");
    player.command(u"close");
    player.setFileName(track);
    player.setWait(MediaWait::DontWait);
    watchOpening(app, player);
    player.command(u"open");
    if (player.error() > 0) {
        app.ZobrazZpravu(player.errorMessage(), kErrorBox);
        return;
    }
    player.setNotify(MediaNotify::On);
    player.command(u"Play");
}

}  // namespace

QString fileForPlayer(const basSarne& app, const QString& relative) {
    const QString file = app.mediaFile(relative);
    return file.isEmpty() ? app.MediaRoot + relative : file;
}

QString musicTrack(const basSarne& app, bool wineSounds) {
    return fileForPlayer(app, wineSounds ? QStringLiteral("zvuky\\vina.wav") : QStringLiteral("hudba.wav"));
}

void applyMusicSwitches(basSarne& app, bool wineSounds) {
    MultimediaControl& player = app.music();
    const QString track = musicTrack(app, wineSounds);
    app.SoundFlags[kWineSounds] = wineSounds;
    if (!app.SoundFlags[kMusic])
        player.command(u"Stop");
    else if (player.mode() == MediaMode::NotOpen || !isSameFile(player.fileName(), track))
        openTrack(app, track);
    else if (player.mode() != MediaMode::Playing)
        player.command(u"Play");
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
