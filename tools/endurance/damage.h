#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <random>

namespace sarne {

/// \a sound with a fault in it, as discs and drives make them: bytes changed, a piece of noise or zeros, cut
/// short, a piece missing or twice.
QByteArray damaged(const QByteArray& sound, std::mt19937& random);

/// Writes \a count damaged files for each kind of file of the book in \a program and \a disc, and reads each
/// as the program does. There is nothing to compare: a fault is a crash, a report of the sanitizers, or a
/// file that takes longer than \a seconds. Returns how many files took that long.
int readDamaged(const QString& program, const QString& disc, int count, unsigned seed, double seconds);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
