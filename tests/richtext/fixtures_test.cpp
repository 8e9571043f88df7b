// Documents as three editors save them, laid out under fixed metrics.
#include <gtest/gtest.h>

#include "richtext/layoutdump.h"
#include "support/files.h"
#include "support/kept.h"

namespace sarne {
namespace {

class Fixtures : public testing::TestWithParam<const char*> {};

TEST_P(Fixtures, LookAsReviewed) {
    const QString name = QStringLiteral(SARNE_FIXTURES "/") + QLatin1String(GetParam());
    const QString rtf = QString::fromUtf8(test::bytesOf(name + u".rtf"_s));
    test::FixedMetrics metrics;
    const RtfLayout screen = RtfLayout::of(rtf, {0, 6000, 0}, metrics);
    const RtfLayout paper = RtfLayout::of(rtf, {0, 6000, 0}, metrics, LinkMarkers::Remove);
    const QString dump =
        u"screen\n"_s + test::dumped(screen) + u"paper\n"_s + test::wordsOf(paper).replace(u'|', u'\n');
    test::expectText(QLatin1String(GetParam()), dump);
}

INSTANTIATE_TEST_SUITE_P(Editors, Fixtures, testing::Values("wordpad", "office", "writer"),
                         [](const auto& editor) { return std::string(editor.param); });

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
