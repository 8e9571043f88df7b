#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>

#include "disc/loadcookbook.h"
#include "disc/sounds/voice.h"
#include "disc/videos/draw.h"
#include "disc/videos/makevideos.h"
#include "medialines.h"

namespace sarne::disc {
namespace {

const char* const kScript =
    "scéna: prkno\n"
    "věc: ryba kapr x=400 y=300\n"
    "věc: nůž x=100 y=100\n"
    "== První věta o rybě na prkně.\n"
    "trvá: 4\n"
    "nůž: od=0 do=0,5 x=300\n"
    "nůž: od=0,5 do=1 x=500 kmitů=2 dy=10\n"
    "== Druhá věta o noži a rybě.\n"
    "trvá: 4,5\n"
    "nůž: od=0,5 do=0,5 vidět=0\n"
    "ryba: očištěná=0,2>1\n"
    "zvuk: 0,1 cinknutí hlas=-6\n";

std::string firstError(std::string text) {
    Problems problems;
    readFilm(linesOf(text.c_str()), {}, problems);
    return problems.errors().value(0).toStdString();
}

/// The script with \a line behind its first caption.
std::string errorOf(const char* line) {
    return firstError(std::string("scéna: prkno\nvěc: ryba kapr x=400\n== Věta.\n") + line);
}

TEST(Films, FaultsNameTheirLine) {
    EXPECT_EQ(firstError(kScript), "");
    EXPECT_EQ(errorOf("vidlička: x=4"), "soubor.txt:4: ve filmu není „vidlička“");
    EXPECT_EQ(errorOf("ryba: x=daleko"), "soubor.txt:4: x není číslo: daleko");
    EXPECT_EQ(errorOf("ryba: barva=4"), "soubor.txt:4: klíč „barva“ je neznámý");
    EXPECT_EQ(errorOf("ryba: od=0,8 do=0,2 x=4"), "soubor.txt:4: od a do jsou podíly kroku od 0 do 1");
    EXPECT_EQ(errorOf("trvá: chvíli"), "soubor.txt:4: trvá není číslo");
    EXPECT_EQ(errorOf("zvuk: cinknutí"), "soubor.txt:4: zvuk začíná podílem kroku");
    EXPECT_EQ(firstError("scéna: moře\n== Věta."), "soubor.txt:1: scéna „moře“ neexistuje");
    EXPECT_EQ(firstError("věc: loď\nscéna: prkno\n== Věta."), "soubor.txt:1: „loď“ nikdo neumí nakreslit");
    EXPECT_EQ(firstError("scéna: prkno\n=="), "soubor.txt:2: krok nemá titulek");
    EXPECT_EQ(firstError("scéna: prkno"), "soubor.txt:1: scénář nemá krok");
    EXPECT_EQ(firstError("bouře: ano"), "soubor.txt:1: scénář nezná řádek „bouře: ano“");
}

TEST(Films, ThingsMoveWithinTheirStepAndStayWhereTheyCame) {
    Problems problems;
    Film film = readFilm(linesOf(kScript), {}, problems);
    film.steps[0].end = 4;
    film.steps[1].begin = 4;
    film.steps[1].end = 8;
    const Actor& fish = film.actors[0];
    const Actor& knife = film.actors[1];
    const auto at = [&](const Actor& actor, double seconds, const char* property) {
        return film.pose(actor, seconds).of(QString::fromUtf8(property), 1);
    };
    EXPECT_EQ(at(knife, 0, "x"), 100);
    EXPECT_NEAR(at(knife, 1, "x"), 200, 0.01);
    EXPECT_NEAR(at(knife, 3, "x"), 400, 0.01);
    EXPECT_NEAR(at(knife, 7, "x"), 500, 0.01);
    // Slow at both ends.
    EXPECT_LT(at(knife, 0.2, "x") - 100, 10);
    // There and back: away from its place in between, at its place at the end.
    EXPECT_NEAR(at(knife, 2.25, "y"), 110, 1.5);
    EXPECT_NEAR(at(knife, 2.75, "y"), 90, 1.5);
    EXPECT_NEAR(at(knife, 4, "y"), 100, 0.01);
    EXPECT_EQ(at(knife, 5.9, "vidět"), 1);
    EXPECT_EQ(at(knife, 6.1, "vidět"), 0);
    EXPECT_NEAR(at(fish, 4, "očištěná"), 0.2, 0.01);
    EXPECT_NEAR(at(fish, 9, "očištěná"), 1, 0.01);
}

/// Every kind leaves something on the picture, and every property changes it.
TEST(Drawing, EveryKindAndPropertyShows) {
    const auto drawn = [](const ActorKind& kind, const QHash<QString, double>& values) {
        QImage image(800, 800, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(400, 400);
        kind.draw(painter, {values, 0.4});
        return image;
    };
    QImage blank(800, 800, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    for (auto kind = actorKinds().cbegin(); kind != actorKinds().cend(); ++kind) {
        QHash<QString, double> rest;
        for (const QString& property : kind->properties) {
            // What is drawn out, opened or laid away shows only where there is a cut or a fillet.
            rest = {{QStringLiteral("řez"), 1.0}};
            if (property == QStringLiteral("odložený") || property == QStringLiteral("kostra"))
                rest[QStringLiteral("filet")] = 0.8;
            if (property == QStringLiteral("tuhý")) rest[QStringLiteral("výška")] = 1;
            QHash<QString, double> changed = rest;
            for (const QString& all : {QStringLiteral("ploutve"), QStringLiteral("stín")}) rest[all] = 1;
            changed[property] = property == QStringLiteral("převrácená") ? 0.4
                                : rest.value(property) > 0               ? 0
                                                                         : 0.7;
            if (property == QStringLiteral("obsah") || property == QStringLiteral("číslo"))
                changed[property] = 2;
            EXPECT_NE(drawn(*kind, rest), drawn(*kind, changed))
                << kind.key().toStdString() << ' ' << property.toStdString();
        }
        EXPECT_NE(drawn(*kind, {{QStringLiteral("síla"), 0.5}, {QStringLiteral("výška"), 0.5}}), blank)
            << kind.key().toStdString();
    }
}

TEST(Films, TheScriptsThatShipAreFaultless) {
    Problems problems;
    const ContentFolder folder(QStringLiteral(SARNE_CONTENT), problems);
    const Cookbook book = loadCookbook(folder, problems);
    EXPECT_GE(book.videos.size(), 6);
    QStringList scripts{QStringLiteral("videa/uvod.txt")};
    for (const Video& video : book.videos) scripts << QStringLiteral("videa/%1.txt").arg(video.number);
    for (const QString& script : scripts) readFilm(folder.read(script), {}, problems);
    EXPECT_EQ(problems.errors(), QStringList());
}

/// A disc with one short film.
class MakeVideos : public testing::Test {
  protected:
    void SetUp() override {
        QDir().mkpath(folder_.filePath(QStringLiteral("content/videa")));
        QDir().mkpath(folder_.filePath(QStringLiteral("content/zvuky")));
        write("content/videa/uvod.txt", kScript);
        write("content/zvuky/efekty.txt", "== 0 | cinknutí | 0,5\núder látka=sklo výška=2000 doznění=0,1\n");
        write("content/slovnik.txt", "\n");
        for (const QString& source : Voices::sources({}))
            ASSERT_TRUE(QFile::copy(QStringLiteral(SARNE_CONTENT) + source,
                                    folder_.filePath(QStringLiteral("content")) + source));
    }

    void write(const char* file, const std::string& text) {
        QFile out(folder_.filePath(QLatin1String(file)));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly) && out.write(text.c_str()) > 0);
    }

    QStringList run(DiscKind kind = DiscKind::Full) {
        Problems problems;
        Ledger ledger(folder_.filePath(QStringLiteral("ledger")));
        Workshop shop{book_,
                      folder_.filePath(QStringLiteral("content")),
                      {},
                      {},
                      folder_.filePath(QStringLiteral("disc")),
                      folder_.filePath(QStringLiteral("scratch")),
                      ledger,
                      problems,
                      kind};
        makeVideos(shop);
        return problems.errors();
    }

    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    QString film() const { return folder_.filePath(QStringLiteral("disc/VIDEO/UVOD.AVI")); }

    QTemporaryDir folder_;
    Cookbook book_;
};

TEST_F(MakeVideos, HavePictureAndSoundAndAreMadeOnce) {
    ASSERT_EQ(run(), QStringList());
    const QString streams =
        output(QStringLiteral("ffprobe"),
               {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                QStringLiteral("stream=codec_name,width,height,nb_frames,channels"), QStringLiteral("-of"),
                QStringLiteral("csv=p=0"), film()});
    EXPECT_EQ(streams.section(u'\n', 0, 0).toStdString(), "mpeg4,800,600,170");
    EXPECT_TRUE(streams.section(u'\n', 1).startsWith(QStringLiteral("pcm_s16le,1"))) << streams.toStdString();

    const QString wave = folder_.filePath(QStringLiteral("zvuk.wav"));
    const QString picture = folder_.filePath(QStringLiteral("obraz.png"));
    output(QStringLiteral("ffmpeg"),
           {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-ss"), QStringLiteral("2"),
            QStringLiteral("-i"), film(), QStringLiteral("-frames:v"), QStringLiteral("1"), picture, wave});
    const Sound sound = readWav(wave);
    EXPECT_GT(peakOf(sound), 0.2);
    EXPECT_LT(peakOf(sound), fromDecibels(-3));
    const QImage frame(picture);
    ASSERT_EQ(frame.size(), QSize(kFilmWidth, kFilmHeight));
    // The fish's golden side, the paper of the caption.
    EXPECT_GT(qRed(frame.pixel(380, 330)), qBlue(frame.pixel(380, 330)) + 60);
    EXPECT_GT(qBlue(frame.pixel(60, 540)), 170);

    const QDateTime made = QFileInfo(film()).lastModified();
    ASSERT_EQ(run(), QStringList());
    EXPECT_EQ(QFileInfo(film()).lastModified(), made);
}

TEST_F(MakeVideos, OfTheCompactDiscAreThere) {
    ASSERT_EQ(run(DiscKind::Compact), QStringList());
    const QString streams =
        output(QStringLiteral("ffprobe"),
               {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-count_frames"),
                QStringLiteral("-show_entries"), QStringLiteral("stream=codec_name,nb_read_frames"),
                QStringLiteral("-of"), QStringLiteral("csv=p=0"),
                folder_.filePath(QStringLiteral("disc/VIDEO/UVOD.mkv"))});
    EXPECT_TRUE(streams.startsWith(QStringLiteral("h264,170\nopus,"))) << streams.toStdString();
    EXPECT_FALSE(QFileInfo::exists(film()));
}

TEST_F(MakeVideos, WhatIsWrongWithAScriptIsReportedAndMakesNothing) {
    const std::string script = kScript;
    write("content/videa/uvod.txt", script + "zvuk: 0,1 hrom\n");
    EXPECT_EQ(run(), QStringList(QStringLiteral("videa/uvod.txt:13: efekt hrom neexistuje")));
    write("content/videa/uvod.txt", script + "trvá: 80\n");
    EXPECT_TRUE(run().join(u' ').startsWith(QStringLiteral("videa/uvod.txt:1: film trvá 84")));
    write("content/videa/uvod.txt", script + "== Věta s přřeklepem.\n");
    EXPECT_EQ(run(),
              QStringList(QStringLiteral("videa/uvod.txt:13: slovo, které slovník nezná: přřeklepem")));
    write("content/videa/uvod.txt", script + "loď: x=4\n");
    EXPECT_EQ(run(), QStringList(QStringLiteral("videa/uvod.txt:13: ve filmu není „loď“")));
    EXPECT_FALSE(QFileInfo::exists(film()));
}

}  // namespace
}  // namespace sarne::disc
