#pragma once

#include <cstdint>
#include <vector>

#include "forms/screens.h"

namespace sarne {

/// What can be printed and what was chosen of it, each chosen entry once. Entries are counted from 0.
class PrintChoice {
  public:
    void setAvailable(std::vector<PrintEntry> entries);

    const std::vector<PrintEntry>& available() const { return available_; }
    const std::vector<PrintEntry>& chosen() const { return chosen_; }
    bool isEmpty() const { return chosen_.empty(); }

    /// Chooses the available entries at \a indexes that are not chosen yet, in this order. False when there
    /// is none.
    bool add(const std::vector<int>& indexes);
    /// Gives up the chosen entries at \a indexes, which ascend. False when there are none.
    bool remove(const std::vector<int>& indexes);
    void clear() { chosen_.clear(); }
    /// Chooses all that is available, in its order.
    void addAll();

    /// The chosen ids, in order. An item that is no record id is left out.
    std::vector<std::int16_t> ids() const;

  private:
    bool isChosen(std::int32_t item) const;

    std::vector<PrintEntry> available_, chosen_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
