#pragma once

#include <QString>

namespace sarne {

class basSarne;

/// The background track's file, as a native path; empty when it is missing.
QString musicTrack(const basSarne& app, bool wineSounds);

/// Makes the background music follow its switches, after a change of them: stops it when it is off; starts
/// the track \a wineSounds tells when another one is open or none; otherwise lets it play on. Returns the
/// player's error text when the track cannot be opened, else an empty text.
QString applyMusicSwitches(basSarne& app, bool wineSounds);

}  // namespace sarne
