#include <QCommandLineParser>
#include <QDirIterator>

#include "commands.h"

namespace sarne::disc {
namespace {

const QString kBeginning = QStringLiteral(":/sarne-disc/novy/");
/// How to write a book of one's own; it stands beside the texts.
const QString kGuide = QStringLiteral("NAVOD.txt");
/// What the voice that reads the names needs.
constexpr const char* kVoice[] = {"zvuky/melodie.scm", "zvuky/vyslovnost.txt"};

bool copyOut(const QString& from, const QString& to) {
    QDir().mkpath(QFileInfo(to).path());
    return QFile::copy(from, to) && QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner |
                                                                  QFile::ReadGroup | QFile::ReadOther);
}

bool copyBeginning(const QString& content) {
    bool isCopied = QFileInfo::exists(kBeginning + QStringLiteral("kniha.txt"));
    for (QDirIterator walk(kBeginning, QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
        const QString file = walk.next();
        const QString name = file.mid(kBeginning.size());
        const bool isGuide = name == kGuide;
        isCopied = copyOut(file, content + (isGuide ? QStringLiteral("/../") : QStringLiteral("/")) + name) &&
                   isCopied;
    }
    for (const char* file : kVoice)
        isCopied = copyOut(QStringLiteral(":/sarne-disc/") + QLatin1String(file),
                           content + u'/' + QLatin1String(file)) &&
                   isCopied;
    return isCopied;
}

}  // namespace

int createDisc(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Založí ve složce malou houbovou kuchařku se třemi recepty."));
    parser.addPositionalArgument(QStringLiteral("SLOŽKA"),
                                 QStringLiteral("která ještě není, nebo je prázdná"));
    int code = 0;
    if (!parseLine(parser, "novy", arguments, code)) return code;
    if (parser.positionalArguments().size() != 1) {
        complain(QStringLiteral("sarne-disc novy: napište, ve které složce: sarne-disc novy moje-kucharka"));
        return 2;
    }
    const QDir folder(parser.positionalArguments().first());
    if (folder.exists() && !folder.isEmpty()) {
        complain(QStringLiteral("Složka %1 není prázdná, nic se do ní nepsalo.").arg(folder.path()));
        return 1;
    }
    if (!copyBeginning(folder.filePath(QStringLiteral("content")))) {
        complain(QStringLiteral("Do složky %1 nejde psát.").arg(folder.path()));
        return 1;
    }
    say(QStringLiteral("Kuchařka je v %1. Jak se píše, říká NAVOD.txt; texty jsou v content/, fotografie "
                       "patří vedle receptu "
                       "(01-smazenice.jpg).\n\n"
                       "Dál:  cd %1\n"
                       "      sarne-disc zkontroluj\n"
                       "      sarne-disc sestav\n"
                       "      sarne-disc ukaz\n"
                       "      sarne-disc recept")
            .arg(folder.path()));
    return 0;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
