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
void watchOpening(basSarne& sarne, MultimediaControl& player) {
    const auto name = QStringLiteral("openingWatch");
    delete player.findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    auto* watch = new QObject(&player);
    watch->setObjectName(name);
    QObject::connect(&player, &MultimediaControl::opened, watch, &QObject::deleteLater);
    QObject::connect(&player, &MultimediaControl::done, watch, [&sarne, &player, watch](int code) {
        if (code != int(MediaDone::Failed)) return;
        // Not from within the player, which waits until its report has been heard.
        QMetaObject::invokeMethod(
            watch, [&sarne, text = player.errorMessage()] { sarne.ZobrazZpravu(text, kErrorBox); },
            Qt::QueuedConnection);
    });
}

void openTrack(basSarne& sarne, const QString& track) {
    MultimediaControl& player = sarne.music();
    player.command(u"stop");
    player.command(u"close");
    player.setFileName(track);
    player.setWait(MediaWait::DontWait);
    watchOpening(sarne, player);
    player.command(u"open");
    if (player.error() > 0) {
        sarne.ZobrazZpravu(player.errorMessage(), kErrorBox);
        return;
    }
    player.setNotify(MediaNotify::On);
    player.command(u"Play");
}

}  // namespace

QString fileForPlayer(const basSarne& sarne, const QString& relative) {
    const QString file = sarne.mediaFile(relative);
    return file.isEmpty() ? sarne.MediaRoot + relative : file;
}

QString musicTrack(const basSarne& sarne, bool wineSounds) {
    return fileForPlayer(sarne, wineSounds ? QStringLiteral("zvuky\\vina.wav") : QStringLiteral("hudba.wav"));
}

void applyMusicSwitches(basSarne& sarne, bool wineSounds) {
    MultimediaControl& player = sarne.music();
    const QString track = musicTrack(sarne, wineSounds);
    sarne.SoundFlags[kWineSounds] = wineSounds;
    if (!sarne.SoundFlags[kMusic])
        player.command(u"Stop");
    else if (player.mode() == MediaMode::NotOpen || !isSameFile(player.fileName(), track))
        openTrack(sarne, track);
    else if (player.mode() != MediaMode::Playing)
        player.command(u"Play");
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
