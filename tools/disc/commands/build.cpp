#include "build.h"

#include <sys/stat.h>

#include <QDirIterator>
#include <QTemporaryDir>
#include <functional>
#include <set>
#include <utility>

#include "../drawnart.h"
#include "../loadcookbook.h"
#include "../makedatabase.h"
#include "../photos.h"
#include "../resources.h"
#include "../screenpictures.h"
#include "../sounds/makesounds.h"
#include "../videos/makevideos.h"
#include "../writedatabase.h"
#include "core/gridtable.h"

namespace sarne::disc {
namespace {

struct Stage {
    QString name;
    std::function<void()> make;
};

Workshop workshop(const Project& project, const Cookbook& book, Ledger& ledger, Problems& problems) {
    const QDir out(project.out);
    Workshop shop{book,
                  project.content,
                  project.art,
                  out.filePath(QStringLiteral("program")),
                  out.filePath(QStringLiteral("disc")),
                  out.filePath(QStringLiteral("scratch")),
                  ledger,
                  problems,
                  project.kind,
                  project.base};
    shop.isDrawn = !shop.usesBase() && !QFileInfo::exists(shop.art + QStringLiteral("/rendered/hlavni"));
    return shop;
}

/// Reports the places of imported recipes where a person has yet to look.
void checkMarks(const QString& content, const ContentFolder& folder, Problems& problems) {
    for (const QString& name : folder.files(QStringLiteral("recepty"))) {
        QFile file(content + u'/' + name);
        if (!file.open(QIODevice::ReadOnly)) continue;
        int number = 0;
        for (const QByteArray& line : file.readAll().split('\n')) {
            ++number;
            if (line.startsWith("; ???"))
                problems.finding({name, number}, QStringLiteral("tady se má podívat člověk: %1")
                                                     .arg(QString::fromUtf8(line.mid(5)).trimmed()));
        }
    }
}

}  // namespace

qint64 sizeOf(const QString& folder) {
    qint64 total = 0;
    std::set<std::pair<quint64, quint64>> counted;
    for (QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
        struct stat file {};
        if (stat(QFile::encodeName(walk.next()).constData(), &file) != 0) continue;
        if (counted.emplace(file.st_dev, file.st_ino).second) total += file.st_size;
    }
    return total;
}

void buildDisc(const Project& project, const QString& only, Problems& problems, Progress* progress) {
    QDir().mkpath(project.out);
    const ContentFolder folder(project.content, problems);
    const Cookbook book = loadCookbook(folder, problems);
    Ledger ledger(project.out + QStringLiteral("/.made"));
    Workshop shop = workshop(project, book, ledger, problems);
    shop.progress = progress;
    shop.stage = QStringLiteral("kresby");
    drawArtIfNeeded(shop);
    QList<Stage> stages{{QStringLiteral("recepty"), [&] { makeDatabase(shop, folder); }},
                        {QStringLiteral("fotografie"), [&] { makePhotos(shop); }},
                        {QStringLiteral("obrazovky"), [&] { makeScreenPictures(shop); }},
                        {QStringLiteral("zvuky"), [&] { makeSounds(shop); }},
                        {QStringLiteral("filmy"), [&] { makeVideos(shop); }},
                        {QStringLiteral("tlačítka"), [&] { makeResources(shop, project.rcc); }}};
    if (!only.isEmpty()) stages = {{QStringLiteral("film"), [&] { makeVideos(shop, only); }}};
    for (const Stage& stage : stages) {
        if (problems.hasErrors()) break;
        shop.stage = stage.name;
        stage.make();
    }
    if (const QString beyond = beyondGrid(book); !beyond.isEmpty()) problems.note(beyond);
    if (only.isEmpty() && !problems.hasErrors()) ledger.sweep();
    ledger.save();
    if (sizeOf(shop.disc) > kDiscLimit) problems.error({shop.disc, 0}, QStringLiteral("disk má přes 650 MB"));
}

QuickBuild::QuickBuild(const Project& project, Problems& problems)
    : problems_(problems),
      folder_(project.content, problems),
      book_(loadCookbook(folder_, problems)),
      ledger_(project.out + QStringLiteral("/.made")),
      shop_(workshop(project, book_, ledger_, problems)) {}

void QuickBuild::makeTexts() {
    const QString file = shop_.program + QStringLiteral("/Sarne.drc");
    // The ledger is not told: what has not been proofread is made again when the disc is built.
    if (!problems_.hasErrors()) writeRecipeDatabase(book_, file, problems_, databaseOrigin(folder_));
}

bool QuickBuild::makePictures() {
    struct Count final : Progress {
        void made(const QString&, qsizetype, qsizetype, const QString&) override { ++files; }
        int files = 0;
    } count;
    if (problems_.hasErrors()) return false;
    shop_.progress = &count;
    drawArtIfNeeded(shop_);
    makePhotos(shop_);
    shop_.progress = nullptr;
    ledger_.save();
    return count.files > 0;
}

void QuickBuild::proofread() {
    disc::proofread(folder_, book_, problems_);
}

void checkDisc(const Project& project, Problems& problems) {
    const ContentFolder folder(project.content, problems);
    const Cookbook book = loadCookbook(folder, problems);
    proofread(folder, book, problems);
    const QTemporaryDir scratch;
    writeRecipeDatabase(book, scratch.filePath(QStringLiteral("Sarne.drc")), problems);
    Ledger ledger(scratch.filePath(QStringLiteral("made")));
    Workshop shop = workshop(project, book, ledger, problems);
    checkMarks(project.content, folder, problems);
    checkPhotos(shop);
    checkSounds(shop);
    checkVideos(shop);
}

QString beyondGrid(const Cookbook& book) {
    QStringList beyond;
    for (const int id : book.recipes.keys())
        if (id > kGridCells) beyond << QString::number(id);
    if (beyond.isEmpty()) return {};
    const QString told =
        beyond.size() == 1
            ? QStringLiteral(
                  "mřížka fotografií má padesát míst; recept %1 v ní není, vedou k němu nabídky a hledání")
            : QStringLiteral(
                  "mřížka fotografií má padesát míst; recepty %1 v ní nejsou, vedou k nim nabídky a "
                  "hledání");
    return told.arg(beyond.join(QStringLiteral(", ")));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
