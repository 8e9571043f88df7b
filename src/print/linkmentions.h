#pragma once

#include <vector>

#include "print/printedpage.h"

namespace sarne {

/// Finds where the texts of a recipe name one of its linked texts, whatever its case ("s kolečkem
/// bylinkového másla" for "Bylinkové máslo"), and makes links of these places; the heading of the linked text
/// leads back to the first of them.
class LinkMentions {
  public:
    /// \a place is the name of the linked text's own place, \a title what it is called.
    void add(const QString& title, const QString& place);

    /// \a start is where a heading leads whose text is mentioned nowhere.
    void mark(std::vector<FlowLine>& lines, const QString& start) const;

  private:
    struct Linked {
        QStringList stems;
        QString place;
    };
    struct Word;

    const Linked* headedBy(const FlowLine& line) const;
    const Linked* named(const std::vector<Word>& words, size_t first, const Linked* own) const;
    QStringList markMentions(std::vector<FlowLine>& lines) const;
    static QStringList stemsOf(const QString& text);
    static bool isMention(const std::vector<Word>& words, size_t first, const QStringList& stems);
    std::vector<Word> wordsOf(std::vector<FlowLine>& lines) const;
    bool mayBeNamed(const QString& text) const;
    static void link(const std::vector<Word>& words, size_t first, size_t count, const QString& target);

    std::vector<Linked> linked_;
    QString initials_;  // of all stems
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
