#include "core/value.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <climits>

#include "core/checked.h"
#include "core/sealedfile.h"

namespace sarne {
namespace {

TEST(LeadingNumber, ReadsWhatStandsAtTheBeginningAndNothingElse) {
    const struct {
        const char16_t* text;
        double number;
    } cases[] = {{u"4", 4},      {u" 7", 7},  {u"12abc", 12},   {u"2.5", 2.5}, {u"2,5", 2},
                 {u"-3", -3},    {u"abc", 0}, {u"", 0},         {u".5x", .5},  {u"1e2", 100},
                 {u"1e", 1},     {u"--3", 0}, {u"+6 porcí", 6}, {u".", 0},     {u"7.", 7},
                 {u"\t 9\n", 9}, {u"e5", 0},  {u"5e+", 5},      {u"1e999", 0}, {u"-1e999", 0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(c.text), c.number) << QStringView(c.text).toString().toStdString();
}

TEST(RecordId, NeverWraps) {
    EXPECT_EQ(toRecordId(qint64{32767}), 32767);
    EXPECT_FALSE(toRecordId(qint64{32768}));
    EXPECT_FALSE(toRecordId(qint64{65537}));
    EXPECT_EQ(toRecordId(QStringView(u" 12 ")), 12);
    EXPECT_FALSE(toRecordId(QStringView(u"12a")));
    EXPECT_FALSE(toRecordId(QStringView(u"")));
    EXPECT_EQ(leadingRecordId(u" 7.9 minut"), 7);
    for (const auto* text : {u"1e30", u"-1e30", u"1e999", u"32768"}) EXPECT_FALSE(leadingRecordId(text));
    EXPECT_FALSE(toRecordId(QStringView(u"99999999999999999999")));
}

TEST(Checked, ConversionsStayInRange) {
    const double infinite = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        int whole;
    } cases[] = {{2.9, 2},
                 {-2.9, -2},
                 {1e308, INT_MAX},
                 {-infinite, INT_MIN},
                 {2147483648., INT_MAX},
                 {-2147483648., INT_MIN}};
    for (const auto& c : cases) EXPECT_EQ(wholeNumber(c.value), c.whole) << c.value;
    EXPECT_EQ(wholeNumber(infinite - infinite), 0);
    EXPECT_EQ(wholeNumber<qint64>(9.3e18), std::numeric_limits<qint64>::max());
    EXPECT_EQ(boundedProduct(1 << 20, -3), -(3 << 20));
    EXPECT_EQ(boundedProduct(6442450944, 2147483647), std::numeric_limits<qint64>::max());
    EXPECT_EQ(boundedProduct(-6442450944, 2147483647), std::numeric_limits<qint64>::min());
}

TEST(SealedFile, AnyDamageBreaksTheSeal) {
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("Sarne.rcc"));
    const auto write = [&](const QByteArray& bytes) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write(QByteArray(700000, 'q'));
    EXPECT_FALSE(isSealed(name)) << "not sealed yet";
    ASSERT_TRUE(sealFile(name));
    EXPECT_TRUE(isSealed(name));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray sound = file.readAll();
    for (const qsizetype at : {qsizetype{0}, qsizetype{300000}, sound.size() - 17, sound.size() - 1}) {
        QByteArray damaged = sound;
        damaged[at] = 'x';
        write(damaged);
        EXPECT_FALSE(isSealed(name)) << at;
        write(sound.first(at));
        EXPECT_FALSE(isSealed(name)) << at;
    }
    EXPECT_FALSE(isSealed(folder.path()));
    const QByteArray pages = sound.first(sound.size() - 17);
    write(pages + QCryptographicHash::hash(pages, QCryptographicHash::Md5));
    EXPECT_TRUE(isSealed(name)) << "a disc of an earlier edition";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
