#include "media/chapters.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files.h"
#include "support/kept.h"

namespace sarne {
namespace {

const QByteArray kThree = "0.00\tCo budete potřebovat\n9.17\tPrvní bok\r\n32.5\tDruhý bok\n";

/// A chapter file, and behind " / " places of the film ("31000", and its length behind "of") : the chapters,
/// and at each place the title, and where the steps back, on and again lead.
TEST(ChaptersTest, StepsLeadFromOneToTheNext) {
    test::expectCases(u"kapitoly"_s, [](const QString& text) {
        const Chapters film = Chapters::parse(text.section(u" / "_s, 0, 0).toUtf8());
        QStringList all;
        for (const Chapter& one : film.all()) all << u"%1 %2"_s.arg(one.start).arg(one.title);
        for (const QString& place : text.section(u" / "_s, 1).split(u' ', Qt::SkipEmptyParts)) {
            const qint64 at = place.section(u"of"_s, 0, 0).toInt(),
                         length = place.section(u"of"_s, 1).toInt();
            all << u"@%1 %2: %3 %4 %5"_s.arg(at)
                       .arg(film.titleAt(at))
                       .arg(film.previous(at))
                       .arg(film.next(at, length))
                       .arg(film.again(at));
        }
        return all.join(u", "_s);
    });
    for (const char* text : {"5\tPrvn\xED\n", "1\tPrvní\n\x01\x02\n", ""})
        EXPECT_TRUE(Chapters::parse(text).isEmpty()) << text;
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
