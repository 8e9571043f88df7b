#pragma once

#include <QString>

#include "../workshop.h"

namespace sarne::disc {

/// Where a disc that is being written lies, as folders of this machine without a slash at the end.
struct Project {
    /// The texts, and beside them the author's own pictures and sounds.
    QString content;
    /// Pictures of which the screens are made; need not be there.
    QString art;
    /// Where the disc is built.
    QString out;
    /// A finished disc that gives its screens and effects where there is no art; empty when none is found.
    QString base;
    /// Qt's compiler of resources.
    QString rcc;
    Edition edition = Edition::draft;
    DiscKind kind = DiscKind::Compact;
};

/// The disc in \a folder: its texts are in "content" or in the folder itself, it is built in "hotovo".
Project projectIn(const QString& folder);

/// A finished disc beside this program: installed with it, or built with it. Empty when there is none.
QString finishedDisc();

/// The program that shows a disc, beside this one: installed with it, or built with it. Empty when there is
/// none.
QString programFile();

/// A disc on which only its texts are looked at.
struct ReadBook {
    explicit ReadBook(const Project& project);

    Problems problems;
    ContentFolder folder;
    Cookbook book;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
