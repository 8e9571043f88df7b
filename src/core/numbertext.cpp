#include "core/numbertext.h"

#include <QByteArray>
#include <charconv>
#include <cmath>
#include <string>

namespace sarne {
namespace {

/// A number's shortest decimal text that reads back as the same number, without an exponent.
template <typename Real>
std::string shortestDecimal(Real value) {
    char buffer[400];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
    return {buffer, end};
}

/// Adds one unit to the last digit of \a digits, which hold a number without its point.
void addOne(std::string& digits) {
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(0, 1, '1');
}

bool roundsUp(const std::string& kept, const std::string& rest) {
    if (rest.empty() || rest[0] < '5') return false;
    const bool half = rest[0] == '5' && rest.find_first_not_of('0', 1) == std::string::npos;
    return !half || (!kept.empty() && (kept.back() - '0') % 2 == 1);
}

template <typename Real>
Real roundDecimal(Real value, int decimals) {
    if (!std::isfinite(value)) return value;
    const std::string text = shortestDecimal(std::abs(value));
    const size_t point = std::min(text.find('.'), text.size());
    const std::string fraction = point < text.size() ? text.substr(point + 1) : std::string();
    if (fraction.size() <= static_cast<size_t>(decimals)) return value;
    std::string digits = text.substr(0, point) + fraction.substr(0, static_cast<size_t>(decimals));
    if (roundsUp(digits, fraction.substr(static_cast<size_t>(decimals)))) addOne(digits);
    digits.insert(digits.size() - static_cast<size_t>(decimals), 1, '.');
    Real rounded = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), rounded);
    return std::signbit(value) ? -rounded : rounded;
}

template <typename Real>
QString decimalText(Real value, const QLocale& locale) {
    if (!std::isfinite(value)) return {};
    if (value == 0) return QStringLiteral("0");
    QString text = QString::fromLatin1(QByteArray::fromStdString(shortestDecimal(value)));
    return text.replace(u'.', locale.decimalPoint());
}

}  // namespace

double roundHalfEven(double value, int decimals) {
    return roundDecimal(value, decimals);
}

float roundHalfEven(float value, int decimals) {
    return roundDecimal(value, decimals);
}

QString numberText(double value, const QLocale& locale) {
    return decimalText(value, locale);
}

QString numberText(float value, const QLocale& locale) {
    return decimalText(value, locale);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
