#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "db/userfile.h"
#include "kitchen/cooked.h"
#include "kitchen/cookingpages.h"
#include "kitchen/ringwave.h"

namespace sarne {
namespace {

/// The parts of \a text that are at most \a most characters long.
std::vector<QString> parts(const char* text, int most) {
    return partsThatFit(QString::fromUtf8(text), [most](const QString& part) { return part.size() <= most; });
}

TEST(PartsThatFit, AreCutBetweenSentencesAndElseBetweenWords) {
    using Parts = std::vector<QString>;
    const auto s = [](const char* text) { return QString::fromUtf8(text); };
    EXPECT_EQ(parts("Jedna. Dvě. Tři.", 100), (Parts{s("Jedna. Dvě. Tři.")}));
    EXPECT_EQ(parts("Jedna. Dvě. Tři.", 11), (Parts{s("Jedna. Dvě."), s("Tři.")}));
    EXPECT_EQ(parts("Krátká. Tahle věta je moc dlouhá. Konec.", 15),
              (Parts{s("Krátká."), s("Tahle věta je"), s("moc dlouhá."), s("Konec.")}));
    EXPECT_EQ(parts("Nejnezpracovatelnější", 5), (Parts{s("Nejnezpracovatelnější")}));
    EXPECT_EQ(parts("", 5), (Parts{QString()}));
}

TEST(CookingPages, BeginWithGettingReadyAndEndWithTheMeal) {
    const auto all = [](const QString&) { return true; };
    EXPECT_TRUE(cookingPages({}, all).empty());
    const std::vector<CookingStep> steps{{{}, QStringLiteral("A. B."), {}}, {{}, QStringLiteral("C."), {}}};
    EXPECT_EQ(cookingPages(steps, all).size(), 4u);
    const auto pages = cookingPages(steps, [](const QString& text) { return text.size() < 4; });
    ASSERT_EQ(pages.size(), 5u);
    EXPECT_EQ(pages.front().kind, CookingPage::Kind::Ready);
    EXPECT_EQ(pages[2].step, 0);
    EXPECT_EQ(pages[2].part, 1);
    EXPECT_EQ(pages[2].parts, 2);
    EXPECT_EQ(pages[3].step, 1);
    EXPECT_EQ(pages.back().kind, CookingPage::Kind::Done);
}

TEST(Cooked, IsKeptOnceADayAndByRecipe) {
    QTemporaryDir folder;
    UserFile file(folder.filePath(QStringLiteral("vlastni.db")));
    const QDate first(2026, 11, 20), second(2026, 11, 21);
    EXPECT_TRUE(keepCooked(file, 1, QStringLiteral("Kapr"), first, 4));
    EXPECT_TRUE(keepCooked(file, 1, QStringLiteral("Kapr"), second, 4));
    EXPECT_TRUE(keepCooked(file, 1, QStringLiteral("Kapr"), second, 6));
    EXPECT_TRUE(keepCooked(file, 2, QStringLiteral("Štika"), first, 2));
    EXPECT_EQ(cookedDays(file, 1), (std::vector<QDate>{second, first}));
    EXPECT_TRUE(cookedDays(file, 3).empty());
    UserFile nowhere;
    EXPECT_FALSE(keepCooked(nowhere, 1, QStringLiteral("Kapr"), first, 4));
}

TEST(RingWave, IsAWholeSoundThatIsHeardAndNotClipped) {
    const QByteArray wave = ringWave();
    ASSERT_GT(wave.size(), 44);
    EXPECT_TRUE(wave.startsWith("RIFF"));
    const auto* samples = reinterpret_cast<const qint16*>(wave.constData() + 44);
    int loudest = 0;
    for (qsizetype i = 0; i < (wave.size() - 44) / 2; ++i)
        loudest = std::max(loudest, std::abs(int(samples[i])));
    EXPECT_GT(loudest, 8000);
    EXPECT_LT(loudest, 32000);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
