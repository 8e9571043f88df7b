#include "db/dialect.h"

#include <QRegularExpression>

namespace sarne {
namespace {

/// The position behind the quoted piece that starts at \a start; -1 when it never ends. A doubled closing
/// quote is a literal one.
qsizetype skipQuoted(const QString& text, qsizetype start) {
    const QChar close = text[start] == u'[' ? QChar(u']') : text[start];
    for (qsizetype at = start + 1; at < text.size(); ++at) {
        if (text[at] != close) continue;
        if (close == u']' || at + 1 == text.size() || text[at + 1] != close) return at + 1;
        ++at;
    }
    return -1;
}

bool opensQuote(QChar c) {
    return c == u'\'' || c == u'"' || c == u'[' || c == u'`';
}

bool opensComment(const QString& text, qsizetype at) {
    const QStringView pair = QStringView(text).mid(at, 2);
    return pair == u"--" || pair == u"/*";
}

bool isOneStatement(const QString& text) {
    qsizetype at = 0;
    while (at < text.size()) {
        if (text[at] == u'\0' || opensComment(text, at)) return false;
        if (text[at] == u';') return QStringView(text).mid(at + 1).trimmed().isEmpty();
        at = opensQuote(text[at]) ? skipQuoted(text, at) : at + 1;
        if (at < 0) return false;
    }
    return true;
}

}  // namespace

std::optional<QString> adaptStatement(const QString& text) {
    if (text.trimmed().isEmpty() || !isOneStatement(text)) return std::nullopt;
    static const QRegularExpression deleteAll(QStringLiteral(R"(^\s*DELETE\s+\*)"),
                                              QRegularExpression::CaseInsensitiveOption);
    QString adapted = text;
    return adapted.replace(deleteAll, QStringLiteral("DELETE"));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
