#pragma once

#include <QString>

namespace sarne {

/// Writes a digest of what \a file holds behind it, so that damage to it is noticed. False when it cannot be
/// written.
bool sealFile(const QString& file);

/// Whether \a file ends in the digest that sealFile() wrote and holds what it held then.
/// The digests of earlier discs are known, too.
bool isSealed(const QString& file);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
