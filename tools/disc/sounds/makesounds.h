#pragma once

#include "../workshop.h"

namespace sarne::disc {

/// Makes everything that sounds: the effects as scratch/zvuky/N.wav (they go into the program's resources; N
/// is the resource's number: 1 and up, 101 to 121 for the main screen's buttons), the music disc/HUDBA.WAV
/// and disc/zvuky/Vina.WAV, and the spoken names disc/zvuky/čN.wav, as .opus and .ogg on the compact disc
/// (a recording beside a recipe's text, "33-candat.mp3" for "33-candat.txt", is taken instead). Their sources
/// are content/zvuky/*.txt.
///
/// An author's disc need not have all of it: without efekty.txt the base's effects are used, or the usual
/// ones; without hudba.txt or vina.txt a recording called so, or the base's music. Where no voice can read a
/// name, the name is a finding and stays silent.
void makeSounds(Workshop& shop);

/// Reports what is wrong in the sounds' sources, without making anything.
void checkSounds(Workshop& shop);

/// Of these, the effects only.
void makeEffects(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
