#include "core/lettersearch.h"

#include <algorithm>

namespace sarne {
namespace {

QChar withoutAccent(QChar letter) {
    const QString parts = letter.decomposition();
    return parts.isEmpty() ? letter : parts.front();
}

bool sameLetter(QChar inName, QChar typed) {
    inName = inName.toLower();
    typed = typed.toLower();
    return inName == typed || withoutAccent(inName) == typed;
}

bool beginsWith(const QString& name, const QString& letters) {
    return name.size() >= letters.size() &&
           std::equal(letters.begin(), letters.end(), name.begin(),
                      [](QChar typed, QChar inName) { return sameLetter(inName, typed); });
}

}  // namespace

int findByLetters(int count, const std::function<QString(int)>& nameAt, int current, const QString& letters) {
    if (letters.isEmpty() || count == 0) return -1;
    const int from = std::max(0, letters.size() > 1 ? current : current + 1);
    for (int step = 0; step < count; ++step) {
        const int index = (from + step) % count;
        if (beginsWith(nameAt(index), letters)) return index;
    }
    return -1;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
