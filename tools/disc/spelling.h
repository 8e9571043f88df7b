#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

#include "problems.h"

namespace sarne::disc {

/// Those of \a words that hunspell's Czech dictionary does not have; nothing where it cannot be asked.
std::optional<QStringList> unknownWords(const QStringList& words);

/// Words of the content that a Czech dictionary does not know, with the place where each stands first.
class SpellCheck {
  public:
    /// \a known are the words of the cookbook's own list.
    explicit SpellCheck(const QStringList& known);

    void add(const QString& text, const Place& place);

    /// Reports every word that neither hunspell's Czech dictionary nor the own list has. Without hunspell the
    /// check cannot be made, which is an error too.
    void report(Problems& problems) const;

  private:
    QSet<QString> known_;
    QHash<QString, Place> words_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
