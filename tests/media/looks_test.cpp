#include "media/frmnastavhudbu.h"
#include "media/frmvideo.h"
#include "mediafixture.h"
#include "support/explore.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;

class Media : public MediaFixture {
  public:
    Media() {
        SetUp();
        playMusic();
    }
    void addChapters(const QByteArray& chapters) {
        if (!chapters.isEmpty()) (void)test::write(path("VIDEO/3.kap"), chapters);
    }
    using MediaFixture::run;

  private:
    void TestBody() override {}
};

TEST(Looks, SoundSettings) {
    explore("nastaveni", [](const Look& look) {
        Media media;
        (new frmNastavHudbu(media.run))->Zobraz();
        look(media.run);
    });
    explore("nastaveni-bez-knihy", [](const Look& look) {
        Media media;
        media.run.database.Close();
        media.run.SoundFlags = {};
        (new frmNastavHudbu(media.run))->Zobraz();
        look(media.run);
    });
}

enum Film { Opening, Playing, Ended, Failed, WithoutPlayer };

/// A film over \a media, and what its player is told.
void showFilm(Media& media, Film state) {
    auto made = state == WithoutPlayer ? nullptr : std::make_unique<FakeMultimedia>();
    const QPointer<FakeMultimedia> player = made.get();
    if (state == Failed) player->failing[u"open"_s] = MediaError::InvalidFile;
    auto* form = new frmVideo(media.run, std::move(made));
    form->Zobraz(3);
    if (state != Opening && player) form->findChild<Timer*>()->fire();
    if (state == Ended) player->end();
    test::alsoTold = [player] {
        QStringList all;
        if (!player) return all;
        for (const QString& command : player->commands) all << u"film "_s + command;
        return all << u"film at %1, speed %2, sound %3"_s.arg(player->positionMs)
                          .arg(player->speed)
                          .arg(int(player->sound));
    };
}

TEST(Looks, Film) {
    const char* const names[] = {"video-otevira", "video-hraje", "video-skoncilo", "video-chyba",
                                 "video-bez-prehravace"};
    for (const Film state : {Opening, Playing, Ended, Failed, WithoutPlayer})
        explore(names[state], [=](const Look& look) {
            Media media;
            showFilm(media, state);
            look(media.run);
        });
}

TEST(Looks, FilmInUse) {
    const struct {
        const char* name;
        Film state;
        bool hasMusic;
        QByteArray chapters;
        const char* way;
    } ways[] = {
        {"film-ovladani",
         Playing,
         true,
         {},
         "click:ImgTlacitko(3) Space click:ImgTlacitko(3) click:ImgTlacitko(2) click:ImgTlacitko(3) "
         "click:ImgTlacitko(4) click:ImgTlacitko(5) click:ImgTlacitko(1) Right Right Right Right Left tick J "
         "tick click:prgPozice tick"},
        {"film-kapitoly", Playing, true, "0\tPříprava\n10.5\tŘez\n40\tKonec díla\n",
         "PgDown tick click:imgKapitola(2) PgUp click:imgKapitola(0) tick Right Right Right Right "
         "click:imgKapitola(1) tick"},
        {"film-pomalu", Playing, true, {}, "click:imgKapitola(3) P"},
        {"film-otevirany", Opening, true, {}, "J tick Escape"},
        {"film-pres-obrazovku", Playing, true, {}, "double:picVideo Escape Return Return Tab Return"},
        {"film-bez-hudby", Playing, false, {}, "Escape"}};
    test::walkEach(ways, [](const auto& one, const Look& look) {
        Media media;
        media.addChapters(one.chapters);
        media.run.SoundFlags[kMusic] = one.hasMusic;
        showFilm(media, one.state);
        look(media.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
