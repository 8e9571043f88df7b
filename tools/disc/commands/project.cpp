#include "project.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "../loadcookbook.h"

namespace sarne::disc {

Project projectIn(const QString& folder) {
    const QDir dir(QDir(folder).absolutePath());
    Project project;
    project.content =
        dir.exists(QStringLiteral("content")) ? dir.filePath(QStringLiteral("content")) : dir.path();
    project.art = dir.filePath(QStringLiteral("art"));
    project.out = dir.filePath(QStringLiteral("hotovo"));
    project.base = finishedDisc();
    project.rcc = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + QStringLiteral("/rcc");
    return project;
}

QString finishedDisc() {
    const QDir here(QCoreApplication::applicationDirPath());
    for (const char* way : {"../share/velisa-sarn", "../../disc-out"}) {
        const QString folder = QDir::cleanPath(here.filePath(QLatin1String(way)));
        if (QFileInfo::exists(folder + QStringLiteral("/program/KOp.bj"))) return folder;
    }
    return {};
}

QString programFile() {
    const QDir here(QCoreApplication::applicationDirPath());
    QStringList ways{QStringLiteral("../lib/velisa-sarn"), QStringLiteral("../../disc-out/program")};
    for (const QFileInfo& arch : QDir(here.filePath(QStringLiteral("../lib")))
                                     .entryInfoList({QStringLiteral("*-linux-gnu*")}, QDir::Dirs))
        ways << arch.filePath() + QStringLiteral("/velisa-sarn");
    for (const QString& way : ways) {
        const QString file = QDir::cleanPath(here.absoluteFilePath(way)) + QStringLiteral("/sarne");
        if (QFileInfo(file).isExecutable()) return file;
    }
    return {};
}

ReadBook::ReadBook(const Project& project)
    : problems(project.edition), folder(project.content, problems), book(loadCookbook(folder, problems)) {}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
