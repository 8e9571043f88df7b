#include "richtext/surface.h"

namespace sarne {

QFont TextFont::toQFont() const {
    constexpr double kTwipsPerPoint = 20;
    QFont font(name);
    font.setPixelSize(qMax(1, qRound(size * kTwipsPerPoint)));
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

size_t qHash(const TextFont& font, size_t seed) {
    const int style = font.bold | font.italic << 1 | font.underline << 2;
    return qHashMulti(seed, font.name, font.size, style, font.charset);
}

}  // namespace sarne
