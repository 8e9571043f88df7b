#include "richtext/rtfdocument.h"

#include <algorithm>

#include "richtext/charset.h"
#include "richtext/rtfreader.h"

namespace sarne {
namespace {

constexpr int kCzechCharset = 238;  // that of the document's font

/// The code of \a c in the document's charset; that of "?" where it has none.
int codeOf(QChar c) {
    const CharsetTable& table = charsetTable(kCzechCharset);
    const auto found = std::find(table.begin() + 1, table.end(), c);
    return found == table.end() ? '?' : static_cast<int>(found - table.begin());
}

/// \a text with everything that has a meaning in a rich text, and every letter beyond ASCII, as an escape.
QString escaped(const QString& text) {
    QString out;
    for (const QChar c : text) {
        if (c == u'\n') {
            out += QStringLiteral("\\par ");
            continue;
        }
        const bool plain = c.unicode() >= 32 && c.unicode() < 127 && !QStringLiteral("\\{}*#@").contains(c);
        out += plain ? QString(c) : QStringLiteral("\\'%1").arg(codeOf(c), 2, 16, QLatin1Char('0'));
    }
    return out;
}

}  // namespace

void RtfDocument::heading(const QString& text) {
    body_ += QStringLiteral("\\b\\fs30 %1\\b0\\fs24\\par\r\n\\par\r\n").arg(escaped(text));
}

void RtfDocument::paragraph(const QString& text) {
    body_ += escaped(text) + QStringLiteral("\\par\r\n");
}

void RtfDocument::paragraph(const QString& bold, const QString& text) {
    // The blank before \b0 ends the bold word: a word takes the font in force at its end.
    body_ += QStringLiteral("\\b %1 \\b0 %2\\par\r\n").arg(escaped(bold), escaped(text));
}

QString RtfDocument::appendedTo(const QString& document) const {
    const qsizetype end = document.lastIndexOf(u'}');
    if (!isRtf(document) || end < 0) return text();
    return document.left(end) + QStringLiteral("\\par\r\n\\pard\\plain\\f0\\fs24 ") + body_ +
           document.mid(end);
}

QString RtfDocument::text() const {
    return QStringLiteral(
               "{\\rtf1\\ansi\\ansicpg1250\\deff0\\deftab720{\\fonttbl{\\f0\\fnil\\fcharset238 Times New "
               "Roman;}}\r\n{\\colortbl\\red0\\green0\\blue0;}\r\n\\pard\\plain\\f0\\fs24 ") +
           body_ + QStringLiteral("}");
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
