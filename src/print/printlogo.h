#pragma once

#include "forms/picture.h"

namespace sarne {

class Resources;

/// The picture at the head of every printed page: "LogoTisk" of the program's pictures, or a drawn fish.
Picture printLogo(const Resources& resources);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
