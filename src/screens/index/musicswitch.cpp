#include "screens/index/musicswitch.h"

#include "db/database.h"
#include "forms/bassarne.h"
#include "platform/multimediacontrol.h"

namespace sarne {
namespace {

/// The switches are the rows of the table in the order of its key.
void storeSwitch(Database& db, int index, bool on) {
    Recordset settings = db.OpenTable(QStringLiteral("Nastav"));
    settings.setIndex(QStringLiteral("PrimaryKey"));
    settings.MoveFirst();
    for (int row = 0; row < index; ++row) settings.MoveNext();
    if (settings.AtEnd()) return;
    settings.Edit();
    settings.setField(QStringLiteral("hodnota"), on ? 1 : 0);
    settings.Update();
}

void play(basSarne& app) {
    MultimediaControl& music = app.music();
    if (music.mode() == MediaMode::NotOpen) {
        const bool wine = app.SoundFlags[kWineSounds];
        music.setFileName(
            app.mediaFile(wine ? QStringLiteral("zvuky\\vina.wav") : QStringLiteral("hudba.wav")));
        music.command(u"open");
        if (music.error() > 0) return;
    }
    music.command(u"play");
}

}  // namespace

void switchMusic(basSarne& app) {
    const bool on = !app.SoundFlags[kMusic];
    app.SoundFlags[kMusic] = on;
    storeSwitch(app.Db(), kMusic, on);
    if (on)
        play(app);
    else
        app.music().command(u"stop");
}

}  // namespace sarne
