#include "forms/longparagraphs.h"

namespace sarne {
namespace {

/// Characters that nobody sees, and then the private ones: more than any text has of them.
char16_t nextMark(char16_t mark) {
    constexpr char16_t kLastInvisible = 0x2064, kFirstPrivate = 0xE000;
    return mark == kLastInvisible ? kFirstPrivate : static_cast<char16_t>(mark + 1);
}

}  // namespace

qsizetype LongParagraphs::breakIn(QStringView paragraph) {
    const QStringView piece = paragraph.left(kLongest);
    const qsizetype blank = piece.lastIndexOf(u' ');
    if (blank > 0) return blank + 1;
    // A character of two units stays whole.
    return piece.size() - (piece.back().isHighSurrogate() ? 1 : 0);
}

QString LongParagraphs::open(const QString& text) {
    constexpr char16_t kLastPrivate = 0xF8FF;
    mark_ = kFirstMark;
    while (text.contains(mark_) && mark_ != kLastPrivate) mark_ = nextMark(mark_.unicode());
    return broken(text);
}

QString LongParagraphs::broken(QString text) const {
    text.remove(mark_);
    QString all;
    all.reserve(text.size() + text.size() / kLongest * 2);
    QStringView rest(text);
    while (!rest.isEmpty()) {
        const qsizetype end = rest.left(kLongest + 1).indexOf(u'\n');
        if (end < 0 && rest.size() > kLongest) {
            const qsizetype length = breakIn(rest);
            all += rest.left(length);
            all += lineBreak();
            rest = rest.mid(length);
            continue;
        }
        const qsizetype length = end < 0 ? rest.size() : end + 1;
        all += rest.left(length);
        rest = rest.mid(length);
    }
    return all;
}

QString LongParagraphs::joined(QString text) const {
    return text.remove(lineBreak()).remove(mark_);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
