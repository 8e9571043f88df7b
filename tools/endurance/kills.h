#pragma once

#include <QString>
#include <QTextStream>

namespace sarne {

/// Kills processes that store notes, store settings, and make or renew the user's own copy of \a book, \a
/// count times each, looks at what is left, and tells it. Returns after how many kills the book did not open,
/// or words were lost or torn.
int killEverywhere(const QString& book, int count, unsigned seed, QTextStream& out);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
