#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>

#include "platform/drives.h"
#include "platform/endsignals.h"
#include "platform/settingsstore.h"
#include "platform/singleinstance.h"
#include "support/fakesettings.h"
#include "testmedia.h"

namespace sarne {
namespace {

class SettingsStoreTest : public testing::Test {
  protected:
    void write(const QString& level, const QByteArray& content) {
        const QString path = folder.filePath(level + QStringLiteral("/App Paths"));
        ASSERT_TRUE(QDir().mkpath(path));
        QFile file(path + QStringLiteral("/Dunvik.exe.conf"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QString read(const char* key, const QString& session = {}) {
        const SystemSettingsStore store(
            {folder.filePath(QStringLiteral("user")), folder.filePath(QStringLiteral("xdg1")),
             folder.filePath(QStringLiteral("xdg2")), folder.filePath(QStringLiteral("own"))},
            session);
        return readAppPathValue(store, QLatin1String(key));
    }

    QTemporaryDir folder;
};

TEST_F(SettingsStoreTest, EachKeyComesFromTheFirstLevelThatHasIt) {
    EXPECT_EQ(read("CDPath"), QString());
    write(QStringLiteral("own"), "CDPath=/own\nLast=z\n");
    write(QStringLiteral("xdg2"), "[General]\nCDPath=/media/disc\nOther=\" x \"\n");
    write(QStringLiteral("xdg1"), "[General]\nFirst=1\n");
    EXPECT_EQ(read("CDPath"), QStringLiteral("/media/disc")) << "not only the first system folder is read";
    write(QStringLiteral("user"), "[General]\nCDPath=\"E:\\\\\"\n[Drives]\nE=/home/ryby, sladke\n");
    EXPECT_EQ(read("CDPath"), QStringLiteral("E:\\"));
    EXPECT_EQ(read("Other"), QStringLiteral("x"));
    EXPECT_EQ(read("Last"), QStringLiteral("z"));
    EXPECT_EQ(read("Drives/E"), QStringLiteral("/home/ryby, sladke"));
    QFile session(folder.filePath(QStringLiteral("run.conf")));
    ASSERT_TRUE(session.open(QIODevice::WriteOnly));
    session.write("CDPath=/tonight\n");
    session.close();
    EXPECT_EQ(read("CDPath", session.fileName()), QStringLiteral("/tonight"));
    EXPECT_EQ(read("Other", session.fileName()), QStringLiteral("x"));
}

TEST_F(SettingsStoreTest, ATextIsReadBackWhole) {
    for (const char* text :
         {"/home/ryby,sladke", "/home/ryby, a  dalsi", "/a;b#c", "/a\\b", "E:\\", "/a=b", "/a\"b"}) {
        write(QStringLiteral("user"), QByteArray("[General]\nCDPath=") + text + "\n");
        EXPECT_EQ(read("CDPath"), QLatin1String(text));
        const QByteArray escaped = QByteArray(text).replace("\\", "\\\\").replace("\"", "\\\"");
        write(QStringLiteral("user"), "[General]\nCDPath=\"" + escaped + "\"\n");
        EXPECT_EQ(read("CDPath"), QLatin1String(text));
    }
}

TEST_F(SettingsStoreTest, WhatCannotBeReadIsEmpty) {
    write(QStringLiteral("user"), QByteArray(3000, '\xFF'));
    EXPECT_EQ(read("CDPath"), QString());
    ASSERT_TRUE(QDir().mkpath(folder.filePath(QStringLiteral("xdg1/App Paths/Dunvik.exe.conf"))));
    EXPECT_EQ(read("CDPath"), QString());
}

TEST(DrivesTest, DiscsAndRemovableVolumesAreFoundInTheMountTable) {
    const QTemporaryDir folder;
    const auto write = [&folder](const QString& name, const QByteArray& content) {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return folder.filePath(name);
    };
    write(QStringLiteral("sys/sda/removable"), "0\n");
    write(QStringLiteral("sys/sda/sda1/size"), "1\n");
    write(QStringLiteral("sys/sdb/removable"), "1\n");
    write(QStringLiteral("sys/sdb/sdb1/size"), "1\n");
    for (const char* name : {"sda1", "sdb1"}) {
        const QString disk = QString::fromLatin1(name).left(3);
        QDir().mkpath(folder.filePath(QStringLiteral("class")));
        QFile::link(folder.filePath(QStringLiteral("sys/%1/%2").arg(disk, QLatin1String(name))),
                    folder.filePath(QStringLiteral("class/") + QLatin1String(name)));
    }
    const QString table = write(QStringLiteral("mounts"),
                                "/dev/sda1 / ext4 rw 0 0\n"
                                "proc /proc proc rw 0 0\n"
                                "/dev/sdb1 /mnt/kl\\303\\255\\304\\215enka vfat rw 0 0\n"
                                "/dev/sr0 /media/petr/SARN\\0401 iso9660 ro 0 0\n"
                                "/dev/sda1 /home ext4 rw 0 0\n"
                                "tmpfs /media/tmp tmpfs rw 0 0\n"
                                "/dev/sdc5 /run/media/petr/zaloha ext4 rw 0 0\n"
                                "broken line\n");
    EXPECT_EQ(removableVolumes(table, folder.filePath(QStringLiteral("class"))),
              (QStringList{QStringLiteral("/mnt/klíčenka"), QStringLiteral("/media/petr/SARN 1"),
                           QStringLiteral("/run/media/petr/zaloha")}));
    EXPECT_TRUE(removableVolumes(folder.filePath(QStringLiteral("missing"))).isEmpty());
}

TEST(DrivesTest, TheStoreNamesLettersAndVolumesTakeTheRest) {
    FakeSettings store;
    const QStringList volumes{QStringLiteral("/media/a"), QStringLiteral("/media/b")};
    EXPECT_EQ(driveLetters(store, volumes), (QHash<QChar, QString>{{u'D', QStringLiteral("/media/a")},
                                                                   {u'E', QStringLiteral("/media/b")}}));
    store.set(QStringLiteral("Drives/D"), QStringLiteral(" /disk "));
    store.set(QStringLiteral("Drives/Z"), QStringLiteral("/z"));
    EXPECT_EQ(driveLetters(store, volumes), (QHash<QChar, QString>{{u'D', QStringLiteral("/disk")},
                                                                   {u'E', QStringLiteral("/media/a")},
                                                                   {u'F', QStringLiteral("/media/b")},
                                                                   {u'Z', QStringLiteral("/z")}}));
    EXPECT_LE(driveLetters(store, QStringList(100, QStringLiteral("/m"))).size(), 26);
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
    const QString lock = folder.filePath(QStringLiteral("run/zámek"));
    {
        const SingleInstance first(lock);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstance(lock).isFirst());
    }
    EXPECT_TRUE(SingleInstance(lock).isFirst());
    EXPECT_TRUE(SingleInstance(QStringLiteral("/proc/none/lock")).isFirst());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
