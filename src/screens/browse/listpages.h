#pragma once

namespace sarne {

/// Which part of a list the screen shows and which entry is selected. Entries count from 0, rows from 1.
///
/// The selection belongs to the entry: scrolling carries it along, and while it is off the page no row is
/// selected.
class ListPages {
  public:
    /// Starts over with \a count entries on pages of \a rows rows: the first page, nothing selected.
    void fill(int count, int rows);

    int count() const { return count_; }
    int rows() const { return rows_; }
    /// The entry in the first row.
    int top() const { return top_; }
    /// Whether the list is longer than a page.
    bool scrolls() const { return count_ > rows_; }
    /// The entry in \a row, or -1 when the row is empty.
    int entryAt(int row) const;
    /// The selected entry, or -1.
    int selectedEntry() const { return selected_; }
    /// The row of the selected entry, or 0 when nothing is selected on this page.
    int selectedRow() const;

    /// Moves the page by \a step entries, as far as every row stays filled.
    void scroll(int step);
    /// Half a page as a step in the direction of \a sign (1 or -1).
    int halfPage(int sign) const { return sign * rows_ / 2; }

    // The following change the selection; true when another entry is selected afterwards.

    bool selectRow(int row);
    /// Selects \a entry and scrolls no further than it takes to show it.
    bool selectEntry(int entry);
    /// To the row above (-1) or below (1), scrolling at the page's edge. Without a selected row it is the
    /// first or last one.
    bool moveRow(int step);
    /// A page up (-1) or down (1), the row kept; on the last page to its last entry. Nothing when the list
    /// fits on one page.
    bool movePage(int sign);
    bool moveToFirst();
    bool moveToLast();

  private:
    int lastTop() const;

    int count_ = 0, rows_ = 0, top_ = 0, selected_ = -1;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
