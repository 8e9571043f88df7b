#include "db/likepattern.h"

#include <sqlite3.h>

#include <QString>

namespace sarne {
namespace {

std::string inSmallLetters(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLower().toStdString();
}

/// What stands within the brackets of a set, as GLOB writes the set.
std::string globSet(std::string_view inside) {
    if (inside.empty()) return {};
    if (inside == "!") return "?";
    if (inside[0] == '!') return "[^" + std::string(inside.substr(1)) + ']';
    const size_t hats = inside.find_first_not_of('^');  // in front they would mean "none of"
    if (hats == std::string_view::npos) return "^";
    return '[' + std::string(inside.substr(hats)) + (hats > 0 ? "^]" : "]");
}

}  // namespace

std::optional<LikePattern> LikePattern::compile(std::string_view pattern) {
    LikePattern compiled;
    const std::string small = inSmallLetters(pattern);
    for (size_t at = 0; at < small.size(); ++at) {
        if (small[at] == '[') {
            const size_t end = small.find(']', at);
            if (end == std::string::npos) return std::nullopt;
            compiled.glob_ += globSet(std::string_view(small).substr(at + 1, end - at - 1));
            at = end;
        } else if (small[at] == '#')
            compiled.glob_ += "[0-9]";
        else
            compiled.glob_ += small[at];
    }
    return compiled;
}

bool LikePattern::matches(std::string_view text) const {
    return sqlite3_strglob(glob_.c_str(), inSmallLetters(text).c_str()) == 0;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
