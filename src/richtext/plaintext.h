#pragma once

#include <QString>
#include <limits>

namespace sarne {

/// The words of the rich text \a text without its looks and link markers, "\n" between paragraphs and none
/// behind the last. Reading stops soon after \a enough characters.
QString plainText(QStringView text, qsizetype enough = std::numeric_limits<qsizetype>::max());

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
