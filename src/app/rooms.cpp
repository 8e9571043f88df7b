#include "app/rooms.h"

#include <QTransform>
#include <utility>

#include "db/database.h"
#include "db/queries.h"
#include "forms/stage.h"

namespace sarne {
namespace {

Picture pictureOf(const Recordset& records) {
    return Picture::fromData(records.field(QStringLiteral("obr")).toByteArray());
}

/// The pixels of what \a stage shows, as a painter of its forms counts them.
QSize shownPixels(const Stage& stage) {
    const double ratio = stage.devicePixelRatioF();
    QTransform toPixels = QTransform::fromScale(ratio, ratio);
    toPixels.translate(stage.designOrigin().x(), stage.designOrigin().y());
    toPixels.scale(stage.scale(), stage.scale());
    return toPixels.mapRect(stage.covered()).toAlignedRect().size();
}

}  // namespace

Picture widePicture(const basSarne& sarne, QStringView name) {
    return Picture::fromFile(
        sarne.paths().resolve(sarne.AppDir + QStringLiteral("siroke\\%1.jpg").arg(name)));
}

void beginKitchen(basSarne& sarne) {
    Stage& stage = sarne.stage();
    stage.fit();
    // At the design's own shape its own picture is shown, which is read later and is quickly decoded.
    if (stage.width() * 3 == stage.height() * 4 || stage.eyes().hasContrast()) return;
    sarne.Pictures.hlavni = Room({}, widePicture(sarne, u"hlavni"));
    sarne.Pictures.hlavni.prepare(shownPixels(stage), stage.covered());
}

void readRooms(basSarne& sarne) {
    Database pictures;
    pictures.Open(sarne.paths().resolve(sarne.AppDir + QStringLiteral("KOp.bj")));
    Recordset records = queries::screenPictures(pictures);
    // The records are told apart by their position: the first one, then the others from the last one
    // backwards.
    ScreenPictures& rooms = sarne.Pictures;
    if (rooms.hlavni.isNull()) rooms.hlavni = Room({}, widePicture(sarne, u"hlavni"));
    rooms.hlavni.setDesign(pictureOf(records));
    records.MoveLast();
    const std::pair<Room*, QStringView> others[] = {{&rooms.Sit, u"Sit"},
                                                    {&rooms.recept, u"recept"},
                                                    {&rooms.seznam, u"seznam"},
                                                    {&rooms.video, u"video"},
                                                    {&rooms.konec, u"konec"}};
    for (const auto& [room, name] : others) {
        *room = Room(pictureOf(records), widePicture(sarne, name));
        records.MovePrevious();
    }
    rooms.stranka = Room({}, widePicture(sarne, u"stranka"));
    if (rooms.stranka.isNull()) rooms.stranka = rooms.seznam;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
