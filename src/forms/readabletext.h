#pragma once

#include <QRect>
#include <QString>
#include <optional>
#include <vector>

namespace sarne {

/// A text as it stands on a surface, line by line, for those who go through it by caret instead of seeing it.
/// Knows no widget. Offsets are characters of text(); places are twips of the surface.
class ReadableText {
  public:
    struct Line {
        qsizetype start = 0, length = 0;
        QRect place;
        bool isHeading = false;
    };
    enum class Step { Character, Word, Line };

    /// Adds a line below the others; one at the same height as the last goes on with it.
    void addLine(const QString& words, const QRect& place, bool isHeading = false);

    /// All lines, parted by "\n".
    const QString& text() const { return text_; }
    const std::vector<Line>& lines() const { return lines_; }
    /// The index of the line that \a offset is in; nothing where there is no line.
    std::optional<int> lineAt(qsizetype offset) const;
    /// Where the character at \a offset stands, all characters of a line taken as equally wide.
    QRect placeOf(qsizetype offset) const;
    /// The character nearest to \a point; -1 where there is no text.
    qsizetype offsetAt(QPoint point) const;
    /// Where the caret comes from \a offset by a step forwards (1) or back (-1); \a offset itself at the
    /// ends. A step of a line goes to the line's beginning.
    qsizetype moved(qsizetype offset, Step step, int direction) const;

  private:
    QString text_;
    std::vector<Line> lines_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
