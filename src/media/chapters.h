#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace sarne {

/// A part of a film that has a name of its own.
struct Chapter {
    qint64 start = 0;  ///< milliseconds from the film's beginning
    QString title;

    friend bool operator==(const Chapter&, const Chapter&) = default;
};

/// The chapters of a film, in order, and where a step among them leads. Without chapters a film is one part
/// without a name.
class Chapters {
  public:
    /// What a film's chapter file says: lines "seconds<TAB>title" in UTF-8, from early to late. A file with
    /// any line that is none gives no chapters at all: rather none than wrong ones.
    static Chapters parse(const QByteArray& text);
    /// The same from a file; one that is missing, cannot be read or is too large gives no chapters.
    static Chapters read(const QString& file);

    const std::vector<Chapter>& all() const { return chapters_; }
    bool isEmpty() const { return chapters_.empty(); }
    /// The title at \a position (milliseconds), empty before the first chapter and without chapters.
    QString titleAt(qint64 position) const;

    /// Where the chapter before the one at \a position begins; the film's beginning when there is none.
    qint64 previous(qint64 position) const;
    /// Where the chapter behind the one at \a position begins; \a length, the film's end, when there is none.
    qint64 next(qint64 position, qint64 length) const;
    /// Where the viewer wants to begin who asks to see it once more: at the chapter that is on, or, when that
    /// has only just begun, at the one before it, which is what was seen.
    qint64 again(qint64 position) const;

  private:
    /// The index of the chapter at \a position, -1 before the first.
    int at(qint64 position) const;
    qint64 startOf(int index) const { return index < 0 ? 0 : chapters_[size_t(index)].start; }

    std::vector<Chapter> chapters_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
