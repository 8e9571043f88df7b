#pragma once

#include "../workshop.h"

namespace sarne::disc {

/// Makes the videos disc/VIDEO/N.AVI (.mkv on the compact disc), one for each of the cookbook's, and the
/// intro disc/VIDEO/UVOD.AVI, from the scripts content/videa/N.txt and uvod.txt. The music is to be there,
/// for the intro sounds over it.
void makeVideos(Workshop& shop);

}  // namespace sarne::disc
