#include "media/frmnastavhudbu.h"

#include <QtEndian>

#include "db/soundsettings.h"
#include "mediafixture.h"
#include "support/acts.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// The settings while the music plays.
class Settings : public MediaFixture {
  public:
    /// What comes of \a way: after each word what it has changed of the switches that show (on, off, "-"
    /// where one cannot be set), the track, what is missing, what is stored and in how many transactions;
    /// what the player was told and what the user. Words are as test::perform() takes them, or one of those
    /// below.
    QString told(const QString& way) {
        SetUp();
        playMusic();
        QStringList all, before = state();
        for (const QString& word : way.split(u' ')) {
            const bool isOwn = perform(word);
            if (!isOwn) test::perform(run, word);
            test::settle();
            const QStringList now = state();
            QStringList changed;
            for (qsizetype i = 0; i < now.size(); ++i)
                if (now[i] != before[i]) changed << now[i];
            before = now;
            all << (changed + std::exchange(run.player.commands, {}) + std::exchange(run.messages, {}))
                       .join(u", "_s)
                       .replace(u'\\', u'/')
                       .replace(disc.path(), u"~"_s);
        }
        return all.join(u" / "_s);
    }

  private:
    void TestBody() override {}
    bool perform(const QString& word) {
        const QString verb = word.section(u':', 0, 0), what = word.section(u':', 1);
        if (verb == u"open")
            (new frmNastavHudbu(run))->Zobraz();
        else if (verb == u"plays")
            run.player.setFileName(disc.filePath(what));
        else if (verb == u"fails")
            run.player.failing[what] = MediaError::InvalidFile;
        else if (verb == u"later")
            run.player.opensLater = what == u"1";
        else if (verb == u"lost")
            run.player.failToOpen(MediaError::InvalidFile);
        else if (verb == u"breaks")
            run.player.breakOff(MediaDone::Failed);
        else if (verb == u"do")
            run.database.Execute(u"DELETE * FROM Nastav WHERE ID > 2"_s);
        else if (verb == u"gone")
            QFile::remove(path("zvuky/Vina.WAV"));
        else if (verb == u"nodisc")
            run.MediaRoot = u"Q:\\"_s;
        else if (verb == u"nobook")
            run.database.Close();
        else
            return false;
        EXPECT_TRUE(verb != u"lost" || run.messages.isEmpty())
            << "the player waits for its report to be heard";
        return true;
    }
    /// A switch or a choice as a letter: 1 or 0, behind a dash where it cannot be set, nothing where none
    /// shows.
    template <typename Box>
    QString state(const QString& name, int count) {
        QString all;
        for (int i = 0; i < count; ++i) {
            const auto* box = test::front(run)->findChild<Box*>(name.arg(i));
            if (box && box->isVisible())
                all += (box->isEnabled() ? u""_s : u"-"_s) + (box->isChecked() ? u'1' : u'0');
        }
        return all;
    }
    QStringList state() {
        QString stored;
        for (const SoundSetting& setting : readSoundSettings(run.database))
            stored += setting.on ? u'1' : u'0';
        const auto* missing = test::front(run)->findChild<Label*>(u"lblChybi"_s);
        // The file itself counts the transactions.
        const auto count = qFromBigEndian<quint32>(test::bytesOf(path("Sarne.drc")).constData() + 24);
        return {u"switches "_s + state<CheckBox>(u"chkNastav(%1)"_s, 5),
                u"tracks "_s + state<OptionButton>(u"opthudba(%1)"_s, 2),
                missing ? missing->text().simplified() : QString(),
                u"stored "_s + stored,
                u"transaction %1"_s.arg(count),
                run.player.playing() ? u"plays"_s : u"silence"_s,
                run.SoundFlags[kWineSounds] ? u"wine"_s : u"no wine"_s};
    }
};

TEST(SoundSettings, HoldWhenTheyAreConfirmed) {
    test::expectCases(u"zvuky"_s, [](const QString& way) { return Settings().told(way); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
