#include "core/logicalpath.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace sarne {
namespace {

class LogicalPathTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(disc.path()).mkpath(QStringLiteral("Foto/Velke")));
        touch(QStringLiteral("hudba.wav"));
        touch(QStringLiteral("Foto/Velke/R1.bmp"));
        touch(QStringLiteral("Foto/c\u030C5.wav"));  // č as a letter and a mark
    }
    void touch(const QString& name) {
        QFile file(disc.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir disc;
    LogicalPaths paths{{{u'E', disc.path()}}};
};

TEST_F(LogicalPathTest, FindsFilesWhateverTheirLettersAndAccents) {
    const QString media = LogicalPaths::fromNativeFolder(disc.path());
    EXPECT_EQ(paths.resolve(media + QStringLiteral("HUDBA.WAV")), disc.filePath(QStringLiteral("hudba.wav")));
    EXPECT_EQ(paths.resolve(media + QStringLiteral("foto\\velke\\r1.BMP")),
              disc.filePath(QStringLiteral("Foto/Velke/R1.bmp")));
    EXPECT_EQ(paths.resolve(media + QStringLiteral("foto\\č5.wav")),
              disc.filePath(QStringLiteral("Foto/c\u030C5.wav")));
    EXPECT_EQ(paths.resolve(QStringLiteral("e:\\hudba.wav")), disc.filePath(QStringLiteral("hudba.wav")));
}

TEST_F(LogicalPathTest, AMediumMayStandUnderAnotherEndingOfItsKind) {
    const std::pair<const char*, std::vector<const char*>> kinds[] = {
        {"r2.bmp", {"r2.webp", "r2.PNG", "r2.jpg"}},
        {"Vina.WAV", {"vina.flac", "Vina.opus", "VINA.ogg"}},
        {"UVOD.AVI", {"uvod.mp4", "Uvod.webm", "uvod.mkv"}}};
    for (const auto& [wanted, standing] : kinds) {
        const QString logical = QStringLiteral("E:\\") + QLatin1String(wanted);
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
    touch(QStringLiteral("r3.ogg"));
    touch(QStringLiteral("Sarne.bak"));
    for (const char* other : {"r3.bmp", "r3.avi", "Sarne.drc"})
        EXPECT_EQ(paths.resolve(QStringLiteral("E:\\") + QLatin1String(other)), QString()) << other;
}

TEST_F(LogicalPathTest, WhatIsNotThereIsEmpty) {
    for (const char* path : {"E:\\chybi.wav", "F:\\hudba.wav", ":\\hudba.wav", "", "hudba.wav"})
        EXPECT_EQ(paths.resolve(QString::fromLatin1(path)), QString()) << path;
}

TEST(Folder, EndsInOneBackslash) {
    EXPECT_EQ(withTrailingBackslash(QStringLiteral("C:\\")), QStringLiteral("C:\\"));
    EXPECT_EQ(withTrailingBackslash(QStringLiteral("C:\\Prog")), QStringLiteral("C:\\Prog\\"));
    EXPECT_EQ(LogicalPaths::fromNativeFolder(QStringLiteral("/opt/kuchyne/")),
              QStringLiteral("\\opt\\kuchyne\\"));
}

TEST(LogicalPathDrivesTest, DrivesAreAskedForAgainWhenALetterLeadsNowhere) {
    const QTemporaryDir disc;
    QFile(disc.filePath(QStringLiteral("hudba.wav"))).open(QIODevice::WriteOnly);
    LogicalPaths::Drives drives;
    LogicalPaths paths([&drives] { return drives; });
    EXPECT_EQ(paths.resolve(QStringLiteral("E:\\HUDBA.WAV")), QString());
    drives.insert(u'E', disc.path());
    EXPECT_EQ(paths.resolve(QStringLiteral("E:\\HUDBA.WAV")), disc.filePath(QStringLiteral("hudba.wav")));
    // A folder that a logical path cannot name gets a letter of its own.
    const QString odd = disc.filePath(QStringLiteral("a\\b"));
    ASSERT_TRUE(QDir().mkdir(odd));
    EXPECT_EQ(paths.resolve(paths.mapFolder(odd)), odd);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
