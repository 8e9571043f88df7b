#include <gtest/gtest.h>

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cmath>

#include "disc/loadcookbook.h"
#include "disc/sounds/voice.h"
#include "disc/videos/makevideos.h"
#include "disc/videos/projector.h"
#include "filming.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne::disc {
namespace {

/// What is filmed of "speech | thing second, thing second ... | lines": how long it takes, the actors with
/// what is there of them and how it is revealed, and where those things stand then and how far they are
/// revealed.
TEST(Scripts, AreFilmedAsTheyAreTold) {
    test::expectCases(u"filmy"_s, [](const QString& text) {
        const QStringList parts = text.split(u" | "_s);
        const Filming filming(parts[2].toStdString(), parts[0].toDouble());
        const auto number = [](double value) { return QString::number(std::round(value * 100) / 100 + 0.); };
        QStringList all = filming.problems.errors();
        all << number(filming.film.seconds);
        for (const Actor& actor : filming.film.actors)
            all << u"%1 %2..%3"_s.arg(actor.name, number(actor.left), number(actor.right));
        for (const Actor& actor : filming.film.actors)
            if (actor.revealFrom != actor.revealTo)
                all << u"from %1 to %2"_s.arg(number(actor.revealFrom), number(actor.revealTo));
        for (const QString& wanted : parts[1].split(u", "_s)) {
            const QString thing = wanted.section(u' ', 0, -2);
            const Pose pose = filming.pose(thing, wanted.section(u' ', -1).toDouble());
            all << wanted + u": %1,%2 %3"_s.arg(number(pose.place.x()), number(pose.place.y()),
                                                number(pose.of(Property::reveal)));
        }
        return all.join(u"; "_s);
    });
}

/// The scripts that ship are understood, and everything in them is there and stays where it was laid. How
/// long a sentence takes is guessed from its letters; the disc's own build measures it.
TEST(Scripts, ThoseThatShipAreFaultless) {
    Problems problems;
    const ContentFolder folder(QStringLiteral(SARNE_CONTENT), problems);
    const Cookbook book = loadCookbook(folder, problems);
    const Cast cast = readFilmCast(folder, QStringLiteral(SARNE_CONTENT) + u"/../art"_s, problems);
    EXPECT_EQ(book.videos.size(), 9);
    QStringList scripts{u"videa/uvod.txt"_s};
    for (const Video& video : book.videos) scripts << u"videa/%1.txt"_s.arg(video.number);
    Problems lengths;
    for (const QString& script : scripts) {
        const Script read = readScript(folder.read(script), {}, cast, problems);
        QList<double> speech;
        for (const Scene& scene : read.scenes) speech << static_cast<double>(scene.speech.size()) / 13;
        const Film film = directFilm(read, cast, speech, lengths);
        EXPECT_GE(film.chapters.size(), script.contains(u"uvod"_s) ? 1 : 4) << script.toStdString();
    }
    EXPECT_EQ(problems.errors(), QStringList());
    EXPECT_EQ(lengths.errors().filter(u"scéně"_s), QStringList());
    EXPECT_EQ(lengths.errors().filter(u"skočil"_s), QStringList());
}

/// What is redrawn only where something changed looks like what is drawn anew.
TEST(Projection, FramesAreTheSameInWhateverOrderTheyAreDrawn) {
    Problems problems;
    QTemporaryDir art;
    for (const char* name : {"ryba.png", "nuz.png"})
        ASSERT_TRUE(test::write(art.filePath(u"rendered/film/"_s + QLatin1String(name)),
                                test::plain({400, 200}, QColor(200, 40, 40))));
    const std::string layers = QString::fromUtf8(kLayers).replace(u"webp"_s, u"png"_s).toStdString();
    const Cast cast = readCast(linesOf(kRoles), readLayers(linesOf(layers.c_str()), problems), problems);
    const Script script =
        readScript(linesOf("scéna: stůl\n== Kapitola\n-- Titulek.\nřeč: Věta.\nryba leží uprostřed\n"
                           "nůž přijde zprava k hlavě, 1 s\nnůž jede k ocasu, řeže, 2 s\nzároveň ryba je od "
                           "hlavy k ocasu čistá, 2 s\n"
                           "nůž odjede doprava, 1 s\n"),
                   u"Název"_s, cast, problems);
    const Film film = directFilm(script, cast, {4.0}, problems);
    ASSERT_EQ(problems.errors(), QStringList());
    const auto ground = [](const QString&) { return QImage(); };
    Projector running(film, cast, art.path(), ground);
    for (int i = 0; i < static_cast<int>(film.seconds * 25); ++i) {
        const QImage& frame = running.frame(i / 25.0);
        if (i % 20 != 7) continue;
        Projector fresh(film, cast, art.path(), ground);
        EXPECT_EQ(frame, fresh.frame(i / 25.0)) << i;
    }
}

/// A disc with one short film.
class MakeVideos : public testing::Test {
  protected:
    static constexpr const char* kFilm =
        "scéna: stůl\n"
        "== První kapitola\n"
        "-- První titulek.\n"
        "řeč: První věta o rybě na prkně.\n"
        "ryba leží uprostřed\n"
        "ryba jde nahoru o 2 cm, 4 s\n"
        "== Druhá kapitola\n"
        "-- Druhý titulek.\n"
        "řeč: Druhá věta o rybě na prkně.\n"
        "ryba jde dolů o 2 cm, 4 s, zní cinknutí\n";

    void SetUp() override {
        write("content/videa/uvod.txt", kFilm);
        write("content/videa/obsazeni.txt", "== ryba, rybě | jídlo\nvzhled: celá = ryba\n");
        write("content/zvuky/efekty.txt", "== 0 | cinknutí | 0,5\núder látka=sklo výška=2000 doznění=0,1\n");
        write("content/slovnik.txt", "\n");
        write("art/rendered/film/veci.txt", "ryba ryba.png 400 200 200 100 380 100\n");
        for (const char* picture : {"art/rendered/film/ryba.png", "art/rendered/pozadi/stranka.jpg"})
            ASSERT_TRUE(test::write(in(picture), test::plain({400, 200}, QColor(220, 160, 60))));
        for (const QString& source : Voices::sources({}))
            ASSERT_TRUE(QFile::copy(QStringLiteral(SARNE_CONTENT) + source, in("content") + source));
    }

    QString in(const char* file) const { return folder_.filePath(QString::fromUtf8(file)); }
    void write(const char* file, const std::string& text) {
        ASSERT_TRUE(test::write(in(file), text.c_str()));
    }

    QStringList run(DiscKind kind = DiscKind::Full) {
        Problems problems(Edition::release);
        Ledger ledger(in("ledger"));
        Workshop shop{book_, in("content"), in("art"), {}, in("disc"), in("scratch"), ledger, problems, kind};
        makeVideos(shop);
        return problems.errors();
    }

    /// What \a program says of \a files with the \a options.
    static QString output(const QString& program, const char* options, const QStringList& files) {
        return test::output(program, QString::fromLatin1(options).split(u' ') + files).trimmed();
    }

    QString film() const { return in("disc/VIDEO/UVOD.AVI"); }

    QTemporaryDir folder_;
    Cookbook book_;
};

TEST_F(MakeVideos, HavePictureSoundAndChaptersAndAreMadeOnce) {
    ASSERT_EQ(run(), QStringList());
    const QString streams = output(
        u"ffprobe"_s, "-v error -show_entries stream=codec_name,width,height,channels -of csv=p=0", {film()});
    EXPECT_EQ(streams.section(u'\n', 0, 0).toStdString(), "mpeg4,800,600");
    EXPECT_TRUE(streams.section(u'\n', 1).startsWith(u"mp3,1"_s)) << streams.toStdString();

    const QString wave = in("zvuk.wav");
    const QString picture = in("obraz.png");
    output(u"ffmpeg"_s, "-v error -ss 2 -i", {film(), u"-frames:v"_s, u"1"_s, picture, wave});
    const Sound sound = readWav(wave);
    EXPECT_GT(peakOf(sound), 0.2);
    EXPECT_LT(peakOf(sound), fromDecibels(-2.5));
    const QImage frame(picture);
    ASSERT_EQ(frame.size(), QSize(kFilmWidth, kFilmHeight));
    // The fish's golden side, the paper of the caption.
    EXPECT_GT(qRed(frame.pixel(400, 230)), qBlue(frame.pixel(400, 230)) + 60);
    EXPECT_GT(qBlue(frame.pixel(60, 540)), 170);

    EXPECT_EQ(test::bytesOf(in("disc/VIDEO/UVOD.KAP")), "0.00\tPrvní kapitola\n4.70\tDruhá kapitola\n");

    const QDateTime made = QFileInfo(film()).lastModified();
    ASSERT_EQ(run(), QStringList());
    EXPECT_EQ(QFileInfo(film()).lastModified(), made);
}

TEST_F(MakeVideos, OfTheCompactDiscAreThere) {
    ASSERT_EQ(run(DiscKind::Compact), QStringList());
    const QString streams = output(
        u"ffprobe"_s, "-v error -count_frames -show_entries stream=codec_name,nb_read_frames -of csv=p=0",
        {in("disc/VIDEO/UVOD.mkv")});
    EXPECT_TRUE(streams.startsWith(u"h264,219\nopus,"_s)) << streams.toStdString();
    EXPECT_TRUE(QFileInfo::exists(in("disc/VIDEO/UVOD.KAP")));
    EXPECT_FALSE(QFileInfo::exists(film()));
}

TEST_F(MakeVideos, WhatIsWrongWithAScriptIsReportedAndMakesNothing) {
    const std::string script = kFilm;
    write("content/videa/uvod.txt", script + "ryba jde nahoru o 1 cm, zní hrom\n");
    EXPECT_EQ(run(), QStringList(u"videa/uvod.txt:11: zvuk „hrom“ neexistuje"_s));
    write("content/videa/uvod.txt", script + "ryba jde nahoru o 1 cm, 6 s\n");
    EXPECT_TRUE(run().join(u' ').contains(u"videa/uvod.txt:1: film trvá 14"_s));
    write("content/videa/uvod.txt", script + "-- Titulek s přřeklepem.\nřeč: Věta.\n");
    EXPECT_EQ(run(), QStringList(u"videa/uvod.txt:11: slovo, které slovník nezná: přřeklepem"_s));
    EXPECT_FALSE(QFileInfo::exists(film()));
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
