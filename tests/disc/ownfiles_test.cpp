#include "disc/ownfiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "disc/commands/build.h"
#include "disc/commands/commands.h"

namespace sarne::disc {
namespace {

QString run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// A new disc without a finished one to take from: photo, recording and film are the author's own.
TEST(OwnFilesTest, ADiscIsBuiltOfThem) {
    const QTemporaryDir folder;
    const QString disc = folder.filePath(QStringLiteral("kniha"));
    ASSERT_EQ(createDisc({disc}), 0);
    const QString content = disc + QStringLiteral("/content/");
    // Red at the left, green elsewhere, upright and very wide: the point named in the head is kept.
    QImage photo(1200, 300, QImage::Format_RGB32);
    photo.fill(Qt::green);
    for (int x = 0; x < 400; ++x)
        for (int y = 0; y < 300; ++y) photo.setPixelColor(x, y, Qt::red);
    ASSERT_TRUE(photo.save(content + QStringLiteral("recepty/01-smazenice.PNG")));
    QFile recipe(content + QStringLiteral("recepty/01-smazenice.txt"));
    ASSERT_TRUE(recipe.open(QIODevice::ReadWrite));
    const QByteArray text = recipe.readAll();
    recipe.seek(0);
    recipe.write(QByteArray(text).replace("porce: 4\n", "porce: 4\nvýřez: 5 50\n"));
    recipe.close();
    const QString tone = QStringLiteral("sine=frequency=300:duration=1");
    run(QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"), QStringLiteral("lavfi"),
         QStringLiteral("-i"), tone, content + QStringLiteral("recepty/01-smazenice.mp3")});
    run(QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"), QStringLiteral("lavfi"),
         QStringLiteral("-i"), tone, content + QStringLiteral("zvuky/hudba.ogg")});
    QDir().mkpath(content + QStringLiteral("videa"));
    run(QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"), QStringLiteral("lavfi"),
         QStringLiteral("-i"), QStringLiteral("testsrc=size=320x180:rate=10:duration=1"),
         content + QStringLiteral("videa/1.mp4")});
    QFile films(content + QStringLiteral("videa.txt"));
    ASSERT_TRUE(films.open(QIODevice::WriteOnly) && films.write("1 | Jak na houby\n") > 0);
    films.close();

    Project project = projectIn(disc);
    project.base.clear();
    project.rcc = QStringLiteral(SARNE_RCC);
    Problems problems;
    buildDisc(project, {}, problems, nullptr);
    ASSERT_EQ(problems.errors().join(u'\n').toStdString(), "");
    const QImage shown(disc + QStringLiteral("/hotovo/disc/foto/Male/r1.jpg"));
    EXPECT_EQ(shown.size(), QSize(640, 480));
    EXPECT_GT(shown.pixelColor(600, 240).red(), 240) << "the photo is cut around its left end";
    EXPECT_TRUE(QFile::exists(disc + QStringLiteral("/hotovo/disc/zvuky/č1.ogg")));
    EXPECT_TRUE(QFile::exists(disc + QStringLiteral("/hotovo/disc/HUDBA.opus")));
    EXPECT_TRUE(QFile::exists(disc + QStringLiteral("/hotovo/program/Sarne.rcc")));
    EXPECT_EQ(run(QStringLiteral("ffprobe"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                   QStringLiteral("v"), QStringLiteral("-show_entries"),
                   QStringLiteral("stream=width,height,codec_name"), QStringLiteral("-of"),
                   QStringLiteral("csv=p=0"), disc + QStringLiteral("/hotovo/disc/VIDEO/1.mkv")}),
              QStringLiteral("h264,800,600"));
    // Unchanged, nothing is made again, wherever the disc is moved to.
    const QString moved = folder.filePath(QStringLiteral("jinde"));
    ASSERT_TRUE(QDir().rename(disc, moved));
    struct Count final : Progress {
        void made(const QString&, qsizetype, qsizetype, const QString&) override { ++files; }
        int files = 0;
    } count;
    Project again = projectIn(moved);
    again.base.clear();
    again.rcc = project.rcc;
    Problems none;
    buildDisc(again, {}, none, &count);
    EXPECT_EQ(none.errors().join(u'\n').toStdString(), "");
    EXPECT_LE(count.files, 5) << "but for the names that no voice could say";
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
