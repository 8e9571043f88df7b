#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QDirIterator>
#include <QFileSystemWatcher>
#include <QProcess>
#include <QSaveFile>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "../ownfiles.h"
#include "build.h"
#include "commands.h"
#include "progressline.h"
#include "tellproblems.h"

namespace sarne::disc {
namespace {

/// Editors write in several steps; what comes within this belongs together.
constexpr int kTogether = 60;

/// Files by their paths, with size and time: what changed between two looks.
using Snapshot = QHash<QString, std::pair<qint64, qint64>>;

Snapshot lookAt(const QString& folder) {
    Snapshot seen;
    for (QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
        const QString file = walk.next();
        const QFileInfo info = walk.fileInfo();
        const bool isContent = file.endsWith(QLatin1String(".txt")) || isOwnFile(file);
        if (isContent) seen.insert(file, {info.size(), info.lastModified().toMSecsSinceEpoch()});
    }
    return seen;
}

QStringList changes(const Snapshot& before, const Snapshot& now) {
    QStringList changed;
    for (auto file = now.cbegin(); file != now.cend(); ++file)
        if (before.value(file.key()) != *file) changed << file.key();
    for (auto file = before.cbegin(); file != before.cend(); ++file)
        if (!now.contains(file.key())) changed << file.key();
    return changed;
}

bool isOfRecipe(const QString& file) {
    return QFileInfo(file).dir().dirName() == u"recepty";
}

/// The recipe whose file, photo or recording is among \a files; 0 when it is none.
int recipeOf(const QStringList& files) {
    for (const QString& file : files)
        if (isOfRecipe(file))
            return QFileInfo(file).fileName().section(u'-', 0, 0).section(u'.', 0, 0).toInt();
    return 0;
}

/// Where the program shows what a line of a recipe's file says, by the place of its section: photo, method,
/// introduction, auxiliary recipes, wine, ingredients, tools.
constexpr std::pair<const char*, int> kSections[] = {
    {"== Postup", 1},   {"== Úvod", 2},    {"== Jak podávat", 2}, {"== Poznámka", 2}, {"== Víno", 4},
    {"== Suroviny", 5}, {"porce:", 1},     {"příprava:", 1},      {"vaření:", 1},     {"minut:", 1},
    {"předem:", 1},     {"obtížnost:", 1}, {"kosti:", 2},         {"mrazit:", 2},     {"vydrží:", 2},
    {"sezona:", 2},     {"odkazy:", 3},    {"vína:", 4},          {"pomůcky:", 6}};

int sectionOfLine(const QString& line) {
    for (const auto& [begin, section] : kSections)
        if (line.startsWith(QString::fromUtf8(begin))) return section;
    return 0;
}

bool write(const QString& name, const QString& text) {
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
}

/// The program stands beside its recipes; a second name of its file is enough.
bool putProgram(const QString& from, const QString& to) {
    if (QFileInfo(to) == QFileInfo(from)) return true;
    QFile::remove(to);
    std::error_code failed;
    std::filesystem::create_hard_link(from.toStdString(), to.toStdString(), failed);
    return !failed || QFile::copy(from, to);
}

QString textIn(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Watches the texts, writes the book anew and lets the running program show it.
class Showing {
  public:
    explicit Showing(const Project& project)
        : project_(project),
          mark_(project.out + QStringLiteral("/ukazka/znacka")),
          seen_(lookAt(project.content)) {
        for (const QString& file : seen_.keys()) changedSection(file);
        together_.setSingleShot(true);
        together_.setInterval(kTogether);
        QObject::connect(&together_, &QTimer::timeout, &together_, [this] { renew(); });
        QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &together_,
                         [this] { together_.start(); });
        QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &together_,
                         [this] { together_.start(); });
        watch();
    }

    /// Starts the program; it ends this one when it is closed. False when it cannot be started.
    bool start(const QString& program) {
        QDir().mkpath(QFileInfo(mark_).path());
        QFile::remove(mark_);
        const QString settings = project_.out + QStringLiteral("/ukazka/nastaveni");
        const QString own = project_.out + QStringLiteral("/program/sarne");
        if (!putProgram(program, own) ||
            !write(settings,
                   QStringLiteral("[General]\nCDPath=\"%1/disc\"\nOkno=1\nKitchenShown=1\nRozepsano=\"%2\"\n"
                                  "[Config/0001/Display/Settings]\nResolution=800,600\n")
                       .arg(project_.out, mark_)))
            return false;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QByteArray display = QCoreApplication::instance()->property(kUserDisplay).toByteArray();
        display.isEmpty()
            ? environment.remove(QStringLiteral("QT_QPA_PLATFORM"))
            : environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromLocal8Bit(display));
        environment.insert(QStringLiteral("VELISA_SARN_NASTAVENI"), settings);
        // Notes and lists of a trial are not the author's own.
        environment.insert(QStringLiteral("XDG_DATA_HOME"), project_.out + QStringLiteral("/ukazka"));
        process_.setProcessEnvironment(environment);
        process_.setProcessChannelMode(QProcess::ForwardedChannels);
        QObject::connect(&process_, &QProcess::finished, &process_,
                         [](int code) { QCoreApplication::exit(code); });
        process_.start(own, QStringList());
        return process_.waitForStarted();
    }

  private:
    void watch() {
        QStringList wanted{project_.content};
        for (QDirIterator walk(project_.content, QDir::Dirs | QDir::NoDotAndDotDot,
                               QDirIterator::Subdirectories);
             walk.hasNext();)
            wanted << walk.next();
        wanted << seen_.keys();
        const QStringList known = watcher_.directories() + watcher_.files();
        const QSet<QString> watched(known.cbegin(), known.cend());
        wanted.removeIf([&](const QString& path) { return watched.contains(path); });
        if (!wanted.isEmpty()) watcher_.addPaths(wanted);
    }

    void renew() {
        QElapsedTimer since;
        since.start();
        const Snapshot now = lookAt(project_.content);
        const QStringList changed = changes(seen_, now);
        seen_ = now;
        watch();
        if (changed.isEmpty()) return;
        Problems problems;
        QuickBuild quick(project_, problems);
        quick.makeTexts();
        const bool isPicture = std::ranges::any_of(changed, isOwnFile);
        if (isPicture) quick.makePictures();
        const QString name = QDir(project_.content).relativeFilePath(changed.first());
        const QString place = placeOf(changed);
        if (!problems.hasErrors()) {
            show(place);
            say(QStringLiteral("%1: ukázáno za %2").arg(name, durationText(since.elapsed() + kTogether)));
            // What can wait: a plate without a photo bears the recipe's name, and a photo may be cut anew.
            if (!isPicture && quick.makePictures()) show(place);
            quick.proofread();
        }
        if (tellNew(problems))
            say(QStringLiteral("%1: s chybou se neukáže, opravte ji a uložte znovu").arg(name));
    }

    void show(const QString& place) { write(mark_, QStringLiteral("%1 %2\n").arg(++edition_).arg(place)); }

    /// The recipe that \a files are about and the section to show, as the mark names them.
    QString placeOf(const QStringList& files) {
        int section = 0;
        for (const QString& file : files) section = std::max(section, changedSection(file));
        return QStringLiteral("%1 %2").arg(recipeOf(files)).arg(section);
    }

    /// In which section the first difference of a recipe's text from what it was is seen.
    int changedSection(const QString& file) {
        if (!isOfRecipe(file) || isOwnFile(file)) return 0;
        const QStringList now = textIn(file).split(u'\n');
        const QStringList before = std::exchange(texts_[file], now);
        auto line = std::ranges::mismatch(now, before).in1;
        if (line == now.end()) return 0;
        for (int section = sectionOfLine(*line);; section = sectionOfLine(*--line))
            if (section > 0 || line == now.begin()) return section;
    }

    /// Tells of mistakes; whether there are any.
    bool tellNew(const Problems& problems) const {
        return problems.hasErrors() && tellProblems(project_.content, problems) > 0;
    }

    Project project_;
    QString mark_;
    Snapshot seen_;
    QHash<QString, QStringList> texts_;  ///< the recipes' lines as they were seen last
    int edition_ = 0;
    QFileSystemWatcher watcher_;
    QTimer together_;
    QProcess process_;
};

}  // namespace

int showDisc(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sestaví disk, otevře na něm program v okně a každou uloženou změnu ukáže u receptu, "
                       "kterého se týká."));
    addProjectOptions(parser);
    parser.addOption(
        {QStringLiteral("program"), QStringLiteral("program kuchařky"), QStringLiteral("soubor")});
    int code = 0;
    if (!parseLine(parser, "ukaz", arguments, code)) return code;
    const Project project = projectOf(parser);
    const QString program = parser.isSet(QStringLiteral("program"))
                                ? QFileInfo(parser.value(QStringLiteral("program"))).absoluteFilePath()
                                : programFile();
    if (program.isEmpty()) {
        complain(QStringLiteral("Program kuchařky tu není; řekněte, kde je: --program /cesta/sarne"));
        return 1;
    }
    Problems problems;
    ProgressLine progress;
    buildDisc(project, {}, problems, &progress);
    progress.finish(problems.hasErrors() ? QStringLiteral("Nesestaveno") : QStringLiteral("Sestaveno"));
    if (tellProblems(project.content, problems) > 0) return 1;
    Showing showing(project);
    if (!showing.start(program)) {
        complain(QStringLiteral("Program %1 nejde spustit.").arg(program));
        return 1;
    }
    say(
        QStringLiteral("Pište a ukládejte; změna se ukáže sama. Konec je v programu, nebo Ctrl+C.\n"
                       "Neobjeví-li se okno, kuchařka už běží jinde; zavřete ji."));
    return QCoreApplication::exec();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
