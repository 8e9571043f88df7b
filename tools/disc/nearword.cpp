#include "nearword.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

#include "stems.h"

namespace sarne::disc {
namespace {

/// How many letters have to be put in, taken out, changed, or swapped with their neighbour.
qsizetype distance(const QString& a, const QString& b) {
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    std::vector<qsizetype> before(width), last(width), row(width);  // of two letters of a back, one, this one
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const bool isSame = a[i - 1] == b[j - 1];
            row[at] = std::min({last[at - 1] + (isSame ? 0 : 1), last[at] + 1, row[at - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[at] = std::min(row[at], before[at - 2] + 1);
        }
        before.swap(last);
        last.swap(row);
    }
    return last.back();
}

}  // namespace

QString didYouMean(const QString& word, const QStringList& known) {
    const QString wanted = folded(word);
    QString nearest;
    qsizetype best = std::max<qsizetype>(1, (wanted.size() + 1) / 3) + 1;
    for (const QString& one : known) {
        const QString name = folded(one);
        if (std::abs(name.size() - wanted.size()) >= best) continue;  // at least that many letters apart
        const qsizetype apart = distance(wanted, name);
        // "Vařené" is no slip for "tažené".
        const bool isSlip = apart < 2 || name.startsWith(wanted.left(1));
        if (apart < best && isSlip) {
            best = apart;
            nearest = one;
        }
    }
    return nearest.isEmpty() ? QString() : QStringLiteral(" – mysleli jste „%1“?").arg(nearest);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
