#pragma once

#include "disc/textfile.h"

namespace sarne::disc {

/// \a text as the lines of the content file "soubor.txt".
inline Lines linesOf(const char* text) {
    Lines lines;
    int number = 0;
    for (const QString& line : QString::fromUtf8(text).split(u'\n'))
        lines << Line{{u"soubor.txt"_s, ++number}, line};
    return lines;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
