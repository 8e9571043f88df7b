#include "core/value.h"

#include <cmath>
#include <limits>

#include "core/checked.h"

namespace sarne {
namespace {

qsizetype skipDigits(QStringView text, qsizetype at) {
    while (at < text.size() && text[at] >= u'0' && text[at] <= u'9') ++at;
    return at;
}

bool isSign(QStringView text, qsizetype at) {
    return at < text.size() && (text[at] == u'+' || text[at] == u'-');
}

/// Where the number at the start of \a text ends; 0 when there is none.
qsizetype numberEnd(QStringView text) {
    const qsizetype whole = isSign(text, 0) ? 1 : 0;
    qsizetype end = skipDigits(text, whole);
    qsizetype digits = end - whole;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = skipDigits(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0) return 0;
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = isSign(text, end + 1) ? end + 2 : end + 1;
        if (const qsizetype last = skipDigits(text, exponent); last > exponent) end = last;
    }
    return end;
}

/// The number at the start of \a text, infinite when no double holds it.
double readNumber(QStringView text) {
    const QStringView trimmed = text.trimmed();
    return trimmed.first(numberEnd(trimmed)).toDouble();
}

}  // namespace

double leadingNumber(QStringView text) {
    const double number = readNumber(text);
    return std::isfinite(number) ? number : 0;
}

std::optional<std::int16_t> toRecordId(qint64 value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) return std::nullopt;
    return static_cast<std::int16_t>(value);
}

std::optional<std::int16_t> toRecordId(QStringView text) {
    bool whole = false;
    const qint64 value = text.trimmed().toLongLong(&whole);
    return whole ? toRecordId(value) : std::nullopt;
}

std::optional<std::int16_t> leadingRecordId(QStringView text) {
    const double number = std::trunc(readNumber(text));
    constexpr auto kMost = std::numeric_limits<std::int16_t>::max();
    if (!(std::abs(number) <= kMost)) return std::nullopt;
    return wholeNumber<std::int16_t>(number);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
