#pragma once

#include <QRect>
#include <QString>
#include <vector>

namespace sarne {

class Database;

/// Where a click area leads.
struct GalleryTarget {
    enum class Kind {
        None,
        Keyword,  ///< "*12"
        Video,    ///< "@3"
        Beep,     ///< "#"
        Picture,  ///< ">9": another picture of the same gallery
    };

    Kind kind = Kind::None;
    int number = 0;

    bool operator==(const GalleryTarget&) const = default;
    /// What \a text says; None for anything else.
    static GalleryTarget of(const QString& text);
};

/// A part of a picture that can be chosen: it leads somewhere or has a text of its own.
struct GalleryArea {
    QRect place;  ///< in thousandths of the picture's width and height
    QString name;
    QString text;  ///< rich text
    GalleryTarget target;
};

struct GalleryPicture {
    int number = 0;  ///< of the picture's file
    QString title;
    QString text;  ///< rich text that introduces the picture; may be empty
    std::vector<GalleryArea> areas;
};

/// The pictures of main-screen topic \a topic in the order of their numbers.
std::vector<GalleryPicture> readGallery(Database& db, int topic);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
