// Documents as three editors save them, laid out under fixed metrics. To renew the dumps after a wanted
// change, run with SARNE_WRITE_DUMPS=1 and review what changed.
#include <gtest/gtest.h>

#include "richtext/layoutdump.h"
#include "support/files.h"

namespace sarne {
namespace {

class Fixtures : public testing::TestWithParam<const char*> {};

TEST_P(Fixtures, LookAsReviewed) {
    const QString name = QStringLiteral(SARNE_FIXTURES "/") + QLatin1String(GetParam());
    const QString rtf = QString::fromUtf8(test::bytesOf(name + u".rtf"_s));
    test::FixedMetrics metrics;
    const RtfLayout screen = RtfLayout::of(rtf, {0, 6000, 0}, metrics);
    const RtfLayout paper = RtfLayout::of(rtf, {0, 6000, 0}, metrics, LinkMarkers::Remove);
    const QString dump = u"screen\n"_s + test::dumped(screen) + u"paper\n"_s +
                         test::wordsOf(paper).replace(u'|', u'\n') + u'\n';
    const QString dumpName = name + u".dump"_s;
    if (qEnvironmentVariableIsSet("SARNE_WRITE_DUMPS")) {
        ASSERT_TRUE(test::write(dumpName, dump.toUtf8()));
    }
    EXPECT_EQ(dump.toStdString(), test::bytesOf(dumpName).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Editors, Fixtures, testing::Values("wordpad", "office", "writer"),
                         [](const auto& editor) { return std::string(editor.param); });

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
