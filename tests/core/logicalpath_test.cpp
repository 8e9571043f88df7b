#include "core/logicalpath.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/files.h"

namespace sarne {
namespace {

class LogicalPathTest : public testing::Test {
  protected:
    void SetUp() override {
        touch(u"hudba.wav"_s);
        touch(u"Foto/Velke/R1.bmp"_s);
        touch(u"Foto/c\u030C5.wav"_s);  // č as a letter and a mark
    }
    void touch(const QString& name) { ASSERT_TRUE(test::write(disc.filePath(name))); }

    QTemporaryDir disc;
    LogicalPaths paths{{{u'E', disc.path()}}};
};

TEST_F(LogicalPathTest, FindsFilesWhateverTheirLettersAndAccents) {
    const QString media = LogicalPaths::fromNativeFolder(disc.path());
    EXPECT_EQ(paths.resolve(media + u"HUDBA.WAV"_s), disc.filePath(u"hudba.wav"_s));
    EXPECT_EQ(paths.resolve(media + u"foto\\velke\\r1.BMP"_s), disc.filePath(u"Foto/Velke/R1.bmp"_s));
    EXPECT_EQ(paths.resolve(media + u"foto\\č5.wav"_s), disc.filePath(u"Foto/c\u030C5.wav"_s));
    EXPECT_EQ(paths.resolve(u"e:\\hudba.wav"_s), disc.filePath(u"hudba.wav"_s));
}

TEST_F(LogicalPathTest, AMediumMayStandUnderAnotherEndingOfItsKind) {
    const std::pair<const char*, std::vector<const char*>> kinds[] = {
        {"r2.bmp", {"r2.webp", "r2.PNG", "r2.jpg"}},
        {"Vina.WAV", {"vina.flac", "Vina.opus", "VINA.ogg"}},
        {"UVOD.AVI", {"uvod.mp4", "Uvod.webm", "uvod.mkv"}}};
    for (const auto& [wanted, standing] : kinds) {
        const QString logical = u"E:\\"_s + QLatin1String(wanted);
        // Each is found, and before those that stood there already.
        for (const char* file : standing) {
            const QString name = QString::fromLatin1(file);
            touch(name);
            EXPECT_EQ(paths.resolve(logical), disc.filePath(name)) << wanted;
        }
        touch(QLatin1String(wanted));
        EXPECT_EQ(paths.resolve(logical), disc.filePath(QLatin1String(wanted)))
            << "what is named comes first";
    }
    touch(u"r3.ogg"_s);
    touch(u"Sarne.bak"_s);
    for (const char* other : {"r3.bmp", "r3.avi", "Sarne.drc"})
        EXPECT_EQ(paths.resolve(u"E:\\"_s + QLatin1String(other)), QString()) << other;
}

TEST_F(LogicalPathTest, WhatIsNotThereIsEmpty) {
    for (const char* path : {"E:\\chybi.wav", "F:\\hudba.wav", ":\\hudba.wav", "", "hudba.wav"})
        EXPECT_EQ(paths.resolve(QString::fromLatin1(path)), QString()) << path;
}

TEST(Folder, EndsInOneBackslash) {
    EXPECT_EQ(withTrailingBackslash(u"C:\\"_s), u"C:\\"_s);
    EXPECT_EQ(withTrailingBackslash(u"C:\\Prog"_s), u"C:\\Prog\\"_s);
    EXPECT_EQ(LogicalPaths::fromNativeFolder(u"/opt/kuchyne/"_s), u"\\opt\\kuchyne\\"_s);
}

TEST(LogicalPathDrivesTest, DrivesAreAskedForAgainWhenALetterLeadsNowhere) {
    const QTemporaryDir disc;
    ASSERT_TRUE(test::write(disc.filePath(u"hudba.wav"_s)));
    LogicalPaths::Drives drives;
    LogicalPaths paths([&drives] { return drives; });
    EXPECT_EQ(paths.resolve(u"E:\\HUDBA.WAV"_s), QString());
    drives.insert(u'E', disc.path());
    EXPECT_EQ(paths.resolve(u"E:\\HUDBA.WAV"_s), disc.filePath(u"hudba.wav"_s));
    // A folder that a logical path cannot name gets a letter of its own.
    const QString odd = disc.filePath(u"a\\b"_s);
    ASSERT_TRUE(QDir().mkdir(odd));
    EXPECT_EQ(paths.resolve(paths.mapFolder(odd)), odd);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
