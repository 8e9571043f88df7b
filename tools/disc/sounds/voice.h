#pragma once

#include <QString>
#include <map>
#include <utility>

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
    /// Lets one run of the voice's program for each core speak what speak() is going to be asked for, which
    /// spares a start of that program for every text. Not while another thread speaks.
    void prepare(const QStringList& texts, Speaker speaker);
    /// What somebody recorded in \a file, any format, as loud as the spoken texts.
    Spoken recording(const QString& file) const;
    /// The files on which the spoken texts depend.
    static QStringList sources(const QString& content);

  private:
    /// As the program speaks them, \a pace times slower and higher than usual.
    QList<Spoken> said(const QStringList& texts, Speaker speaker, double pace) const;
    Spoken finished(Sound raw, const QString& filters) const;

    QString content_;
    QString scratch_;
    Pronunciation pronunciation_;
    /// What prepare() had spoken at the usual pace.
    std::map<std::pair<Speaker, QString>, Spoken> prepared_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
