#pragma once

#include <QChar>
#include <optional>

namespace sarne::disc {

/// The code of \a character in windows-1250, the charset of the cookbook's texts; nothing when it has none.
std::optional<unsigned char> windows1250(QChar character);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
