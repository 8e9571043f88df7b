#pragma once

#include <optional>
#include <vector>

#include "forms/readabletext.h"
#include "richtext/rtflayout.h"
#include "richtext/rtfpainter.h"

namespace sarne {

/// The rich texts on one drawing surface, one below the other, and which of their link phrases the user is
/// at. Knows no widget. Phrases are numbered through all the texts; lengths are twips of the surface.
class RichPieces {
  public:
    void clear();
    /// Adds a text and returns its number.
    int add(RtfLayout layout);
    const RtfLayout& layout(int text) const { return pieces_[size_t(text)].layout; }

    int linkCount() const { return linkCount_; }
    /// The number of the phrase at \a point.
    std::optional<int> linkAt(QPoint point) const;
    std::optional<LinkKey> key(std::optional<int> link) const;
    /// The words of a phrase; empty when there is no such phrase.
    QString linkText(std::optional<int> link) const;
    /// Where a phrase stands, from the top of its first line to the bottom of its last.
    QRect linkRect(int link) const;

    /// Takes note of the phrase that is pointed at; true when it is another one than before.
    bool setHovered(std::optional<int> link);
    std::optional<int> hovered() const { return hovered_; }
    /// Moves on to the next phrase; without one begins at the first or the last. False, with no phrase
    /// focused, behind the last.
    bool focusNext(int direction);
    /// Focuses a phrase, or none.
    void focus(std::optional<int> link) { focused_ = link; }
    std::optional<int> focused() const { return focused_; }

    /// Adds the texts' lines to \a text.
    void addTo(ReadableText& text) const;
    /// The texts, each line a line of the result.
    QString text() const;
    /// The texts, each paragraph a line of the result.
    QString paragraphs() const;
    /// Paints one text, \a strong: in darkened colours.
    void paint(QPainter& painter, const QRect& visible, int text, bool strong = false) const;

  private:
    struct Piece {
        RtfLayout layout;
        int firstLink;
    };
    static QString wordsOf(const RtfLayout& layout, const TextLine& line);
    /// The text that a phrase stands in; null when there is none.
    const Piece* piece(std::optional<int> link) const;

    std::vector<Piece> pieces_;
    std::optional<int> hovered_, focused_;
    int linkCount_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
