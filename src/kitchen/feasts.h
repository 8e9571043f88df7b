// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QStringList>

namespace sarne {

/// Easter Sunday of a year.
QDate easterSunday(int year);

/// What a month is the time for, as recipes call it: the feasts that fall into it, the nearest to its end
/// last, and the time of year. "Vánoce", "Silvestr", "zima" for a December.
QStringList occasionsOf(QDate day);
/// Of those, the feasts alone.
QStringList feastsOf(QDate day);

}  // namespace sarne
