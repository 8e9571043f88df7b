#include "screens/index/headings.h"

#include <QRegularExpression>

#include "richtext/plaintext.h"

namespace sarne {

bool beginsWithHeading(QStringView text, const QString& name) {
    const QString begin = plainText(text, name.size() + 1);
    // Blanks that hold words together are blanks all the same.
    return begin.trimmed().section(u'\n', 0, 0).simplified() == name.simplified();
}

QString withoutHeading(const QString& text, const QString& name) {
    // What stands before the words of the first paragraph; they; the control words that end them.
    static const QRegularExpression first(QStringLiteral(
        R"(^((?:[^\\]|\\(?!par\b))*\\[a-z]+-?\d* )((?:[^\\{}]|\\~|\\'..)+)((?:\\[a-z]+-?\d*)*)\\par\b)"));
    const QRegularExpressionMatch found = first.match(text);
    if (!found.hasMatch()) return text;
    const QString words =
        plainText(QStringLiteral("{\\rtf1\\ansi\\ansicpg1250 ") + found.captured(2) + u'}', name.size() + 1);
    if (words.simplified() != name.simplified()) return text;
    return found.captured(1) + found.captured(3) + text.mid(found.capturedEnd());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
