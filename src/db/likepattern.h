#pragma once

#include <optional>
#include <string>
#include <string_view>

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
    std::string glob_;  ///< in small letters, as SQLite's GLOB writes it
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
