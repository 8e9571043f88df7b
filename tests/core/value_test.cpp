#include "core/value.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(LeadingNumber, ReadsWhatStandsAtTheBeginningAndNothingElse) {
    const struct {
        const char16_t* text;
        double number;
    } cases[] = {{u"4", 4},        {u" 7", 7}, {u"12abc", 12}, {u"2.5", 2.5},  {u"2,5", 2}, {u"-3", -3},
                 {u"abc", 0},      {u"", 0},   {u".5x", .5},   {u"1e2", 100},  {u"1e", 1},  {u"--3", 0},
                 {u"+6 porcí", 6}, {u".", 0},  {u"7.", 7},     {u"\t 9\n", 9}, {u"e5", 0},  {u"5e+", 5}};
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

}  // namespace
}  // namespace sarne
