#pragma once

#include <QList>
#include <QString>
#include <utility>

namespace sarne {

/// What became of a book whose program was killed again and again.
struct KillCounts {
    int kills = 0;
    int saves = 0;   ///< that were acknowledged before a kill
    int faults = 0;  ///< kills after which the book did not open, or words were lost or torn
};

/// Kills processes that store notes, store settings, and make or renew the user's own copy of \a book, \a
/// count times each, and looks at what is left.
QList<std::pair<const char*, KillCounts>> killEverywhere(const QString& book, int count, unsigned seed);

}  // namespace sarne
