#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <cstdio>

#include "loadcookbook.h"
#include "makedatabase.h"
#include "photos.h"
#include "resources.h"
#include "screenpictures.h"
#include "sounds/makesounds.h"
#include "videos/makevideos.h"
#include "workshop.h"

using namespace sarne::disc;

namespace {

/// What a compact disc holds.
constexpr qint64 kDiscLimit = 650'000'000;

struct Options {
    QString content, art, out, rcc;
    /// The only film to be made, empty for a whole disc.
    QString film;
    Edition edition;
    DiscKind kind;
};

Options parse(const QCoreApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sestaví databáze, obrázky, zvuky a videa kuchařky z jejích textů a předloh."));
    parser.addHelpOption();
    const QString here = QDir::currentPath();
    const QString libexec = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath);
    parser.addOptions(
        {{QStringLiteral("content"), QStringLiteral("složka s texty"), QStringLiteral("dir"),
          here + QStringLiteral("/content")},
         {QStringLiteral("art"), QStringLiteral("složka s obrazovými předlohami"), QStringLiteral("dir"),
          here + QStringLiteral("/art")},
         {QStringLiteral("out"), QStringLiteral("složka, kam se má stavět"), QStringLiteral("dir"),
          here + QStringLiteral("/disc-out")},
         {QStringLiteral("rcc"), QStringLiteral("překladač zdrojů Qt"), QStringLiteral("file"),
          libexec + QStringLiteral("/rcc")},
         {QStringLiteral("film"), QStringLiteral("jen jeden film: číslo nebo „uvod“"),
          QStringLiteral("název")},
         {QStringLiteral("vydani"), QStringLiteral("k vydání: co není hotové, je chyba")},
         {QStringLiteral("kompaktni"),
          QStringLiteral("disk desetinové velikosti: JPEG, Opus a H.264 místo BMP, WAV a AVI")}});
    parser.process(app);
    const auto folder = [&](const char* name) {
        return QFileInfo(parser.value(QLatin1String(name))).absoluteFilePath();
    };
    return {folder("content"),
            folder("art"),
            folder("out"),
            parser.value(QStringLiteral("rcc")),
            parser.value(QStringLiteral("film")),
            parser.isSet(QStringLiteral("vydani")) ? Edition::release : Edition::draft,
            parser.isSet(QStringLiteral("kompaktni")) ? DiscKind::Compact : DiscKind::Full};
}

int report(const Problems& problems) {
    for (const QString& note : problems.notes()) std::printf("poznámka: %s\n", qUtf8Printable(note));
    for (const QString& error : problems.errors()) std::fprintf(stderr, "%s\n", qUtf8Printable(error));
    return problems.hasErrors() ? 1 : 0;
}

qint64 sizeOf(const QString& folder) {
    qint64 total = 0;
    for (QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
        walk.next();
        total += walk.fileInfo().size();
    }
    return total;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const Options options = parse(app);
    QDir().mkpath(options.out);
    Problems problems(options.edition);
    const ContentFolder folder(options.content, problems);
    const Cookbook book = loadCookbook(folder, problems);
    Ledger ledger(options.out + QStringLiteral("/.made"));
    Workshop shop{book,
                  options.content,
                  options.art,
                  options.out + QStringLiteral("/program"),
                  options.out + QStringLiteral("/disc"),
                  options.out + QStringLiteral("/scratch"),
                  ledger,
                  problems,
                  options.kind};
    if (!options.film.isEmpty()) {
        makeVideos(shop, options.film);
        ledger.save();
        return report(problems);
    }
    if (!problems.hasErrors()) makeDatabase(shop, folder);
    if (problems.hasErrors()) return report(problems);
    makePhotos(shop);
    makeScreenPictures(shop);
    makeSounds(shop);
    makeVideos(shop);
    makeResources(shop, options.rcc);
    if (!problems.hasErrors()) ledger.sweep();
    ledger.save();
    if (sizeOf(shop.disc) > kDiscLimit) problems.error({shop.disc, 0}, QStringLiteral("disk má přes 650 MB"));
    return report(problems);
}

// SPDX-License-Identifier: GPL-3.0-or-later
