#pragma once

#include "../workshop.h"
#include "cast.h"

namespace sarne::disc {

/// What may be seen in the films: videa/obsazeni.txt of the content over the rendered pictures of the art.
Cast readFilmCast(const ContentFolder& folder, const QString& art, Problems& problems);

/// Makes the videos disc/VIDEO/N.AVI (.mkv on the compact disc) with their chapters, N.KAP, one for each of
/// the cookbook's, and the intro disc/VIDEO/UVOD.AVI, from the scripts content/videa/N.txt and uvod.txt. The
/// music is to be there, for the intro sounds over it. A film of the author's own beside a script or in its
/// place, "videa/6.mp4", is taken instead of it. With \a only, the number of a video or "uvod", no
/// other is looked at.
void makeVideos(Workshop& shop, const QString& only = {});

/// Reads the scripts and reports what is wrong in them, without making a film.
void checkVideos(Workshop& shop);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
