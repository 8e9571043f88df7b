#include "forms/resources.h"

#include <gtest/gtest.h>
#include <QBuffer>
#include <QTemporaryDir>

#include "core/sealedfile.h"
#include "forms/backgroundmusic.h"
#include "forms/editmenu.h"
#include "forms/followlink.h"
#include "forms/picturereader.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne {
namespace {

TEST(ResourcesTest, AreFoundByTheirNamesWhateverTheirCase) {
    QTemporaryDir folder;
    for (const char* name : {"obr/Tisk.png", "obr/TISK.png", "pohyby/03-01.png", "pohyby/03-02.png",
                             "pohyby/03-04.png", "pohyby/12-01.png"}) {
        const QString file = QLatin1String(name);
        ASSERT_TRUE(test::write(folder.filePath(file),
                                test::plain({file.contains(u"TISK"_s) ? 13 : 12, 9}, Qt::red)));
    }
    ASSERT_TRUE(test::write(folder.filePath(u"zvuky/7.wav"_s), "sedm"));
    ASSERT_TRUE(test::write(folder.filePath(u"layout/hlavni.txt"_s), "kotlík 3"));
    const Resources resources(folder.path() + u'/');
    const auto width = [&](const char* name) {
        return resources.picture(QLatin1String(name)).size().width();
    };
    EXPECT_EQ((std::array{width("Tisk"), width("TISK")}), (std::array{12, 13}));
    EXPECT_GT(width("tisk"), 0);
    EXPECT_EQ(width("neni"), -1);
    EXPECT_EQ(width(""), -1);
    EXPECT_EQ(resources.animation(3).size(), 2U) << "as far as they go on";
    EXPECT_EQ(resources.animation(12).size(), 1U);
    EXPECT_TRUE(resources.animation(1).empty());
    EXPECT_EQ(resources.effect(7) + resources.effect(8), "sedm");
    EXPECT_EQ(resources.layout(u"hlavni"_s) + resources.layout(u"jiny"_s), u"kotlík 3"_s);
    EXPECT_EQ(resources.cursor(u"neni"_s, 1. / 15, 1).shape(), Qt::ArrowCursor);
    for (const auto& [scale, side] : {std::pair(1. / 60, 16), {1. / 30, 16}, {1. / 10, 48}, {1., 128}})
        EXPECT_EQ(resources.cursor(u"Tisk"_s, scale, 1).pixmap().width(), side);
}

TEST(Program, PlaysItsEffectsAndAsksEveryScreenBeforeItEnds) {
    QTemporaryDir folder;
    ASSERT_TRUE(test::write(folder.filePath(u"zvuky/7.wav"_s), "sedm"));
    FakeSarne run;
    run.pictures = Resources(folder.path() + u'/');
    run.PlayEffect(6);
    EXPECT_EQ(run.EffectWave, "sedm");
    run.PlayEffect(7);
    EXPECT_EQ(run.sounds.played, QList<QByteArray>{"sedm"});
    EXPECT_EQ(run.EffectWave, "");
    run.MediaRoot = u"\\neni\\"_s;
    EXPECT_TRUE(run.mediaPicture(u"r1.bmp"_s).isNull());
    struct Screen : Form {
        Screen(basSarne& sarne, QStringList& log, const char* name, bool isReady)
            : Form(sarne, QLatin1String(name)), asked(log), ready(isReady) {
            app().PushScreen(*this);
        }
        bool readyToEnd() override {
            asked << name();
            return ready;
        }
        QStringList& asked;
        bool ready;
    };
    QStringList asked;
    Screen lowest(run, asked, "frmA", true), middle(run, asked, "frmB", false), top(run, asked, "frmC", true);
    EXPECT_FALSE(run.ReadyToEnd());
    middle.ready = true;
    EXPECT_TRUE(run.ReadyToEnd());
    EXPECT_EQ(asked, (QStringList{u"frmC"_s, u"frmB"_s, u"frmC"_s, u"frmB"_s, u"frmA"_s}));
}

TEST(ResourcesTest, OnlyWhatIsSealedIsTaken) {
    QTemporaryDir folder;
    const QString file = folder.filePath(u"Sarne.rcc"_s), other = folder.filePath(u"jiny.rcc"_s);
    ASSERT_TRUE(test::write(file, "none"_ba) && test::write(other, "none"_ba));
    ASSERT_TRUE(sealFile(file));
    Resources resources;
    EXPECT_FALSE(resources.load(other));
    EXPECT_FALSE(resources.load(file)) << "sealed, but no resources";
    resources.prepare(file);
    EXPECT_FALSE(resources.load(other));
}

/// What the decoder is asked for is what it gives where that is quick; else it is near.
TEST(PictureReaderTest, ReadsSmallerPicturesAtOnce) {
    test::expectCases(u"zmenseni"_s, [](const QString& text) {
        const QStringList words = text.split(u' ');
        const auto size = [](const QString& one) {
            return QSize(one.section(u'x', 0, 0).toInt(), one.section(u'x', 1).toInt());
        };
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        test::plain(size(words[1]), Qt::red).save(&buffer, words[0].toLatin1());
        const QSize got = PictureReader(bytes).read(words.size() > 2 ? size(words[2]) : QSize()).size();
        return u"%1x%2"_s.arg(got.width()).arg(got.height());
    });
}

TEST(BackgroundMusic, PlaysWhatTheSwitchesSay) {
    test::expectCases(u"hudba"_s, [](const QString& text) {
        FakeSarne run;
        QStringList done;
        for (const QString& word : text.split(u' ')) {
            run.player.commands.clear();
            if (word == u"on" || word == u"off")
                run.SoundFlags[kMusic] = word == u"on";
            else if (word == u"end")
                run.player.end();
            else if (word == u"broken")
                run.player.failing[u"open"_s] = MediaError::FileNotFound;
            else if (word == u"later")
                run.player.opensLater = true;
            else if (word == u"fails")
                run.player.failToOpen(MediaError::FileNotFound);
            else if (word == u"ends")
                run.player.breakOff(MediaDone::Aborted);
            else
                applyMusicSwitches(run, word == u"wine");
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            done << run.player.commands << run.messages;
            run.messages.clear();
            if (run.SoundFlags[kWineSounds]) done << u"(wine)"_s;
        }
        return done.join(u", "_s);
    });
}

TEST(FollowLink, LeadsWhereThePhraseSays) {
    FakeSarne run;
    for (const LinkKey& key : {LinkKey{LinkKind::Keyword, 12}, {LinkKind::Video, 7}, {LinkKind::Beep, 1}})
        followLink(run, key);
    EXPECT_EQ(run.recorded.calls, (QStringList{u"showIndex 12"_s, u"showVideo 7"_s}));
    EXPECT_EQ(run.beeps, 1);
}

TEST(EditMenu, GrowsWithTheStage) {
    test::expectText(u"nabidka-vzhled"_s, editMenuStyle(1. / 15) + u'\n' + editMenuStyle(.1));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
