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

}  // namespace sarne
