#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

#include "../textfile.h"

namespace sarne::disc {

/// How words are written that the voice would read wrongly: "3 cm | tři centimetry". Whole words count,
/// letter case does not; "sardin… | sardyn…" stands for every word that begins so. Earlier lines go first.
class Pronunciation {
  public:
    Pronunciation() = default;
    /// A line without two cells is an error.
    Pronunciation(const Lines& lines, Problems& problems);

    /// \a text as the voice is to read it, a sentence with a full stop.
    QString spoken(QString text) const;

  private:
    struct Spelling {
        QRegularExpression written;
        QString read;
    };
    QList<Spelling> spellings_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
