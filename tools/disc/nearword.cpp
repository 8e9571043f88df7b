#include "nearword.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "stems.h"

namespace sarne::disc {
namespace {

/// How many letters have to be put in, taken out, changed, or swapped with their neighbour.
qsizetype distance(const QString& a, const QString& b) {
    using Row = std::vector<qsizetype>;
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    Row before;  // two letters of a back
    Row last(width);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        Row row(width, i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const bool isSame = a[i - 1] == b[j - 1];
            row[at] = std::min({last[at - 1] + (isSame ? 0 : 1), last[at] + 1, row[at - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[at] = std::min(row[at], before[at - 2] + 1);
        }
        before = std::exchange(last, row);
    }
    return last.back();
}

}  // namespace

QString didYouMean(const QString& word, const QStringList& known) {
    const QString wanted = folded(word);
    QString nearest;
    qsizetype best = std::max<qsizetype>(1, (wanted.size() + 1) / 3) + 1;
    for (const QString& one : known) {
        const qsizetype apart = distance(wanted, folded(one));
        if (apart < best) {
            best = apart;
            nearest = one;
        }
    }
    return nearest.isEmpty() ? QString() : QStringLiteral(" – mysleli jste „%1“?").arg(nearest);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
