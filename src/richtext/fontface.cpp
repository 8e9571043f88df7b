#include "richtext/fontface.h"

#include <QFontMetricsF>
#include <QVarLengthArray>
#include <algorithm>

namespace sarne {
namespace {

struct CharRange {
    char16_t first;
    char16_t last;
};

/// Characters that are one glyph each, in the order of the text, whatever stands beside them.
constexpr CharRange kSimple[] = {
    {0x0020, 0x00ac}, {0x00ae, 0x02ff}, {0x0370, 0x0482}, {0x048a, 0x052f},
    {0x2010, 0x2027}, {0x2030, 0x205e}, {0x20a0, 0x20cf}, {0x2100, 0x218f},
};

bool isSimple(QChar c) {
    return std::any_of(std::begin(kSimple), std::end(kSimple),
                       [c](CharRange range) { return c >= range.first && c <= range.last; });
}

/// The glyphs of one word and how far each moves on.
struct ShapedWord {
    QVarLengthArray<quint32, 64> indexes;
    QVarLengthArray<QPointF, 64> advances;

    /// False for a word that cannot be done letter by letter.
    bool shape(QStringView word, const QRawFont& font) {
        if (!std::all_of(word.begin(), word.end(), isSimple)) return false;
        int count = static_cast<int>(word.size());
        indexes.resize(count);
        if (!font.glyphIndexesForChars(word.data(), count, indexes.data(), &count)) return false;
        if (std::find(indexes.begin(), indexes.end(), 0u) != indexes.end()) return false;
        advances.resize(count);
        return font.advancesForGlyphIndexes(indexes.data(), advances.data(), count, QRawFont::KernedAdvances);
    }
};

}  // namespace

FontFace::FontFace(const TextFont& font) : font_(font.toQFont()), raw_(QRawFont::fromFont(font_)) {}

bool FontFace::place(QStringView word, QPointF origin, PlacedGlyphs& glyphs) const {
    ShapedWord shaped;
    if (!shaped.shape(word, raw_)) return false;
    glyphs.indexes.insert(glyphs.indexes.end(), shaped.indexes.begin(), shaped.indexes.end());
    for (const QPointF& advance : shaped.advances) {
        glyphs.positions.push_back(origin);
        origin.rx() += advance.x();
    }
    return true;
}

qreal FontFace::width(QStringView word) const {
    ShapedWord shaped;
    if (!shaped.shape(word, raw_)) return QFontMetricsF(font_).horizontalAdvance(word.toString());
    qreal width = 0;
    for (const QPointF& advance : shaped.advances) width += advance.x();
    return width;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
