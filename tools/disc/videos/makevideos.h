#pragma once

#include "../workshop.h"

namespace sarne::disc {

/// Makes the videos disc/VIDEO/N.AVI, one for each of the cookbook's, and the intro disc/video/UVOD.AVI.
void makeVideos(Workshop& shop);

}  // namespace sarne::disc
