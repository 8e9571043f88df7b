#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>

#include "platform/drives.h"
#include "platform/endsignals.h"
#include "platform/memory.h"
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
    write(u"user"_s, QByteArray(3000, '\xFF'));  // what cannot be read is empty, and so is a folder
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"xdg1/App Paths/Dunvik.exe.conf"_s)));
    EXPECT_EQ(read("CDPath"), QString());
    ASSERT_TRUE(QDir(folder.path()).rmdir(u"xdg1/App Paths/Dunvik.exe.conf"_s));
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

TEST_F(SettingsStoreTest, AFileIsReadAsItIsWritten) {
    const QString file = folder.filePath(u"a.conf"_s);
    test::expectCases(u"nastaveni"_s, [&](const QString& text) {
        EXPECT_TRUE(test::write(file, text.toUtf8()));
        const QHash<QString, QString> values = readSettingsFile(file);
        QStringList read;
        for (const auto& [key, value] : values.asKeyValueRange()) read << key + u'=' + value;
        read.sort();
        return read.join(u'|');
    });
    for (const int tooLong : {0, 1}) {
        ASSERT_TRUE(test::write(file, QByteArray((1 << 20) - 4 + tooLong, '#') + "\nA=1"));
        EXPECT_EQ(readSettingsFile(file).value(u"A"_s), tooLong ? QString() : u"1"_s);
    }
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
                                "/dev/sdc6 /mnt/pevny ext4 rw 0 0\n"
                                "/dev/sr0 /media/petr/SARN\\0401 iso9660 ro 0 0\n"
                                "disk /mnt/\\9udf\\ udf\n"
                                "/dev/sdc7 /media/line\n");
    EXPECT_EQ(removableVolumes(table, folder.filePath(u"class"_s)),
              (QStringList{u"/mnt/klíčenka"_s, u"/media/petr/SARN 1"_s, u"/run/media/petr/zaloha"_s,
                           u"/mnt/\\9udf\\"_s}));
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
    store.set(u"Drives/A"_s, u"/a"_s);
    EXPECT_EQ(driveLetters(store, QStringList(100, u"/m"_s)).size(), 24) << "B and C are for others";
}

TEST(EndSignalsTest, EachIsToldOnceInTheEventLoop) {
    int told = 0;
    const int files = ProcessUse::now().files;
    auto signals = std::make_unique<EndSignals>();
    QObject::connect(signals.get(), &EndSignals::received, [&] { ++told; });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = told;
        std::raise(signal);
        EXPECT_EQ(told, before) << "not within what the signal has interrupted";
        EXPECT_TRUE(waitFor([&] { return told == before + 1; })) << signal;
    }
    errno = EDOM;
    for (int i = 0; i < 70000; ++i) std::raise(SIGHUP);  // more than can wait
    EXPECT_EQ(errno, EDOM);
    EXPECT_TRUE(waitFor([&] { return told == 4; }));
    signals.reset();
    EXPECT_EQ(ProcessUse::now().files, files);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL);
    EXPECT_EQ(told, 4);
}

TEST(SingleInstanceTest, TheSecondIsRefusedUntilTheFirstEnds) {
    const QTemporaryDir folder;
    const QString lock = folder.filePath(u"run/zámek"_s);
    QProcess child;
    {
        const SingleInstance first(lock);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstance(lock).isFirst());
        child.start(u"sleep"_s, {u"60"_s});
        ASSERT_TRUE(child.waitForStarted());
    }
    EXPECT_TRUE(SingleInstance(lock).isFirst()) << "what was started meanwhile does not hold it on";
    child.kill();
    child.waitForFinished();
    EXPECT_FALSE(QFile::permissions(lock) & (QFile::ReadOther | QFile::ReadGroup));
    const QString link = folder.filePath(u"odkaz"_s), target = folder.filePath(u"cíl"_s);
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(SingleInstance(link).isFirst());
    EXPECT_FALSE(QFile::exists(target)) << "nobody leads it elsewhere";
    EXPECT_TRUE(SingleInstance(u"/proc/none/lock"_s).isFirst());
}

TEST(MemoryTest, OfItsOwnIsToldInBytes) {
    EXPECT_NEAR(ownMemory(), double(ProcessUse::now().pages) * 1024, 3e6);
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
