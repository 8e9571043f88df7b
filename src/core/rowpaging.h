#pragma once

#include <cstddef>
#include <vector>

namespace sarne {

/// Which rows of a list are seen and which one is selected. Rows may differ in height; a row is seen when all
/// of it fits. Rows are numbered from 0.
class RowPaging {
  public:
    static constexpr int kNone = -1;

    /// Starts at the first row of a list, nothing selected. Heights are in the unit of \a viewHeight.
    void reset(std::vector<int> heights, int viewHeight);

    int count() const { return static_cast<int>(heights_.size()); }
    /// The first row seen.
    int top() const { return top_; }
    /// The row behind the last one seen. A row higher than the view counts as seen when it is the first.
    int end() const { return endFrom(top_); }
    bool canScroll() const { return maxTop_ > 0; }
    bool sees(int row) const { return row >= top_ && row < end(); }

    int selected() const { return selected_; }
    int height(int row) const { return heights_[static_cast<std::size_t>(row)]; }

    // Each returns whether anything changed.

    /// Moves the first row seen; the list never ends above the view's lower edge where it could fill it.
    bool scrollBy(int rows);
    /// Selects the row nearest to \a row and brings it into sight. Nothing in an empty list.
    bool select(int row);
    /// Moves the selection; without one it begins at the first row seen.
    bool moveBy(int rows);
    /// Moves the selection by what is seen.
    bool movePage(int pages) { return moveBy(pages * (end() - top_)); }
    /// Brings \a row to the top of the view, as far as the list reaches, and selects it.
    bool jumpTo(int row);

  private:
    int endFrom(int row) const;
    void show(int row);

    std::vector<int> heights_;
    int viewHeight_ = 0;
    int maxTop_ = 0;
    int top_ = 0;
    int selected_ = kNone;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
