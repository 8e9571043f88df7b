#pragma once

#include <QString>
#include <optional>

namespace sarne {

/// \a text, a statement in the dialect that the cookbook's queries are written in, as SQLite takes it:
/// "DELETE * FROM" loses its star, everything else stays as it is. Nothing when the text is not exactly one
/// statement: an open quote or bracket, a comment, or anything but blanks behind its semicolon.
std::optional<QString> adaptStatement(const QString& text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
