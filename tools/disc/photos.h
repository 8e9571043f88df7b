#pragma once

#include "workshop.h"

namespace sarne::disc {

/// Makes the photos of the recipes in their four sizes, the composites of the photo grid, the wine picture,
/// and the gallery's pictures.
///
/// A recipe's photo is the picture beside its file ("recepty/33-candat.jpg"), or the art's of its number, if
/// that was made for a dish of this name. Without either it is a plain plate, which a release does not ship.
/// The gallery's pictures and the wine picture may be the author's own, "sponzor/1.jpg" and "vino.jpg".
void makePhotos(Workshop& shop);

/// Reports what makePhotos() would, without making anything.
void checkPhotos(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
