#pragma once

#include <QList>

#include "cookbook.h"
#include "linkbook.h"

namespace sarne::disc {

/// What a keyword's screen shows beside its text.
struct KeywordSample {
    int keyword = 0;
    /// A path below the disc's root, as the program asks for it; empty when there is no picture.
    QString picture;
    /// What the picture shows, when the keyword's name does not say it.
    QString caption;
    /// The number of the film that its text leads to, 0 when there is none.
    int film = 0;
    /// The recipes that use what the keyword explains: in a link phrase, as an ingredient, as an auxiliary
    /// recipe.
    QList<int> recipes;
};

/// Reads obrazky.txt: which picture stands beside which keyword. A line names a dish ("jídlo 12") or one of
/// the films' things ("kapr-filet-maso").
void readKeywordPictures(const ContentFolder& folder, Cookbook& book, Problems& problems);

/// All keywords, auxiliary recipes among them, that have anything to show. Reports pictures of no keyword and
/// of dishes that have nothing to do with theirs.
QList<KeywordSample> keywordSamples(const Cookbook& book, const LinkBook& links, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
