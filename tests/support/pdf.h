#pragma once

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <vector>

#include "support/files.h"
#include "support/print.h"

namespace sarne::test {

/// The texts of a PDF file, its pages parted by form feeds.
inline QString pdfText(const QString& file) {
    return output(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
}

inline QStringList pdfPages(const QString& file) {
    return pdfText(file).split(u'\f', Qt::SkipEmptyParts);
}

/// One word of a page and where it stands, in twips from the paper's corner.
struct PdfWord {
    QRectF place;
    QString text;
};

inline std::vector<PdfWord> pdfWords(const QString& file, int page) {
    const QString number = QString::number(page);
    const QString html = output(u"pdftotext"_s, {u"-bbox"_s, u"-f"_s, number, u"-l"_s, number, file, u"-"_s});
    static const QRegularExpression word(
        u"<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\" xMax=\"([-0-9.]+)\" "
        "yMax=\"([-0-9.]+)\">(.*?)</word>"_s);
    std::vector<PdfWord> words;
    for (const auto& match : word.globalMatch(html)) {
        const QPointF from(match.captured(1).toDouble() * 20, match.captured(2).toDouble() * 20);
        const QPointF to(match.captured(3).toDouble() * 20, match.captured(4).toDouble() * 20);
        words.push_back({QRectF(from, to), match.captured(5)});
    }
    return words;
}

/// A page as a viewer paints it, 20 twips a pixel.
inline QImage pdfImage(const QString& file, int page) {
    QTemporaryDir folder;
    const QString to = folder.filePath(u"page"_s);
    const QString number = QString::number(page);
    output(u"pdftoppm"_s,
           {u"-r"_s, u"72"_s, u"-f"_s, number, u"-l"_s, number, u"-singlefile"_s, u"-png"_s, file, to});
    return QImage(to + u".png"_s);
}

/// The smallest rectangle around all that is red on \a page.
inline QRect redPart(const QImage& page) {
    QRect red;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor color = page.pixelColor(x, y);
            if (color.red() > 200 && color.green() < 60) red |= QRect(x, y, 1, 1);
        }
    }
    return red;
}

/// Where on \a sheet a colour begins, in pixels; grey are the lines along which it is cut.
inline QString marks(const QImage& sheet) {
    const auto colourAt = [&](int x, int y) {
        const QColor colour = sheet.valid(x, y) ? sheet.pixelColor(x, y) : QColor(Qt::white);
        if (colour.red() > 200 && colour.green() < 60) return "red";
        if (colour.blue() > 200 && colour.green() < 60) return "blue";
        return colour.red() == colour.green() && colour.red() < 250 ? "grey" : "";
    };
    QString all = u"%1x%2"_s.arg(sheet.width()).arg(sheet.height());
    for (int y = 0; y < sheet.height(); ++y) {
        for (int x = 0; x < sheet.width(); ++x) {
            const char* colour = colourAt(x, y);
            if (*colour && colour != colourAt(x - 1, y) && colour != colourAt(x, y - 1))
                all += u" %1 %2,%3"_s.arg(QLatin1String(colour)).arg(x).arg(y);
        }
    }
    return all;
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
