#pragma once

#include <QStringView>

#include "forms/bassarne.h"

namespace sarne {

/// The picture that goes on around the ground \a name; empty where there is none.
Picture widePicture(const basSarne& sarne, QStringView name);

/// Begins with the kitchen for the display that \a sarne is shown on, on another thread: it is the first
/// picture, and reading it takes longer than anything else at the start. Once the stage has its
/// size, shown or not.
void beginKitchen(basSarne& sarne);

/// Reads the grounds of all screens.
void readRooms(basSarne& sarne);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
