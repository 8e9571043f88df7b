#pragma once

#include <QString>

namespace sarne {

/// What section \a index of the recipe screen is called, for its button and for those who hear it.
inline QString sectionName(int index) {
    static constexpr const char* kNames[] = {"Foto", "Recept",   "Úvod",    "Odkazy",
                                             "Víno", "Suroviny", "Pomůcky", "Vlastní poznámka"};
    return QString::fromUtf8(kNames[index]);
}

}  // namespace sarne
