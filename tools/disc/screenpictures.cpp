#include "screenpictures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "stamps.h"
#include "writedatabase.h"

namespace sarne::disc {
namespace {

const QString kMain = QStringLiteral("hlavni");
const QString kWide = QStringLiteral("-siroke.jpg");

QByteArray bytesOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The six records, in the program's order.
void makeRecords(Workshop& shop) {
    QStringList files{shop.neededPicture(QStringLiteral("rendered/hlavni/pozadi"))};
    for (const char* screen : {"konec", "video", "seznam", "recept", "sit"})
        files << shop.neededPicture(QStringLiteral("rendered/pozadi/") + QLatin1String(screen));
    const QString output = shop.program + QStringLiteral("/KOp.bj");
    shop.make(output, originOf(files, stamp::screens()), [&] {
        QList<QByteArray> pictures;
        for (const QString& file : files) pictures << bytesOf(file);
        writePictureDatabase(pictures, output, shop.problems);
        return !pictures.contains(QByteArray()) && QFileInfo::exists(output);
    });
}

void copyWideGrounds(Workshop& shop, const QString& folder) {
    const QDir art(shop.art + QStringLiteral("/rendered/") + folder);
    for (const QFileInfo& from : art.entryInfoList({u'*' + kWide}, QDir::Files)) {
        const QString screen = folder == kMain ? kMain : from.fileName().chopped(kWide.size());
        const QString to = shop.program + QStringLiteral("/siroke/%1.jpg").arg(screen);
        shop.make(to, originOf({from.filePath()}, stamp::screens()), [&] {
            QFile::remove(to);
            return QFile::copy(from.filePath(), to);
        });
    }
}

}  // namespace

void makeScreenPictures(Workshop& shop) {
    if (shop.usesBase()) {
        shop.takeFromBase(QStringLiteral("program/KOp.bj"));
        for (const QString& name : QDir(shop.base + QStringLiteral("/program/siroke")).entryList(QDir::Files))
            shop.takeFromBase(QStringLiteral("program/siroke/") + name);
        return;
    }
    makeRecords(shop);
    copyWideGrounds(shop, kMain);
    copyWideGrounds(shop, QStringLiteral("pozadi"));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
