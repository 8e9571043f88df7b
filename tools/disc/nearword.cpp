#include "nearword.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "stems.h"

namespace sarne::disc {
namespace {

/// How many letters have to be put in, taken out or changed.
qsizetype distance(const QString& a, const QString& b) {
    std::vector<qsizetype> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        qsizetype corner = std::exchange(row[0], i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            qsizetype& cell = row[static_cast<std::size_t>(j)];
            const qsizetype changed = corner + (a[i - 1] == b[j - 1] ? 0 : 1);
            corner = cell;
            cell = std::min({changed, cell + 1, row[static_cast<std::size_t>(j) - 1] + 1});
        }
    }
    return row.back();
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
