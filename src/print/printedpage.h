#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <vector>

#include "forms/picture.h"
#include "platform/printer.h"
#include "richtext/surface.h"

namespace sarne {

/// A text at its place on a page, in twips of the printer's scale.
struct PageText {
    int x = 0;
    int baseline = 0;
    int width = 0;
    QString text;
    TextFont font;
    QRgb color = 0xff000000;
};

struct PagePicture {
    QRect place;
    Picture picture;
    QString file = {};  ///< its native path; empty for one that is painted only
};

/// One page: everything on it, at its place, in reading order. What the preview shows, the file holds and
/// the printer gets.
struct PrintedPage {
    std::vector<PagePicture> pictures;
    std::vector<PageText> texts;
    std::vector<DocumentPlace> places;
    std::vector<DocumentLink> links;
};

/// One line of a recipe before it has a page. Its texts and picture are placed as if the line's top were 0.
struct FlowLine {
    enum class Kind {
        Text,
        Heading,  ///< belongs to what follows
        Space,    ///< left out at the top of a page
    };

    Kind kind = Kind::Text;
    int height = 0;
    bool startsParagraph = true;
    bool endsParagraph = true;
    std::vector<PageText> texts;
    std::vector<PagePicture> pictures;
    std::vector<DocumentPlace> places;
    std::vector<DocumentLink> links;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
