#pragma once

#include <QString>

#include "pronunciation.h"
#include "sound.h"

namespace sarne::disc {

/// Whose voice: one reads the names of the recipes, another explains in the films.
enum class Speaker { names, films };

/// A sound, or what kept it from being made.
struct Spoken {
    Sound sound;
    QString fault;
};

/// The recorded Czech voices of the Festival program. They follow content/zvuky/melodie.scm and
/// content/zvuky/vyslovnost.txt.
class Voices {
  public:
    /// \a scratch is an existing folder.
    Voices(QString content, QString scratch, Problems& problems);

    /// \a text spoken, in a small room, as loud as any other text, the silence at its ends taken away. The
    /// same text gives the same samples. A sound that the voice does not have is a fault.
    Spoken speak(const QString& text, Speaker speaker) const;
    /// What somebody recorded in \a file, any format, as loud as the spoken texts.
    Spoken recording(const QString& file) const;
    /// The files on which the spoken texts depend.
    static QStringList sources(const QString& content);

  private:
    /// As the program speaks it, \a pace times slower and higher than usual.
    Spoken said(const QString& text, Speaker speaker, double pace) const;
    Spoken finished(Sound raw, const QString& filters) const;

    QString content_;
    QString scratch_;
    Pronunciation pronunciation_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
