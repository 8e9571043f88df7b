#include "charset.h"

#include <QHash>
#include <QString>
#include <QStringDecoder>

namespace sarne::disc {
namespace {

QHash<QChar, unsigned char> reverseTable() {
    QHash<QChar, unsigned char> table;
    QStringDecoder decoder("windows-1250");
    for (int code = 0; code < 256; ++code) {
        const char byte = static_cast<char>(code);
        const QString text = decoder(QByteArrayView(&byte, 1));
        if (text.size() == 1 && text[0] != QChar::ReplacementCharacter && (code < 0x80 || text[0].isPrint()))
            table.insert(text[0], static_cast<unsigned char>(code));
    }
    return table;
}

}  // namespace

std::optional<unsigned char> windows1250(QChar character) {
    static const QHash<QChar, unsigned char> table = reverseTable();
    const auto found = table.constFind(character);
    if (found == table.cend()) return {};
    return *found;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
