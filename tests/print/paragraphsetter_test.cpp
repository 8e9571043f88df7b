#include "print/paragraphsetter.h"

#include <gtest/gtest.h>

#include "printcookbook.h"
#include "richtext/layoutdump.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// \a text set in lines of \a characters, a "|" between them; the metrics' characters are all equally wide.
class Setting {
  public:
    explicit Setting(int characters, bool justified = false) {
        style_.width = characters * kCharacter;
        style_.justified = justified;
    }

    QString set(const QString& text) {
        QStringList shown;
        ParagraphSetter setter(metrics_, [&](const FlowLine& line) {
            QStringList words;
            for (const PageText& word : line.texts) words << word.text;
            shown << (line.startsParagraph ? u"^"_s : QString()) + words.join(u' ') +
                         (line.endsParagraph ? u"$"_s : QString());
            const PageText& last = line.texts.back();
            if (style_.justified)
                shown.last() += u" %1-%2"_s.arg(line.texts.front().x / kCharacter)
                                    .arg((last.x + last.width) / kCharacter);
        });
        setter.begin(style_);
        for (const QString& word : text.split(u' '))
            setter.add({word, {}, 0xff000000, metrics_.textWidth({}, word), kCharacter});
        setter.end();
        return shown.join(u'|');
    }

  private:
    static constexpr int kCharacter = 120;
    test::FixedMetrics metrics_;
    ParagraphStyle style_;
};

TEST(ParagraphSetter, PartsLinesAsAReaderWould) {
    test::expectCases(u"odstavce"_s, [](const QString& text) {
        const QString width = text.section(u' ', 0, 0);
        const bool filled = width.endsWith(u'=');
        return Setting(width.chopped(filled).toInt(), filled).set(text.section(u' ', 1));
    });
    const QString note = test::longText(9000).trimmed();
    EXPECT_TRUE(Setting(20).set(note).replace(u'|', u' ') == u'^' + note + u'$')
        << "nothing is lost between pieces";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
