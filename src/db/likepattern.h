#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sarne {

/// A LIKE pattern: `*` any run of characters, `?` one character, `#` one digit, `[a-z]` one of these,
/// `[!a-z]` one of none of these; everything else, `%` and `_` included, stands for itself. The case of
/// letters does not count, accents do. Patterns and texts are UTF-8.
class LikePattern {
  public:
    /// Nothing when a bracket is not closed.
    static std::optional<LikePattern> compile(std::string_view pattern);

    bool matches(std::string_view text) const;

  private:
    enum class Kind { Character, AnyRun, AnyOne, Digit, OneOf, NoneOf };
    struct Range {
        char32_t first, last;
    };
    struct Element {
        Kind kind;
        char32_t character = 0;
        std::vector<Range> ranges{};
        bool accepts(char32_t folded) const;
    };

    static bool compileSet(std::string_view& rest, Element& element);

    std::vector<Element> elements_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
