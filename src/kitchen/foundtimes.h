#pragma once

#include <QString>
#include <vector>

namespace sarne {

/// A length of time that a text names.
struct FoundTime {
    qsizetype at = 0, length = 0;   ///< where its words stand in the text
    int shortest = 0, longest = 0;  ///< seconds; the same where no range is named

    bool operator==(const FoundTime&) const = default;
};

/// The times that \a text names, in its order: "25 minut", "10–12 min", "1 a 1/2 hodiny", "hodinu a půl",
/// "půl hodiny", "dvě minuty". A time that only says how often ("každých 10 minut") or in which part of
/// another ("poslední dvě minuty") is none to wait for.
std::vector<FoundTime> findTimes(const QString& text);

/// "25:00", "1:05:00"; 0 for what is over.
QString clockText(qint64 milliseconds);

/// "25 minut", "1 hodina 30 minut", "40 vteřin".
QString durationText(int seconds);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
