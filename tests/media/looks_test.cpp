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

TEST(Looks, Film) {
    enum { Opening, Playing, Ended, Failed, WithoutPlayer };
    const char* const names[] = {"video-otevira", "video-hraje", "video-skoncilo", "video-chyba",
                                 "video-bez-prehravace"};
    for (int state = Opening; state <= WithoutPlayer; ++state)
        explore(names[state], [=](const Look& look) {
            Media media;
            auto made = state == WithoutPlayer ? nullptr : std::make_unique<FakeMultimedia>();
            FakeMultimedia* player = made.get();
            if (state == Failed) player->failing[u"open"_s] = MediaError::InvalidFile;
            auto* form = new frmVideo(media.run, std::move(made));
            form->Zobraz(3);
            if (state != Opening && player) form->findChild<Timer*>()->fire();
            if (state == Ended) player->end();
            look(media.run);
        });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
