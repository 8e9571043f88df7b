#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "disc/loadcookbook.h"
#include "disc/writedatabase.h"

namespace sarne::disc {

/// A copy of the small faultless cookbook beside the tests, to be spoiled.
class SmallCookbook {
  public:
    SmallCookbook() {
        const QDir source(QStringLiteral(SARNE_SMALL_COOKBOOK));
        for (QDirIterator walk(source.path(), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
            const QString file = walk.next();
            const QString target = path(source.relativeFilePath(file));
            QDir().mkpath(QFileInfo(target).path());
            QFile::copy(file, target);
        }
    }

    QString path(const QString& file = {}) const { return folder_.filePath(file); }

    /// Replaces \a from by \a to once; false when the file does not have it.
    bool replace(const QString& file, const QString& from, const QString& to) {
        QFile opened(path(file));
        if (!opened.open(QIODevice::ReadOnly)) return false;
        QString text = QString::fromUtf8(opened.readAll());
        opened.close();
        const qsizetype at = text.indexOf(from);
        if (at < 0) return false;
        text.replace(at, from.size(), to);
        return opened.open(QIODevice::WriteOnly) && opened.write(text.toUtf8()) >= 0;
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
