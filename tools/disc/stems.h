#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "core/czech.h"
#include "textfile.h"

namespace sarne::disc {

/// What the words of a text begin with when they speak of \a name, whatever their case: "česn" for "česnek".
/// One for each word of the name.
QStringList stemsOf(const QString& name);

/// The words of \a text, folded, with a blank in front of each and behind the last.
QString wordsOf(const QString& text);

/// Whether one of \a words, as wordsOf() gives them, begins with \a stem; a stem "=nuz" means the whole word.
bool hasStem(const QString& words, const QString& stem);

/// A line of tvary.txt: things, and by which words a text speaks of them.
struct StemEntry {
    Place place;
    QStringList names;
    QStringList stems;
};

/// By which words a text speaks of an ingredient or a tool that it does not call by its name: tvary.txt,
/// which may be missing. A line is "name, name: stem, stem".
struct Stems {
    QList<StemEntry> ingredients;
    QList<StemEntry> tools;
};
Stems readStems(const ContentFolder& folder, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
