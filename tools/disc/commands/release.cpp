#include <sys/stat.h>

#include <QCommandLineParser>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <filesystem>
#include <map>

#include "build.h"
#include "commands.h"
#include "progressline.h"
#include "tellproblems.h"

namespace sarne::disc {
namespace {

const QString kList = QStringLiteral("SOUBORY.txt");
constexpr int kTimeout = 600'000;

QByteArray digestOf(const QString& name) {
    QFile file(name);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) return {};
    return hash.result().toHex();
}

/// As sha256sum reads it: the digest, two blanks, the name.
QByteArray listOf(const QDir& folder, QStringList files) {
    files.sort();
    QByteArray list;
    for (const QString& file : files) list += digestOf(folder.filePath(file)) + "  " + file.toUtf8() + '\n';
    return list;
}

QStringList filesIn(const QDir& folder) {
    QStringList files;
    for (QDirIterator walk(folder.path(), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();)
        files << folder.relativeFilePath(walk.next());
    files.removeOne(kList);
    return files;
}

/// Copies what is below \a from; a file that has two names there has them here, too.
bool copyTree(const QString& from, const QString& to) {
    namespace fs = std::filesystem;
    std::error_code failed;
    fs::create_directories(to.toStdString(), failed);
    std::map<ino_t, fs::path> copied;
    for (const fs::directory_entry& one : fs::recursive_directory_iterator(from.toStdString(), failed)) {
        const fs::path target = to.toStdString() / fs::relative(one.path(), from.toStdString());
        struct stat file {};
        if (stat(one.path().c_str(), &file) != 0) return false;
        if (const auto [first, isNew] = copied.emplace(file.st_ino, target); one.is_directory())
            fs::create_directories(target, failed);
        else if (isNew)
            fs::copy_file(one.path(), target, fs::copy_options::overwrite_existing, failed);
        else
            fs::create_hard_link(first->second, target, failed);
        if (failed) return false;
    }
    return !failed;
}

/// Where the program, wherever the folder is put, finds its disc: beside its own folder.
bool writeSettings(const QString& program) {
    const QString folder = program + QStringLiteral("/nastaveni/App Paths");
    QDir().mkpath(folder);
    QFile settings(folder + QStringLiteral("/Dunvik.exe.conf"));
    return settings.open(QIODevice::WriteOnly) && settings.write("[General]\nCDPath=..\n") > 0;
}

/// The disc's files with the program's beside them, and the list of all.
bool fillFolder(const Project& project, const QString& target) {
    if (!copyTree(project.out + QStringLiteral("/disc"), target) ||
        !copyTree(project.out + QStringLiteral("/program"), target + QStringLiteral("/program")))
        return false;
    const QDir beside = QFileInfo(programFile()).dir();
    for (const QString& name : {QStringLiteral("sarne"), QStringLiteral("sarne-obnov")}) {
        const QString program = target + QStringLiteral("/program/") + name;
        if (!programFile().isEmpty() && beside.exists(name) && !QFileInfo::exists(program) &&
            !QFile::copy(beside.filePath(name), program))
            return false;
    }
    if (!writeSettings(target + QStringLiteral("/program"))) return false;
    QFile list(target + u'/' + kList);
    const QByteArray text = listOf(QDir(target), filesIn(QDir(target)));
    return list.open(QIODevice::WriteOnly) && list.write(text) == text.size();
}

/// An image that every system reads: Rock Ridge and Joliet names; what has two names stands in it once.
bool writeImage(const QString& folder, const QString& image, const QString& name) {
    QFile::remove(image);
    QProcess writer;
    writer.start(QStringLiteral("xorriso"),
                 {QStringLiteral("-report_about"), QStringLiteral("WARNING"), QStringLiteral("-as"),
                  QStringLiteral("mkisofs"), QStringLiteral("-quiet"), QStringLiteral("--hardlinks"),
                  QStringLiteral("-r"), QStringLiteral("-J"), QStringLiteral("-joliet-long"),
                  QStringLiteral("-V"), name, QStringLiteral("-o"), image, folder});
    const bool isWritten = writer.waitForFinished(kTimeout) && writer.exitStatus() == QProcess::NormalExit &&
                           writer.exitCode() == 0;
    if (!isWritten) complain(QString::fromLocal8Bit(writer.readAllStandardError()).trimmed());
    return isWritten;
}

/// "Houbová kuchařka" as a volume is called: "HOUBOVA_KUCHARKA".
QString volumeName(const QString& title) {
    QString name = title.normalized(QString::NormalizationForm_D).toUpper();
    name.remove(QRegularExpression(QStringLiteral("\\p{Mn}")))
        .replace(QRegularExpression(QStringLiteral("[^A-Z0-9]+")), QStringLiteral("_"));
    return name.left(32);
}

}  // namespace

int releaseDisc(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sestaví disk k vydání. Co není hotové, je chyba; s --rozepsany jen upozornění. Ve "
                       "složce leží SOUBORY.txt "
                       "s otisky SHA-256 (ověří je sha256sum -c SOUBORY.txt)."));
    addProjectOptions(parser);
    parser.addOptions(
        {{QStringLiteral("kam"), QStringLiteral("složka, která ještě není; jinak „vydani“ u kuchařky"),
          QStringLiteral("složka")},
         {QStringLiteral("iso"), QStringLiteral("obraz disku k vypálení (potřebuje xorriso)"),
          QStringLiteral("soubor")},
         {QStringLiteral("plny"), QStringLiteral("BMP, WAV a AVI místo JPEG, Opus a H.264")},
         {QStringLiteral("rozepsany"), QStringLiteral("vydá i to, co není hotové")}});
    int code = 0;
    if (!parseLine(parser, "vydej", arguments, code)) return code;
    Project project = projectOf(parser);
    project.kind = parser.isSet(QStringLiteral("plny")) ? DiscKind::Full : DiscKind::Compact;
    project.edition = parser.isSet(QStringLiteral("rozepsany")) ? Edition::draft : Edition::release;
    if (project.kind == DiscKind::Full && !parser.isSet(QStringLiteral("out")))
        project.out += QStringLiteral("-plny");
    const QString target = QFileInfo(parser.isSet(QStringLiteral("kam"))
                                         ? parser.value(QStringLiteral("kam"))
                                         : QFileInfo(project.out).path() + QStringLiteral("/vydani"))
                               .absoluteFilePath();
    if (QDir(target).exists() && !QDir(target).isEmpty() && !QFileInfo::exists(target + u'/' + kList)) {
        complain(QStringLiteral("Složka %1 není prázdná a není to vydání.").arg(target));
        return 1;
    }
    Problems problems(project.edition);
    checkDisc(project, problems);
    ProgressLine progress;
    if (!problems.hasErrors()) buildDisc(project, {}, problems, &progress);
    progress.finish(problems.hasErrors() ? QStringLiteral("Nevydáno") : QStringLiteral("Sestaveno"));
    if (tellProblems(project.content, problems) > 0) return 1;
    QDir(target).removeRecursively();
    if (!fillFolder(project, target)) {
        complain(QStringLiteral("Do složky %1 nejde psát.").arg(target));
        return 1;
    }
    const qint64 size = sizeOf(target);
    say(QStringLiteral("Vydáno v %1: souborů %2, %3")
            .arg(target)
            .arg(filesIn(QDir(target)).size() + 1)
            .arg(sizeText(size)));
    if (size > kDiscLimit) {
        complain(QStringLiteral("Na CD se to nevejde (650 MB)."));
        return 1;
    }
    if (const QString image = parser.value(QStringLiteral("iso")); !image.isEmpty()) {
        const ReadBook read(project);
        if (!writeImage(target, QFileInfo(image).absoluteFilePath(), volumeName(read.book.facts.title))) {
            complain(QStringLiteral("Obraz %1 se nepodařil; je tu xorriso?").arg(image));
            return 1;
        }
        say(QStringLiteral("Obraz %1: %2, SHA-256 %3")
                .arg(image, sizeText(QFileInfo(image).size()), QString::fromLatin1(digestOf(image))));
    }
    return 0;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
