#pragma once

#include <QHash>
#include <QStringView>
#include <vector>

namespace sarne {

/// The widths of the words of one text, found by the word and its font. Words are kept as places in the
/// text's own buffer, which only ever grows.
class WordWidths {
  public:
    /// The width of \a word in font number \a font; asks \a measure() where it is not yet known. \a words is
    /// the buffer in which \a word stands at \a start.
    template <typename Measure>
    int width(QStringView words, qsizetype start, qsizetype length, int font, Measure measure) {
        if (used_ >= kMostWords) return measure();
        if (2 * used_ >= slots_.size()) grow();
        const size_t hash = qHash(words.mid(start, length), static_cast<size_t>(font));
        size_t at = hash & (slots_.size() - 1);
        for (; slots_[at].font >= 0; at = (at + 1) & (slots_.size() - 1)) {
            const Slot& slot = slots_[at];
            if (slot.hash == hash && slot.font == font && slot.length == length &&
                words.mid(slot.start, length) == words.mid(start, length)) {
                return slot.width;
            }
        }
        slots_[at] = {hash, start, length, font, measure()};
        ++used_;
        return slots_[at].width;
    }

  private:
    /// More different words than any text of people has: growing takes longer than measuring.
    static constexpr size_t kMostWords = 16384;

    struct Slot {
        size_t hash = 0;
        qsizetype start = 0;
        qsizetype length = 0;
        int font = -1;
        int width = 0;
    };

    void grow();

    std::vector<Slot> slots_;
    size_t used_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
