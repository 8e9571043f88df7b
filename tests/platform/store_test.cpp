#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "platform/drives.h"
#include "platform/endsignals.h"
#include "platform/multimediacontrol.h"
#include "platform/settingsstore.h"
#include "platform/singleinstance.h"
#include "support/fakesettings.h"
#include "support/files.h"
#include "support/kept.h"
#include "testmedia.h"

namespace sarne {
namespace {

class SettingsStoreTest : public testing::Test {
  protected:
    void write(const QString& level, const QByteArray& content) {
        ASSERT_TRUE(test::write(folder.filePath(level + u"/App Paths/Dunvik.exe.conf"_s), content));
    }
    QString read(const char* key, const QString& session = {}) {
        const SystemSettingsStore store({folder.filePath(u"user"_s), folder.filePath(u"xdg1"_s),
                                         folder.filePath(u"xdg2"_s), folder.filePath(u"own"_s)},
                                        session);
        return readAppPathValue(store, QLatin1String(key));
    }

    QTemporaryDir folder;
};

TEST_F(SettingsStoreTest, EachKeyComesFromTheFirstLevelThatHasIt) {
    EXPECT_EQ(read("CDPath"), QString());
    write(u"own"_s, "CDPath=/own\nLast=z\n");
    write(u"xdg2"_s, "[General]\nCDPath=/media/disc\nOther=\" x \"\n");
    write(u"xdg1"_s, "[General]\nFirst=1\n");
    EXPECT_EQ(read("CDPath"), u"/media/disc"_s) << "not only the first system folder is read";
    write(u"user"_s, "[General]\nCDPath=\"E:\\\\\"\n[Drives]\nE=/home/ryby, sladke\n");
    EXPECT_EQ(read("CDPath"), u"E:\\"_s);
    EXPECT_EQ(read("Other"), u"x"_s);
    EXPECT_EQ(read("Last"), u"z"_s);
    EXPECT_EQ(read("Drives/E"), u"/home/ryby, sladke"_s);
    const QString session = folder.filePath(u"run.conf"_s);
    ASSERT_TRUE(test::write(session, "CDPath=/tonight\n"));
    EXPECT_EQ(read("CDPath", session), u"/tonight"_s);
    EXPECT_EQ(read("Other", session), u"x"_s);
}

TEST_F(SettingsStoreTest, ATextIsReadBackWhole) {
    for (const char* text :
         {"/home/ryby,sladke", "/home/ryby, a  dalsi", "/a;b#c", "/a\\b", "E:\\", "/a=b", "/a\"b"}) {
        write(u"user"_s, QByteArray("[General]\nCDPath=") + text + "\n");
        EXPECT_EQ(read("CDPath"), QLatin1String(text));
        const QByteArray escaped = QByteArray(text).replace("\\", "\\\\").replace("\"", "\\\"");
        write(u"user"_s, "[General]\nCDPath=\"" + escaped + "\"\n");
        EXPECT_EQ(read("CDPath"), QLatin1String(text));
    }
}

TEST_F(SettingsStoreTest, WhatCannotBeReadIsEmpty) {
    write(u"user"_s, QByteArray(3000, '\xFF'));
    EXPECT_EQ(read("CDPath"), QString());
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"xdg1/App Paths/Dunvik.exe.conf"_s)));
    EXPECT_EQ(read("CDPath"), QString());
}

TEST(DrivesTest, DiscsAndRemovableVolumesAreFoundInTheMountTable) {
    const QTemporaryDir folder;
    const auto write = [&folder](const QString& name, const QByteArray& content) {
        EXPECT_TRUE(test::write(folder.filePath(name), content));
        return folder.filePath(name);
    };
    write(u"sys/sda/removable"_s, "0\n");
    write(u"sys/sda/sda1/size"_s, "1\n");
    write(u"sys/sdb/removable"_s, "1\n");
    write(u"sys/sdb/sdb1/size"_s, "1\n");
    for (const char* name : {"sda1", "sdb1"}) {
        const QString disk = QString::fromLatin1(name).left(3);
        QDir().mkpath(folder.filePath(u"class"_s));
        QFile::link(folder.filePath(u"sys/%1/%2"_s.arg(disk, QLatin1String(name))),
                    folder.filePath(u"class/"_s + QLatin1String(name)));
    }
    const QString table = write(u"mounts"_s,
                                "/dev/sda1 / ext4 rw 0 0\n"
                                "proc /proc proc rw 0 0\n"
                                "/dev/sdb1 /mnt/kl\\303\\255\\304\\215enka vfat rw 0 0\n"
                                "/dev/sr0 /media/petr/SARN\\0401 iso9660 ro 0 0\n"
                                "/dev/sda1 /home ext4 rw 0 0\n"
                                "tmpfs /media/tmp tmpfs rw 0 0\n"
                                "/dev/sdc5 /run/media/petr/zaloha ext4 rw 0 0\n"
                                "broken line\n");
    EXPECT_EQ(removableVolumes(table, folder.filePath(u"class"_s)),
              (QStringList{u"/mnt/klíčenka"_s, u"/media/petr/SARN 1"_s, u"/run/media/petr/zaloha"_s}));
    EXPECT_TRUE(removableVolumes(folder.filePath(u"missing"_s)).isEmpty());
}

TEST(DrivesTest, TheStoreNamesLettersAndVolumesTakeTheRest) {
    FakeSettings store;
    const QStringList volumes{u"/media/a"_s, u"/media/b"_s};
    EXPECT_EQ(driveLetters(store, volumes),
              (QHash<QChar, QString>{{u'D', u"/media/a"_s}, {u'E', u"/media/b"_s}}));
    store.set(u"Drives/D"_s, u" /disk "_s);
    store.set(u"Drives/Z"_s, u"/z"_s);
    EXPECT_EQ(driveLetters(store, volumes),
              (QHash<QChar, QString>{
                  {u'D', u"/disk"_s}, {u'E', u"/media/a"_s}, {u'F', u"/media/b"_s}, {u'Z', u"/z"_s}}));
    EXPECT_LE(driveLetters(store, QStringList(100, u"/m"_s)).size(), 26);
}

TEST(EndSignalsTest, EachIsToldOnceInTheEventLoop) {
    int told = 0;
    EndSignals signals;
    QObject::connect(&signals, &EndSignals::received, [&] { ++told; });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = told;
        std::raise(signal);
        EXPECT_EQ(told, before) << "not within what the signal has interrupted";
        EXPECT_TRUE(waitFor([&] { return told == before + 1; })) << signal;
    }
}

TEST(SingleInstanceTest, TheSecondIsRefusedUntilTheFirstEnds) {
    const QTemporaryDir folder;
    const QString lock = folder.filePath(u"run/zámek"_s);
    {
        const SingleInstance first(lock);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstance(lock).isFirst());
    }
    EXPECT_TRUE(SingleInstance(lock).isFirst());
    EXPECT_TRUE(SingleInstance(u"/proc/none/lock"_s).isFirst());
}

TEST(Names, StayAsTheyAre) {
    test::expectCases(u"chyby"_s, [](const QString& code) {
        return mediaErrorText(static_cast<MediaError>(code.toInt()));
    });
    qputenv("VELISA_SARN_NASTAVENI", "/dnes.conf");
    EXPECT_EQ(SystemSettingsStore::sessionFile(), u"/dnes.conf"_s);
    qunsetenv("VELISA_SARN_NASTAVENI");
    EXPECT_TRUE(SystemSettingsStore::defaultLevels().last().endsWith(u"/nastaveni"_s));
    EXPECT_TRUE(SingleInstance::defaultLockFile().endsWith(u"/sarne.lock"_s));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
