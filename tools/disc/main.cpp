#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <cstdio>

#include "loadcookbook.h"
#include "photos.h"
#include "resources.h"
#include "sounds/makesounds.h"
#include "videos/makevideos.h"
#include "workshop.h"
#include "writedatabase.h"

using namespace sarne::disc;

namespace {

/// Changed whenever the same content would give another database.
const QString kDatabaseVersion = QStringLiteral("2");
constexpr qint64 kDiscLimit = 400'000'000;

struct Options {
    QString content, art, out, rcc;
};

Options parse(const QCoreApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Builds the cookbook's databases, resources and media from its content and art."));
    parser.addHelpOption();
    const QString here = QDir::currentPath();
    const QString libexec = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath);
    parser.addOptions({{QStringLiteral("content"), QStringLiteral("folder of the texts"),
                        QStringLiteral("dir"), here + QStringLiteral("/content")},
                       {QStringLiteral("art"), QStringLiteral("folder of the art"), QStringLiteral("dir"),
                        here + QStringLiteral("/art")},
                       {QStringLiteral("out"), QStringLiteral("folder to build into"), QStringLiteral("dir"),
                        here + QStringLiteral("/disc-out")},
                       {QStringLiteral("rcc"), QStringLiteral("Qt's resource compiler"),
                        QStringLiteral("file"), libexec + QStringLiteral("/rcc")}});
    parser.process(app);
    const auto folder = [&](const char* name) {
        return QFileInfo(parser.value(QLatin1String(name))).absoluteFilePath();
    };
    return {folder("content"), folder("art"), folder("out"), parser.value(QStringLiteral("rcc"))};
}

int report(const Problems& problems) {
    for (const QString& note : problems.notes()) std::printf("note: %s\n", qUtf8Printable(note));
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

void makeDatabase(Workshop& shop, const ContentFolder& folder) {
    const QString file = shop.program + QStringLiteral("/Sarne.drc");
    shop.make(file, originOf(folder.allFiles(), kDatabaseVersion), [&] {
        proofread(folder, shop.book, shop.problems);
        if (!shop.problems.hasErrors()) writeRecipeDatabase(shop.book, file, shop.problems);
        return !shop.problems.hasErrors();
    });
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const Options options = parse(app);
    QDir().mkpath(options.out);
    Problems problems;
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
                  problems};
    if (!problems.hasErrors()) makeDatabase(shop, folder);
    if (problems.hasErrors()) return report(problems);
    makePhotos(shop);
    makeScreenPictures(shop);
    makeSounds(shop);
    makeVideos(shop);
    makeResources(shop, options.rcc);
    ledger.save();
    if (sizeOf(shop.disc) > kDiscLimit)
        problems.error({shop.disc, 0}, QStringLiteral("the disc is larger than 400 MB"));
    return report(problems);
}
