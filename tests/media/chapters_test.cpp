#include "media/chapters.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files.h"

namespace sarne {
namespace {

const QByteArray kThree = "0.00\tCo budete potřebovat\n9.17\tPrvní bok\r\n32.5\tDruhý bok\n";

TEST(ChaptersTest, StepsLeadFromOneToTheNext) {
    const Chapters film = Chapters::parse(kThree);
    const std::vector<Chapter> expected{
        {0, u"Co budete potřebovat"_s}, {9170, u"První bok"_s}, {32500, u"Druhý bok"_s}};
    ASSERT_EQ(film.all(), expected);
    EXPECT_EQ(film.titleAt(9169), expected[0].title);
    EXPECT_EQ(film.titleAt(9170), expected[1].title) << "a chapter begins where it says";
    EXPECT_EQ(film.titleAt(90000), expected[2].title);

    EXPECT_EQ(film.next(0, 60000), 9170);
    EXPECT_EQ(film.next(9170, 60000), 32500);
    EXPECT_EQ(film.next(40000, 60000), 60000);
    EXPECT_EQ(film.next(9170, 20000), 20000) << "never past the film's end";
    EXPECT_EQ(film.previous(40000), 9170);
    EXPECT_EQ(film.previous(9170), 0);
    EXPECT_EQ(film.previous(0), 0);

    EXPECT_EQ(film.again(31000), 9170) << "what is on";
    EXPECT_EQ(film.again(33000), 9170) << "what was just over";
    EXPECT_EQ(film.again(60000), 32500) << "at the end, the last one";
    EXPECT_EQ(film.again(500), 0);
}

TEST(ChaptersTest, WithoutThemAFilmIsOnePart) {
    const Chapters film;
    EXPECT_EQ(film.titleAt(5000), QString());
    EXPECT_EQ(film.next(5000, 60000), 60000);
    EXPECT_EQ(film.previous(5000), 0);
    EXPECT_EQ(film.again(5000), 0);
    const Chapters late = Chapters::parse("5\tPozdě\n");
    EXPECT_EQ(late.titleAt(4000), QString());
    EXPECT_EQ(late.next(0, 60000), 5000);
    EXPECT_EQ(late.again(4000), 0);
}

TEST(ChaptersTest, DamagedOnesAreNone) {
    for (const char* text : {"9.17 První\n", "9,17\tPrvní\n", "\tPrvní\n", "-1\tPrvní\n", "nan\tPrvní\n",
                             "inf\tPrvní\n", "1e308\tPrvní\n", "1\t \n", "5\tDruhý\n4\tPrvní\n",
                             "5\tPrvní\n5\tDruhý\n", "5\tPrvn\xED\n", "1\tPrvní\n\x01\x02\n"})
        EXPECT_TRUE(Chapters::parse(text).isEmpty()) << text;
    EXPECT_TRUE(Chapters::parse({}).isEmpty());
}

TEST(ChaptersTest, AFileThatIsNoneIsNoChapters) {
    const QTemporaryDir folder;
    const auto write = [&](const char* name, const QByteArray& content) {
        const QString file = folder.filePath(QLatin1String(name));
        EXPECT_TRUE(test::write(file, content));
        return file;
    };
    EXPECT_EQ(Chapters::read(write("1.KAP", kThree)).all().size(), 3U);
    EXPECT_TRUE(Chapters::read(write("2.KAP", kThree + QByteArray(100000, '\n'))).isEmpty());
    EXPECT_TRUE(Chapters::read(folder.filePath(u"3.KAP"_s)).isEmpty());
    EXPECT_TRUE(Chapters::read(folder.path()).isEmpty());
    EXPECT_TRUE(Chapters::read({}).isEmpty());
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
