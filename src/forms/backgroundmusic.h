#pragma once

#include <QString>

namespace sarne {

class basSarne;

/// The native path of a media file given relative to the media root, for a player to open: a missing one is
/// named all the same, so that the player says that it was not found.
QString fileForPlayer(const basSarne& sarne, const QString& relative);

/// The background track's file, as a native path, whether it is there or not.
QString musicTrack(const basSarne& sarne, bool wineSounds);

/// Makes the background music follow its switches, after a change of them: stops it when it is off; starts
/// the track \a wineSounds tells when another one is open or none; otherwise lets it play on. A track that
/// cannot be opened is told to the user in the player's words, at once or when the player finds out.
void applyMusicSwitches(basSarne& sarne, bool wineSounds);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
