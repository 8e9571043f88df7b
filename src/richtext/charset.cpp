#include "richtext/charset.h"

#include <QStringDecoder>
#include <algorithm>
#include <iterator>

namespace sarne {
namespace {

struct CodePage {
    int charset;
    const char* name;
};
constexpr CodePage kCodePages[] = {
    {0, "windows-1252"},   {238, "windows-1250"}, {204, "windows-1251"}, {161, "windows-1253"},
    {162, "windows-1254"}, {177, "windows-1255"}, {178, "windows-1256"}, {186, "windows-1257"},
    {163, "windows-1258"}, {222, "windows-874"},  {77, "macintosh"},     {254, "IBM437"},
    {255, "IBM850"},
};
constexpr auto kCodePageCount = std::size(kCodePages);

/// A code that the page leaves empty reads as the character of that number.
CharsetTable decode(const CodePage& page) {
    CharsetTable table;
    for (int code = 0; code < 256; ++code) {
        const char byte = static_cast<char>(code);
        QStringDecoder decoder(page.name);
        const QString text =
            decoder.isValid() ? QString(decoder.decode(QByteArrayView(&byte, 1))) : QString();
        const bool usable = text.size() == 1 && text[0] != QChar::ReplacementCharacter;
        table[code] = usable ? text[0] : QChar(code);
    }
    return table;
}

using AllTables = std::array<CharsetTable, kCodePageCount>;

AllTables decodeAll() {
    AllTables tables;
    std::transform(std::begin(kCodePages), std::end(kCodePages), tables.begin(), decode);
    return tables;
}

}  // namespace

const CharsetTable& charsetTable(int charset) {
    static const AllTables tables = decodeAll();
    for (size_t i = 0; i < kCodePageCount; ++i) {
        if (kCodePages[i].charset == charset) return tables[i];
    }
    return tables[0];
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
