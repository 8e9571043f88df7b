#pragma once

#include <QDirIterator>
#include <QTemporaryDir>

#include "disc/loadcookbook.h"
#include "disc/writedatabase.h"
#include "support/files.h"

namespace sarne::disc {

/// A copy of the small faultless cookbook beside the tests, to be spoiled.
class SmallCookbook {
  public:
    SmallCookbook() {
        const QDir source(QStringLiteral(SARNE_SMALL_COOKBOOK));
        for (QDirIterator walk(source.path(), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
            const QString file = walk.next();
            if (!test::write(path(source.relativeFilePath(file)), test::bytesOf(file)))
                qFatal("the cookbook is not copied");
        }
    }

    QString path(const QString& file = {}) const { return folder_.filePath(file); }

    /// Replaces \a from by \a to once; false when the file does not have it.
    bool replace(const QString& file, const QString& from, const QString& to) {
        QString text = QString::fromUtf8(test::bytesOf(path(file)));
        const qsizetype at = text.indexOf(from);
        return at >= 0 && test::write(path(file), text.replace(at, from.size(), to).toUtf8());
    }

    /// Everything that the builder has to say about it, errors and what a release would refuse.
    QStringList complaints() const {
        Problems problems;
        const ContentFolder folder(path(), problems);
        const Cookbook book = loadCookbook(folder, problems);
        proofread(folder, book, problems);
        writeRecipeDatabase(book, path(QStringLiteral("Sarne.drc")), problems);
        return problems.errors() + problems.notes();
    }

  private:
    QTemporaryDir folder_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
