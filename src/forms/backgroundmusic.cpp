#include "forms/backgroundmusic.h"

#include "forms/bassarne.h"
#include "platform/multimediacontrol.h"

namespace sarne {

QString musicTrack(const basSarne& app, bool wineSounds) {
    return app.mediaFile(wineSounds ? QStringLiteral("zvuky\\vina.wav") : QStringLiteral("hudba.wav"));
}

QString applyMusicSwitches(basSarne& app, bool wineSounds) {
    MultimediaControl& player = app.music();
    const QString track = musicTrack(app, wineSounds);
    app.SoundFlags[kWineSounds] = wineSounds;
    if (!app.SoundFlags[kMusic]) {
        player.command(u"Stop");
        return {};
    }
    if (player.mode() != MediaMode::NotOpen && player.fileName() == track) {
        if (player.mode() != MediaMode::Playing) player.command(u"Play");
        return {};
    }
    player.command(u"stop");
    player.command(u"close");
    player.setFileName(track);
    player.setWait(MediaWait::Wait);
    player.command(u"open");
    if (player.error() > 0) return player.errorMessage();
    player.setNotify(MediaNotify::On);
    player.command(u"Play");
    return {};
}

}  // namespace sarne
