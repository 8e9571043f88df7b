// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/timerstore.h"

#include "db/userfile.h"

namespace sarne {
namespace {

const QString kTable = QStringLiteral("Casovace");
const QString kName = QStringLiteral("Nazev");
const QString kEnd = QStringLiteral("Konec");
constexpr qint64 kForgotten = qint64(12) * 3600 * 1000, kLongest = 2 * kForgotten;

}  // namespace

bool storeTimers(UserFile& file, const std::vector<KitchenTimer>& timers, qint64 now, qint64 today) {
    QList<QHash<QString, QVariant>> rows;
    for (const KitchenTimer& timer : timers)
        rows << QHash<QString, QVariant>{{kName, timer.name}, {kEnd, today + timer.end - now}};
    return file.replaceAll(kTable, rows);
}

void restoreTimers(UserFile& file, KitchenTimers& timers, qint64 now, qint64 today) {
    for (Recordset rows = file.forReading().OpenTable(kTable); !rows.AtEnd(); rows.MoveNext()) {
        const qint64 left = rows.field(kEnd).toLongLong() - today;
        if (left > -kForgotten && left <= kLongest) timers.resume(rows.field(kName).toString(), now + left);
    }
}

}  // namespace sarne
