#pragma once

#include <QString>
#include <functional>

namespace sarne {

/// Letters typed shortly after one another, which together begin the name that is looked for.
class LetterSearch {
  public:
    /// The letters so far with \a letter, typed at \a now (milliseconds). After a pause they begin anew.
    QString add(QChar letter, qint64 now) {
        constexpr qint64 kPause = 1000;
        if (now - last_ > kPause) typed_.clear();
        last_ = now;
        return typed_ += letter;
    }
    /// Only the last letter counts: what was typed before it begins no name.
    QString restart() { return typed_ = typed_.right(1); }
    void clear() { typed_.clear(); }

  private:
    QString typed_;
    qint64 last_ = 0;
};

/// The index of the next of \a count names behind \a current, round the end, that begins with \a letters; -1
/// when there is none. Case is ignored, and so are the accents of the names where the typed letter has none.
/// With more than one letter the search starts at \a current itself.
int findByLetters(int count, const std::function<QString(int)>& nameAt, int current, const QString& letters);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
