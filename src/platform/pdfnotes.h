#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>

#include "platform/printer.h"

namespace sarne {

/// What a PDF file holds beside what is painted: its language, links within it, a table of contents and
/// pictures as they are stored.
/// Places are twips from the upper left corner of a sheet; sheets are counted from 0.
class PdfNotes {
  public:
    void addPlace(int sheet, double top, const DocumentPlace& place) {
        places_.push_back({sheet, top, place});
    }
    void addLink(int sheet, const QRectF& place, const QString& target) {
        links_.push_back({sheet, place, target});
    }

    /// Takes the JPEG file \a jpeg and returns what is to be painted in its place: writtenInto() replaces it.
    /// Null where \a jpeg is none that such a file may hold, or the program was built without the library.
    QImage addPicture(const QByteArray& jpeg);

    /// \a pdf with the notes in it. A link that leads nowhere is left out. \a pdf as it is where it is not
    /// understood, or where the program was built without the library that can do it; but empty where its
    /// pictures would then be missing.
    QByteArray writtenInto(const QByteArray& pdf) const;
    /// Whether the program was built with that library.
    static bool arePossible();

  private:
    friend class PdfNoteWriter;
    struct Place {
        int sheet;
        double top;
        DocumentPlace place;
    };
    struct Link {
        int sheet;
        QRectF place;
        QString target;
    };

    std::vector<Place> places_;
    std::vector<Link> links_;
    std::vector<QByteArray> pictures_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
