#include "richtext/surface.h"

namespace sarne {
namespace {

/// Older editors name a face together with the letters it was cut for: "Arial CE" is today's "Arial".
QString familyName(const QString& name) {
    for (const QLatin1String region : {QLatin1String(" CE"), QLatin1String(" Cyr"), QLatin1String(" Greek"),
                                       QLatin1String(" Tur"), QLatin1String(" Baltic")}) {
        if (name.endsWith(region, Qt::CaseInsensitive)) return name.chopped(region.size());
    }
    return name;
}

}  // namespace

QFont TextFont::toQFont() const {
    constexpr double kTwipsPerPoint = 20;
    QFont font(familyName(name));
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

// SPDX-License-Identifier: GPL-3.0-or-later
