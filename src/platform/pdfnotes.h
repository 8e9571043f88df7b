#pragma once

#include <QByteArray>
#include <QRectF>

#include "platform/printer.h"

namespace sarne {

/// What a PDF file holds beside what is painted: its language, links within it and a table of contents.
/// Places are twips from the upper left corner of a sheet; sheets are counted from 0.
class PdfNotes {
  public:
    void addPlace(int sheet, double top, const DocumentPlace& place) {
        places_.push_back({sheet, top, place});
    }
    void addLink(int sheet, const QRectF& place, const QString& target) {
        links_.push_back({sheet, place, target});
    }

    /// \a pdf with the notes in it. A link that leads nowhere is left out. \a pdf as it is where it is not
    /// understood, or where the program was built without the library that can do it.
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
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
