#include "pronunciation.h"

namespace sarne::disc {
namespace {

constexpr QChar kRest = u'…';

QString withoutRest(const QString& text) {
    return text.endsWith(kRest) ? text.chopped(1) : text;
}

QRegularExpression wholeWords(const QString& written) {
    const QString end = written.endsWith(kRest) ? QString() : QStringLiteral("(?!\\w)");
    return QRegularExpression(
        QStringLiteral("(?<!\\w)") + QRegularExpression::escape(withoutRest(written)) + end,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

}  // namespace

Pronunciation::Pronunciation(const Lines& lines, Problems& problems) {
    for (const Row& row : tableRows(lines))
        if (row.cells.size() != 2 || row.at(0).isEmpty() ||
            row.at(0).endsWith(kRest) != row.at(1).endsWith(kRest))
            problems.error(row.place, QStringLiteral("čeká se „psáno | čte se“"));
        else
            spellings_ << Spelling{wholeWords(row.at(0)), withoutRest(row.at(1))};
}

QString Pronunciation::spoken(QString text) const {
    text = text.simplified();
    for (const Spelling& one : spellings_) text.replace(one.written, one.read);
    const bool ended = !text.isEmpty() && QStringLiteral(".!?").contains(text.back());
    return ended ? text : text + u'.';
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
