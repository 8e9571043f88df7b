#pragma once

#include <vector>

namespace sarne {

/// Which entries of a list are marked, and which one is current, without a window: what a click or an arrow
/// key with Shift or Ctrl does. Entries are counted from 0; -1 is none.
class ListSelection {
  public:
    enum class Mode { One, Several };
    /// How an entry is reached: alone, up to it from where marking began, or besides what is marked.
    enum class Reach { Only, Range, AddRange, Toggle, MoveOnly };

    void setMode(Mode mode) { mode_ = mode; }
    Mode mode() const { return mode_; }

    /// Grows or shrinks to \a count entries; new ones are not marked.
    void resize(int count);
    /// An entry was put in or taken out at \a index; marks and the current one keep to their entries.
    void insert(int index);
    void remove(int index);

    int count() const { return static_cast<int>(marks_.size()); }
    int current() const { return current_; }
    bool isMarked(int index) const;
    /// The marked entries, in the order of the list.
    std::vector<int> marked() const;

    /// Goes to \a index, held within the list. Nothing in an empty list.
    void go(int index, Reach reach);
    void markAll();
    /// No entry is marked or current.
    void clear();

  private:
    void markRange(int from, int to);

    Mode mode_ = Mode::One;
    std::vector<bool> marks_;
    int current_ = -1;
    int anchor_ = -1;  // where a range begins
};

}  // namespace sarne
