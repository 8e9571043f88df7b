#pragma once

#include "cookbook.h"
#include "linkbook.h"
#include "textfile.h"

namespace sarne::disc {

/// Reads the picture galleries. A picture begins with its number, its main-screen topic and its title; what
/// stands below introduces it, up to its click areas. An area begins with its rectangle in thousandths of the
/// picture, its name and where it leads; a text of its own may follow:
///
///     == 9 | 9 | Ryby našich vod
///     Ukažte na rybu.
///     -- 20 100 300 180 | Kapr | kapr
///     -- 350 100 300 180 | Jak se ryba vykuchá | video 2
///     -- 680 100 300 180 | Mořské ryby | obraz 91
///     -- 20 300 300 180 | Podběrák |
///     Do podběráku se kapr vejde celý.
void readSponsors(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// Reports areas that lie outside their picture, lead nowhere though they should, or have neither text nor
/// target.
void checkSponsors(const Cookbook& book, const LinkBook& links, Problems& problems);

/// Where an area leads, as the program reads it ("*12", "@3", ">9"); empty when nowhere.
QString sponsorTarget(const GalleryArea& area, const LinkBook& links);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
