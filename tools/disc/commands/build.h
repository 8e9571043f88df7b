#pragma once

#include "project.h"

namespace sarne::disc {

/// What a compact disc holds, in bytes.
constexpr qint64 kDiscLimit = 650'000'000;

/// Bytes of all files below \a folder; one with two names, as the largest photos have, counts once.
qint64 sizeOf(const QString& folder);

/// Builds the disc of \a project, or of it only the film \a only ("6", "uvod"): what changed since the last
/// time. What is wrong goes to \a problems and ends the build at the end of its stage. \a progress may be
/// null.
void buildDisc(const Project& project, const QString& only, Problems& problems, Progress* progress);

/// What of a disc is made anew while its author writes, in the order in which he waits for it; what sounds or
/// moves stays as it is. What is wrong goes to \a problems.
class QuickBuild {
  public:
    QuickBuild(const Project& project, Problems& problems);

    /// The recipe database, not proofread; nothing where the texts have mistakes.
    void makeTexts();
    /// The pictures; true when one of them was made anew.
    bool makePictures();
    void proofread();

  private:
    Problems& problems_;
    ContentFolder folder_;
    Cookbook book_;
    Ledger ledger_;
    Workshop shop_;
};

/// Reports everything that is wrong in the texts, and what pictures and recordings lack, at once.
void checkDisc(const Project& project, Problems& problems);

/// The numbers of the recipes that the photo grid does not show, as a note for the author; empty when it
/// shows all.
QString beyondGrid(const Cookbook& book);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
