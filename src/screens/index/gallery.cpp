#include "screens/index/gallery.h"

#include <cstdlib>

#include "core/value.h"
#include "db/queries.h"

namespace sarne {
namespace {

constexpr int kWhole = 1000;  // thousandths

int number(const Recordset& row, const char* field) {
    return row.field(QLatin1String(field)).toInt();
}

QString text(const Recordset& row, const char* field) {
    return row.field(QLatin1String(field)).toString();
}

std::vector<GalleryArea> readAreas(Database& db, int picture) {
    std::vector<GalleryArea> areas;
    Recordset rows = queries::galleryAreas(db, picture);
    for (; !rows.AtEnd(); rows.MoveNext()) {
        const QRect place(number(rows, "X"), number(rows, "Y"), number(rows, "Sirka"), number(rows, "Vyska"));
        const QRect inside = place & QRect(0, 0, kWhole, kWhole);
        if (inside.isEmpty()) continue;
        areas.push_back(
            {inside, text(rows, "Nazev"), text(rows, "Text"), GalleryTarget::of(text(rows, "Odkaz"))});
    }
    return areas;
}

}  // namespace

GalleryTarget GalleryTarget::of(const QString& text) {
    const QString mark = text.trimmed();
    if (mark == u"#") return {Kind::Beep, 0};
    const auto id = toRecordId(QStringView(mark).mid(1));
    if (!id || *id < 1) return {};
    if (mark[0] == u'*') return {Kind::Keyword, *id};
    if (mark[0] == u'@') return {Kind::Video, *id};
    if (mark[0] == u'>') return {Kind::Picture, *id};
    return {};
}

std::vector<GalleryPicture> readGallery(Database& db, int topic) {
    std::vector<GalleryPicture> pictures;
    Recordset rows = queries::galleryPictures(db, topic);
    for (; !rows.AtEnd(); rows.MoveNext()) {
        const int id = number(rows, "ID");
        pictures.push_back({id, text(rows, "Nazev"), text(rows, "Text"), readAreas(db, id)});
    }
    return pictures;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
