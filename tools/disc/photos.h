#pragma once

#include <QRect>

#include "workshop.h"

namespace sarne::disc {

/// Makes the photos of the recipes in their four sizes, the composites of the photo grid, the wine picture,
/// and the gallery's pictures.
void makePhotos(Workshop& shop);

/// Makes the picture database: the grounds of six screens.
void makeScreenPictures(Workshop& shop);

/// Where the grid shows the photo of recipe \a id, in twips of a 12000 x 9000 screen: seven in a row.
QRect gridCell(int id);

}  // namespace sarne::disc
