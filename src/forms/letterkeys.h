#pragma once

#include <QChar>
#include <QRect>
#include <QString>
#include <vector>

namespace sarne {

/// A key of the keyboard on the screen.
struct LetterKey {
    enum class Does {
        Type,     ///< its text
        Capital,  ///< makes the next letter a capital
        Accent,   ///< gives the letter before the cursor its next accent
        TakeBack,
        Enter,
        Close,  ///< takes the keyboard away
    };
    QString text = {};     ///< that it types
    QString caption = {};  ///< empty: the text itself
    QRect place = {};      ///< twips of the keyboard
    Does does = Does::Type;
};

/// The keyboard on the screen, for those who have only a mouse or a finger at hand: its keys, where they lie,
/// and what they type. Knows no widget.
class LetterKeys {
  public:
    LetterKeys();

    const std::vector<LetterKey>& keys() const { return keys_; }
    QSize size() const;
    /// The key at \a twips; -1 where there is none.
    int keyAt(QPoint twips) const;
    /// What stands on a key: capitals while the next letter is one.
    QString caption(int key) const;
    bool isCapital() const { return capital_; }
    /// Takes note that a key is used. Returns what it types, which may be nothing.
    QString use(int key);

  private:
    void addRow(const QString& letters);
    void add(const LetterKey& key, int columns = 1);

    std::vector<LetterKey> keys_;
    QPoint next_;
    bool capital_ = false;
};

/// The Czech letter that comes after \a letter among those that differ in their accent alone ("e", "é", "ě",
/// "e"); the same letter where there is no other.
QChar withNextAccent(QChar letter);

/// Where a keyboard of \a size lies on the stage, in twips: below \a entry, or above it where the stage ends.
QRect letterKeysPlace(QSize size, const QRect& entry);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
