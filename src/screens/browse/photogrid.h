#pragma once

#include <cstdint>
#include <vector>

#include "core/gridtable.h"

namespace sarne {

/// The grid of the fifty recipes' photos: which cells there are, which of them a group leaves alive, and
/// which one is chosen. A cell's number is its recipe's id.
class PhotoGrid {
  public:
    static constexpr int kNoGroup = 255;  ///< the whole grid

    int group() const { return group_; }
    bool isWhole() const { return group_ > 200; }
    bool isAlive(int cell) const;
    /// Narrows the grid to \a group, or widens it to all. The choice is given up unless its cell is still
    /// alive. False when that is what shows already.
    bool setGroup(int group);

    /// The chosen cell, or 0.
    int cell() const { return hoverCell_; }
    bool isLocked() const { return hoverLocked_; }
    /// The mouse is over \a cell: it is chosen, unless the choice is locked. True when the choice changed.
    bool hover(int cell);
    /// A click on \a cell chooses and locks it; on the locked cell it unlocks.
    void click(int cell);
    /// Chooses \a cell and locks it, whatever was locked before.
    void lock(int cell);
    void unlock() { hoverLocked_ = false; }
    void clear();
    /// Chooses the next living cell in a direction, -1, 0 or 1 each way: along a row on to the next row, and
    /// between rows the nearest one. Without a choice it is the first living cell. True when the choice
    /// changed.
    bool move(int right, int down);

    /// The photos to leaf through with the chosen cell: the group's, or all.
    std::vector<std::int16_t> photoIds() const;
    /// The index of the chosen cell among photoIds().
    int photoPosition() const;

  private:
    int besides(int step) const;
    int above(int step) const;

    int group_ = kNoGroup;
    int hoverCell_ = 0;
    bool hoverLocked_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
