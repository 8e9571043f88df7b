#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <vector>

#include "richtext/rtfcursor.h"

namespace sarne {

/// The fonts of a document, as its font table lists them.
class RtfFontTable {
  public:
    struct Entry {
        QString name;
        int charset;
    };

    /// Reads the table behind its "\fonttbl", up to and with the "}" that ends it.
    static RtfFontTable read(RtfCursor& cursor);

    /// The font that "\f" + \a number selects: the entry that carries this number, else the one that stands
    /// at this place, the first being 0. Null when there is none.
    const Entry* find(int number) const;

  private:
    friend class FontTableReader;

    std::vector<Entry> entries_;
    QHash<int, int> indexByNumber_;
};

using RtfColorTable = std::vector<QRgb>;

/// Reads the colours behind "\colortbl", up to and with the "}" that ends them. A ";" with nothing before it
/// is an entry too: black.
RtfColorTable readColorTable(RtfCursor& cursor);
/// As readColorTable(), for the older spelling "\colortable", at whose backslash \a cursor stands: the word
/// and three characters are passed over, and each "\" leads to the entry's next component.
RtfColorTable readOldColorTable(RtfCursor& cursor);

/// What stands before the text of a document.
struct RtfHeader {
    RtfFontTable fonts;
    RtfColorTable colors;
    int defaultTabWidth = 100;  ///< twips
    std::vector<int> tabStops;  ///< of the first paragraph, where they are set before the text begins
    qsizetype bodyStart = 0;    ///< where the text begins

    /// Reads the header of \a text.
    static RtfHeader read(QStringView text);
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
