// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/unbreakable.h"

namespace sarne {
namespace {

bool isLoneLetter(QStringView text, qsizetype at) {
    const bool lone = at == 0 || !text[at - 1].isLetterOrNumber();
    return lone && QStringView(u"ksvzouaiKSVZOUAI").contains(text[at]);
}

bool endsNumber(QStringView text, qsizetype at) {
    return text[at].isDigit() || (text[at] == u'.' && at > 0 && text[at - 1].isDigit());
}

}  // namespace

bool holdsTogether(QStringView text, qsizetype blank) {
    if (blank < 1 || blank + 1 >= text.size()) return false;
    const QChar next = text[blank + 1];
    // A link phrase or another font takes the whole word in which it begins, so nothing is joined to its
    // front.
    if (isLoneLetter(text, blank - 1)) return !next.isSpace() && !QStringView(u"[*_").contains(next);
    return endsNumber(text, blank - 1) && (next.isLetter() || next == u'°' || next == u'%');
}

QString withUnbreakableBlanks(QString text) {
    for (qsizetype at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at + 1))
        if (holdsTogether(text, at)) text[at] = QChar::Nbsp;
    return text;
}

}  // namespace sarne
