#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

namespace sarne::disc {

/// What an author puts beside a text, called like it: "33-candat.jpg", "33-candat.mp3" for "33-candat.txt".
/// \a stem is the path without an ending; endings count in either letter case. Empty when there is none.
QString ownPicture(const QString& stem);
QString ownRecording(const QString& stem);
QString ownFilm(const QString& stem);

/// Whether a file of that name is one of these.
bool isOwnFile(const QString& name);

/// Why readPicture() will not read the picture, and what helps; empty when it can be expected to. Only the
/// head of the file is looked at.
QString whyUnreadable(const QString& file);

/// The picture in \a file, turned as its camera says. HEIC and AVIF, which the toolkit may not read, are read
/// by a converter where the system has one. Null when nothing reads it.
QImage readPicture(const QString& file);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
