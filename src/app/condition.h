#pragma once

#include <QStringList>
#include <vector>

#include "db/notestore.h"
#include "screens/index/pages.h"

namespace sarne {

/// What a run goes without, and what of the user's own lies apart from the book. Nobody is told by a message;
/// who opens the help of the main screen reads it there.
struct Condition {
    QString unreadableBook;  ///< the recipe database, where it is missing or cannot be read; else empty
    QString missingMedia;    ///< the folder of pictures, music and videos, where it is not; else empty
    QStringList keptAside;   ///< copies of damaged files of the user's, native paths
    std::vector<KeptNote> homeless;  ///< notes to recipes that this book does not have
};

/// What the help of the form called \a formName has to add: the main screen's tells all, that of the sound
/// settings what is missing.
std::vector<PageAddition> helpAdditions(const QString& formName, const Condition& condition);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
