#include "richtext/rtfcursor.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace sarne {
namespace {

constexpr bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

int hexValue(char16_t c) {
    if (isDigit(c)) return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return -1;
}

bool isSilentDestination(std::uint64_t name) {
    static constexpr std::uint64_t kSilent[] = {
        controlName(u"stylesheet"), controlName(u"info"),    controlName(u"pict"),    controlName(u"object"),
        controlName(u"header"),     controlName(u"headerl"), controlName(u"headerr"), controlName(u"headerf"),
        controlName(u"footer"),     controlName(u"footerl"), controlName(u"footerr"), controlName(u"footerf"),
    };
    return std::find(std::begin(kSilent), std::end(kSilent), name) != std::end(kSilent);
}

}  // namespace

void RtfCursor::readWord(ControlWord& control) {
    const char16_t* start = at_;
    while (at_ != end_ && isLetter(*at_)) ++at_;
    control.name = controlName({start, static_cast<size_t>(at_ - start)});
}

void RtfCursor::readNumber(ControlWord& control) {
    const bool negative = !atEnd() && *at_ == u'-' && isDigit(peekAhead(1));
    if (negative) ++at_;
    constexpr qint64 kLargest = std::numeric_limits<int>::max();
    qint64 value = 0;
    const char16_t* start = at_;
    for (; at_ != end_ && isDigit(*at_); ++at_) value = qMin(kLargest, value * 10 + (*at_ - u'0'));
    control.hasNumber = at_ != start;
    control.number = static_cast<int>(negative ? -value : value);
}

/// Takes the two digits, or as many of them as there are: what follows a broken escape is text.
void RtfCursor::readHexCode(ControlWord& control) {
    const int high = hexValue(peekAhead(0));
    if (high >= 0) ++at_;
    const int low = high >= 0 ? hexValue(peekAhead(0)) : -1;
    if (low >= 0) ++at_;
    control.number = low >= 0 ? high * 16 + low : -1;
}

ControlWord RtfCursor::readControl() {
    ControlWord control;
    advance();
    if (atEnd()) return control;
    if (isLetter(*at_)) {
        readWord(control);
        readNumber(control);
        if (!atEnd() && *at_ == u' ') ++at_;
        return control;
    }
    control.symbol = *at_++;
    if (control.symbol == u'\'') readHexCode(control);
    return control;
}

void RtfCursor::skipGroup() {
    qsizetype depth = 0;
    while (!atEnd()) {
        const char16_t c = *at_;
        if (c == u'\\') {
            const ControlWord control = readControl();
            if (control.name == controlName(u"bin")) advance(qMax(0, control.number));
            continue;
        }
        ++at_;
        if (c == u'{') ++depth;
        if (c == u'}' && --depth <= 0) return;
    }
}

void RtfCursor::skipLineEnds() {
    while (!atEnd() && (*at_ == u'\r' || *at_ == u'\n')) ++at_;
}

bool RtfCursor::atSilentGroup() const {
    RtfCursor inside = *this;
    inside.advance();
    inside.skipLineEnds();
    if (inside.atEnd() || inside.peek() != u'\\') return false;
    const ControlWord control = inside.readControl();
    return control.symbol == u'*' || isSilentDestination(control.name);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
