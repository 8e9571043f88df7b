#pragma once

#include "workshop.h"

namespace sarne::disc {

/// Packs the program's named pictures, the frames of the main screen, the sound effects and the layouts into
/// Sarne.rcc:
///
///     :/obr/NAME.png or .jpg      pictures by name (art/rendered/prvky, art/rendered/pozadi)
///     :/pohyby/BB-FF.png or .jpg  frame FF of button BB (art/rendered/hlavni/pohyby)
///     :/zvuky/N.wav               sound effect resources (the scratch folder's zvuky/)
///     :/layout/NAME.txt           layouts (art/layout)
///
/// The file is sealed (sealFile()): the program takes no other. \a rcc is Qt's resource compiler.
void makeResources(Workshop& shop, const QString& rcc);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
