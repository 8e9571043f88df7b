#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <optional>

namespace sarne {

/// The number at the beginning of \a text: blanks skipped, an optional sign, digits, a point as the decimal
/// separator whatever the user's locale, an optional exponent. 0 when the text does not begin with a number
/// or with one that is too large ("1e999"); what follows the number is ignored.
double leadingNumber(QStringView text);

/// \a value as a record id. Ids travel between screens as 16-bit integers: a value that does not fit, or is
/// not a whole number, gives nothing, and is never wrapped.
std::optional<std::int16_t> toRecordId(qint64 value);

/// The whole number that \a text consists of, blanks around it aside, as a record id; nothing for anything
/// else.
std::optional<std::int16_t> toRecordId(QStringView text);

/// The number at the beginning of \a text as a record id, its fraction dropped; nothing where it does not
/// fit.
std::optional<std::int16_t> leadingRecordId(QStringView text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
