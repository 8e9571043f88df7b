#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include "disc/commands/ask.h"
#include "disc/commands/build.h"
#include "disc/commands/commands.h"
#include "disc/commands/tellproblems.h"
#include "disc/ownfiles.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne::disc {
namespace {

/// The disc in \a folder, which takes nothing from a finished one.
Project projectOf(const QString& folder) {
    Project made = projectIn(folder);
    made.base.clear();
    made.rcc = QStringLiteral(SARNE_RCC);
    return made;
}

/// An author's disc, begun in a folder of its own.
class AuthorTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(createDisc({folder()}), 0); }

    QString folder() const { return folder_.filePath(u"kniha"_s); }
    QString path(const char* name) const { return folder() + u'/' + QString::fromUtf8(name); }

    void replace(const char* file, const char* from, const char* to) const {
        QByteArray text = test::bytesOf(path(file));
        ASSERT_TRUE(text.contains(from)) << from;
        ASSERT_TRUE(test::write(path(file), text.replace(from, to)));
    }

    /// All errors, with their lines and columns, and if wanted what is unfinished in the texts.
    QString check(bool isAll = false) const {
        Problems problems;
        checkDisc(projectOf(folder()), problems);
        QStringList all;
        for (const Problem& problem : problems.all()) {
            const ProblemSpot spot = spotOf(projectOf(folder()).content, problem);
            if (problem.isError || (isAll && problem.place.line > 0))
                all << u"%1:%2:%3 %4"_s.arg(spot.place.file)
                           .arg(spot.place.line)
                           .arg(spot.column)
                           .arg(problem.text);
        }
        return all.join(u'\n');
    }

    QTemporaryDir folder_;
};

TEST_F(AuthorTest, ANewDiscHasNoFaultsAndIsNeverWrittenOver) {
    EXPECT_EQ(check(), QString());
    EXPECT_EQ(createDisc({folder()}), 1);
}

TEST_F(AuthorTest, AllMistakesAreToldAtOnceWhereTheyStand) {
    replace("content/recepty/01-smazenice.txt", "máslo: 45 g", "maslo: 45 g");
    replace("content/recepty/02-nakladane-zampiony.txt", "obtížnost: snadné", "obtížnost: lehké");
    replace("content/hesla/houby.txt", "ve vodě by", "[ve vodě] by");
    // What follows from these is not told: neither tags, tools and words left unused nor times.
    replace("content/recepty/15-houbova-polevka.txt", "minut: 50\n", "");
    replace("content/recepty/15-houbova-polevka.txt", "== Postup", "== Postupp");
    replace("content/menu.txt", "  Hřiby =>", "   Hřiby =>");
    replace("content/menu.txt", "heslo Zeleninový vývar", "heslo Vývar z masa");
    test::expectText(u"chyby"_s, check(true));
}

TEST_F(AuthorTest, ANewRecipeHasNoFaults) {
    ASSERT_EQ(createRecipe({folder(), u"--nazev"_s, u"Bedla jako řízek"_s, u"--hlavni"_s, u"bedly"_s,
                            u"--porce"_s, u"2"_s, u"--chod"_s, u"teplé"_s}),
              0);
    EXPECT_TRUE(QFile::exists(path("content/recepty/03-bedla-jako-rizek.txt")));
    EXPECT_EQ(check(), QString());
}

TEST(AskTest, UntilThereIsAnAnswerOrTheInputEnds) {
    const Question portions{{},
                            u"Kolik?"_s,
                            u"4"_s,
                            [](const QString& line) { return line.toInt() > 0 ? line : QString(); },
                            u"Číslo."_s};
    const auto asked = [&](QString typed) {
        QString said;
        QTextStream in(&typed), out(&said);
        const QString answer = ask(portions, in, out);
        return answer + u"/%1"_s.arg(said.count(u"Číslo."_s));
    };
    EXPECT_EQ(asked(u"šest\n-1\n 6 \n7\n"_s), u"6/2"_s);
    EXPECT_EQ(asked(u"\n"_s), u"4/0"_s) << "the usual answer";
    EXPECT_EQ(asked(u"šest"_s), u"/1"_s) << "the input ends";
}

/// A new disc without a finished one to take from: photo, recording and film are the author's own.
TEST(OwnFilesTest, ADiscIsBuiltOfThem) {
    const QTemporaryDir folder;
    const QString disc = folder.filePath(u"kniha"_s);
    ASSERT_EQ(createDisc({disc}), 0);
    const QString content = disc + u"/content/"_s;
    // Red at the left, green elsewhere, upright and very wide: the point named in the head is kept.
    QImage photo(1200, 300, QImage::Format_RGB32);
    photo.fill(Qt::green);
    QPainter(&photo).fillRect(0, 0, 400, 300, Qt::red);
    ASSERT_TRUE(photo.save(content + u"recepty/01-smazenice.PNG"_s));
    const QString recipe = content + u"recepty/01-smazenice.txt"_s;
    ASSERT_TRUE(test::write(recipe, test::bytesOf(recipe).replace("porce: 4\n", "porce: 4\nvýřez: 5 50\n")));
    const auto make = [&](const QString& source, const QString& file) {
        test::output(u"ffmpeg"_s,
                     {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, source, content + file});
    };
    ASSERT_TRUE(test::write(content + u"videa.txt"_s, "1 | Jak na houby\n"));
    QDir().mkpath(content + u"videa"_s);
    make(u"sine=frequency=300:duration=1"_s, u"recepty/01-smazenice.mp3"_s);
    make(u"sine=frequency=300:duration=1"_s, u"zvuky/hudba.ogg"_s);
    make(u"testsrc=size=320x180:rate=10:duration=1"_s, u"videa/1.mp4"_s);

    Problems problems;
    buildDisc(projectOf(disc), {}, problems, nullptr);
    ASSERT_EQ(problems.errors().join(u'\n').toStdString(), "");
    for (const QString& name : QDir(QStringLiteral(SARNE_ART "/rendered/prvky")).entryList(QDir::Files))
        EXPECT_TRUE(QFile::exists(disc + u"/hotovo/scratch/predlohy/rendered/prvky/"_s + name))
            << name.toStdString() << " is not drawn";
    const QImage shown(disc + u"/hotovo/disc/foto/Male/r1.jpg"_s);
    EXPECT_EQ(shown.size(), QSize(640, 480));
    EXPECT_GT(shown.pixelColor(600, 240).red(), 240) << "the photo is cut around its left end";
    for (const char* file : {"disc/zvuky/č1.ogg", "disc/HUDBA.opus", "program/Sarne.rcc"})
        EXPECT_TRUE(QFile::exists(disc + u"/hotovo/"_s + QString::fromUtf8(file))) << file;
    EXPECT_EQ(test::output(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-select_streams"_s, u"v"_s,
                                          u"-show_entries"_s, u"stream=width,height,codec_name"_s, u"-of"_s,
                                          u"csv=p=0"_s, disc + u"/hotovo/disc/VIDEO/1.mkv"_s}),
              u"h264,800,600\n"_s);
    // Unchanged, nothing is made again, wherever the disc is moved to.
    const QString moved = folder.filePath(u"jinde"_s);
    ASSERT_TRUE(QDir().rename(disc, moved));
    struct Count final : Progress {
        void made(const QString&, qsizetype, qsizetype, const QString&) override { ++files; }
        int files = 0;
    } count;
    Problems none;
    buildDisc(projectOf(moved), {}, none, &count);
    EXPECT_EQ(none.errors().join(u'\n').toStdString(), "");
    EXPECT_LE(count.files, 5) << "but for the names that no voice could say";
}

TEST(OwnFilesTest, APictureThatNothingReadsIsTold) {
    const QTemporaryDir folder;
    const QString png = folder.filePath(u"foto.png"_s);
    const QString heic = folder.filePath(u"foto.heic"_s);
    EXPECT_EQ(whyUnreadable(png), u"obrázek nejde přečíst"_s);
    const QImage photo = test::plain({64, 48}, Qt::red);
    ASSERT_TRUE(photo.save(png));
    EXPECT_EQ(whyUnreadable(png), QString());
    const QString jpeg = folder.filePath(u"foto.jpg"_s);
    ASSERT_TRUE(photo.save(jpeg));
    EXPECT_EQ(whyUnreadable(jpeg), QString());
    for (const QString& cut : {png, jpeg}) {
        QFile(cut).resize(QFileInfo(cut).size() - 20);
        EXPECT_TRUE(whyUnreadable(cut).contains(u"není celý"_s)) << cut.toStdString();
    }
    ASSERT_TRUE(photo.save(png));
    test::output(u"heif-enc"_s, {png, u"-o"_s, heic});
    if (!QFile::exists(heic)) GTEST_SKIP() << "nothing here writes HEIC";
    EXPECT_EQ(whyUnreadable(heic), QString());
    EXPECT_EQ(readPicture(heic).size(), photo.size());
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
