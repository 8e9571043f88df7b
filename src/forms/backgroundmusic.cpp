#include "forms/backgroundmusic.h"

#include <QFileInfo>

#include "forms/bassarne.h"
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

}  // namespace

QString fileForPlayer(const basSarne& app, const QString& relative) {
    const QString file = app.mediaFile(relative);
    return file.isEmpty() ? app.MediaRoot + relative : file;
}

QString musicTrack(const basSarne& app, bool wineSounds) {
    return fileForPlayer(app, wineSounds ? QStringLiteral("zvuky\\vina.wav") : QStringLiteral("hudba.wav"));
}

QString applyMusicSwitches(basSarne& app, bool wineSounds) {
    MultimediaControl& player = app.music();
    const QString track = musicTrack(app, wineSounds);
    app.SoundFlags[kWineSounds] = wineSounds;
    if (!app.SoundFlags[kMusic]) {
        player.command(u"Stop");
        return {};
    }
    if (player.mode() != MediaMode::NotOpen && isSameFile(player.fileName(), track)) {
        if (player.mode() != MediaMode::Playing) player.command(u"Play");
        return {};
    }
    player.command(u"stop");
    player.command(u"close");
    player.setFileName(track);
    player.setWait(MediaWait::DontWait);
    player.command(u"open");
    if (player.error() > 0) return player.errorMessage();
    player.setNotify(MediaNotify::On);
    player.command(u"Play");
    return {};
}

}  // namespace sarne
