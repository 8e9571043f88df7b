#pragma once

#include <cstddef>
#include <vector>

namespace sarne {

/// The keywords that a reader has gone through, the current one last. Keywords may link to each other in
/// circles: each visit counts, so that going back retraces the way.
class KeywordHistory {
  public:
    struct Visit {
        int keyword = 0;
        int offset = 0;  ///< how far its text was scrolled when the reader went on
        int link = -1;   ///< the link phrase by which the reader went on; -1 for none
    };

    bool isEmpty() const { return visits_.empty(); }
    bool canGoBack() const { return visits_.size() > 1; }
    /// The current visit; there must be one.
    const Visit& current() const { return visits_.back(); }

    /// Goes on to \a keyword, remembering where the text of the current one was left.
    void visit(int keyword, int offset = 0, int link = -1) {
        if (!visits_.empty()) {
            visits_.back().offset = offset;
            visits_.back().link = link;
        }
        if (visits_.size() == kLongest) visits_.erase(visits_.begin());
        visits_.push_back({keyword});
    }
    /// Goes back to the keyword before. False, and nothing changes, at the first one.
    bool goBack() {
        if (!canGoBack()) return false;
        visits_.pop_back();
        return true;
    }

  private:
    static constexpr std::size_t kLongest = 1000;  // a reader who walks in circles loses the oldest visits

    std::vector<Visit> visits_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
