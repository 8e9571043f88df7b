#pragma once

#include <QString>

namespace sarne {

/// Breaks the long paragraphs of a text for an editor that lays out a paragraph at a time, and puts them
/// together again. A break is a line end behind a mark, an invisible character that the text has not got.
/// Knows no widget. Paragraphs end in "\n".
class LongParagraphs {
  public:
    static constexpr qsizetype kLongest = 2000;  ///< characters of a paragraph that is not broken

    /// \a text with its long paragraphs broken; from now on breaks bear a mark that is not in it.
    QString open(const QString& text);
    /// \a text, which comes into the opened one, with its long paragraphs broken.
    QString broken(QString text) const;
    /// The opened text as the editor has it, without the breaks.
    QString joined(QString text) const;
    /// Where a paragraph as long as \a paragraph is to be broken: behind a blank where there is one.
    static qsizetype breakIn(QStringView paragraph);
    /// What a break consists of.
    QString lineBreak() const { return QString(mark_) + u'\n'; }

  private:
    QChar mark_ = kFirstMark;
    static constexpr char16_t kFirstMark = 0x2063;  // the invisible separator
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
