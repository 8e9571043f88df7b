#include "db/likepattern.h"

#include <QChar>
#include <algorithm>
#include <array>

namespace sarne {
namespace {

/// Takes one character off \a text. A byte that is no UTF-8 stands for itself.
char32_t takeCharacter(std::string_view& text) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
    char32_t character = length == 1 ? lead : lead & (0x7F >> length);
    if (length > text.size()) {
        text.remove_prefix(1);
        return lead;
    }
    for (size_t i = 1; i < length; ++i) character = character << 6 | (byte(i) & 0x3F);
    text.remove_prefix(length);
    return character;
}

constexpr char32_t kTableEnd = 0x250;  // Latin letters: ASCII to Latin Extended-B

char32_t fold(char32_t character) {
    static const auto table = [] {
        std::array<char32_t, kTableEnd> folded{};
        for (char32_t c = 0; c < kTableEnd; ++c) folded[c] = QChar::toCaseFolded(c);
        return folded;
    }();
    return character < kTableEnd ? table[character] : QChar::toCaseFolded(character);
}

}  // namespace

bool LikePattern::Element::accepts(char32_t folded) const {
    const auto within = [&](const Range& range) { return range.first <= folded && folded <= range.last; };
    switch (kind) {
        case Kind::Character:
            return folded == character;
        case Kind::Digit:
            return folded >= U'0' && folded <= U'9';
        case Kind::OneOf:
            return std::ranges::any_of(ranges, within);
        case Kind::NoneOf:
            return std::ranges::none_of(ranges, within);
        case Kind::AnyOne:
        case Kind::AnyRun:
            return true;
    }
    return false;
}

bool LikePattern::compileSet(std::string_view& rest, Element& element) {
    element.kind = Kind::OneOf;
    if (!rest.empty() && rest.front() == '!') {
        element.kind = Kind::NoneOf;
        rest.remove_prefix(1);
    }
    while (!rest.empty() && rest.front() != ']') {
        Range range{fold(takeCharacter(rest)), 0};
        range.last = range.first;
        if (rest.size() >= 2 && rest[0] == '-' && rest[1] != ']') {
            rest.remove_prefix(1);
            range.last = fold(takeCharacter(rest));
        }
        element.ranges.push_back(range);
    }
    if (rest.empty()) return false;
    rest.remove_prefix(1);
    return true;
}

std::optional<LikePattern> LikePattern::compile(std::string_view pattern) {
    LikePattern compiled;
    while (!pattern.empty()) {
        Element element{Kind::Character};
        const char32_t character = takeCharacter(pattern);
        switch (character) {
            case U'*':
                element.kind = Kind::AnyRun;
                break;
            case U'?':
                element.kind = Kind::AnyOne;
                break;
            case U'#':
                element.kind = Kind::Digit;
                break;
            case U'[':
                if (!compileSet(pattern, element)) return std::nullopt;
                if (element.kind == Kind::OneOf && element.ranges.empty()) continue;
                break;
            default:
                element.character = fold(character);
        }
        compiled.elements_.push_back(std::move(element));
    }
    return compiled;
}

bool LikePattern::matches(std::string_view text) const {
    // Only the last run of any characters ever has to be lengthened: what stood before it already fits.
    size_t at = 0, retryAt = elements_.size() + 1;
    std::string_view retryText;
    while (true) {
        if (at < elements_.size() && elements_[at].kind == Kind::AnyRun) {
            if (++at == elements_.size()) return true;
            retryAt = at;
            retryText = text;
            continue;
        }
        if (text.empty()) return at == elements_.size();
        if (at < elements_.size() && elements_[at].accepts(fold(takeCharacter(text)))) {
            ++at;
            continue;
        }
        if (retryAt > elements_.size() || retryText.empty()) return false;
        takeCharacter(retryText);
        text = retryText;
        at = retryAt;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
