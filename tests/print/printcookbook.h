#pragma once

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include "db/database.h"
#include "forms/resources.h"
#include "platform/systemprinter.h"
#include "print/printjob.h"
#include "print/printlogo.h"
#include "richtext/qttextmetrics.h"
#include "support/recipedatabase.h"

namespace sarne::test {

inline QString str(const char* text) {
    return QString::fromUtf8(text);
}

inline QString sqlText(const QString& text) {
    return u'\'' + QString(text).replace(u'\'', str("''")) + u'\'';
}

/// An RTF document with \a body.
inline QString rtf(const QString& body) {
    return str("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset238 Times New Roman;}"
               "{\\f1\\fswiss\\fcharset238 Arial;}}\\plain\\pard ") +
           body + str("\\par }");
}

/// A sentence again and again, about \a length characters.
inline QString longText(int length, const QString& sentence = str("Rybu osolíme a necháme stát. ")) {
    return sentence.repeated(length / int(sentence.size()) + 1);
}

/// What a tool of the PDF package says about a file.
inline QString pdfTool(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return tool + str(" failed: ") + QString::fromUtf8(process.readAllStandardError());
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The texts of a PDF file, its pages parted by form feeds.
inline QString pdfText(const QString& file) {
    return pdfTool(str("pdftotext"), {str("-layout"), file, str("-")});
}

inline QStringList pdfPages(const QString& file) {
    return pdfText(file).split(u'\f', Qt::SkipEmptyParts);
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One word of a page and where it stands, in twips from the paper's corner.
struct PdfWord {
    QRectF place;
    QString text;
};

inline std::vector<PdfWord> pdfWords(const QString& file, int page) {
    const QString number = QString::number(page);
    const QString html =
        pdfTool(str("pdftotext"), {str("-bbox"), str("-f"), number, str("-l"), number, file, str("-")});
    static const QRegularExpression word(
        str("<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\" xMax=\"([-0-9.]+)\" "
            "yMax=\"([-0-9.]+)\">(.*?)</word>"));
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
    const QString to = folder.filePath(str("page"));
    const QString number = QString::number(page);
    pdfTool(str("pdftoppm"), {str("-r"), str("72"), str("-f"), number, str("-l"), number, str("-singlefile"),
                              str("-png"), file, to});
    return QImage(to + str(".png"));
}

/// A small cookbook to print from, with a folder for photos and one for printed files.
class PrintCookbook {
  public:
    QTemporaryDir folder;
    Database db;

    explicit PrintCookbook(const QStringList& statements) {
        const QString file = folder.filePath(str("Sarne.drc"));
        writeRecipeDatabase(file, statements);
        db.Open(file);
    }

    /// The statement of a recipe with \a fields ("Uvod", text, ...).
    static QString recipe(int id, const QString& name, const QStringList& fields = {}, int portions = 4) {
        QString names = str("ID,Nazev,Porce");
        QString values = str("%1,%2,%3").arg(QString::number(id), sqlText(name), QString::number(portions));
        for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
            names += u',' + fields[i];
            values += u',' + sqlText(fields[i + 1]);
        }
        return str("INSERT INTO Recepty (") + names + str(") VALUES (") + values + u')';
    }

    /// In the form \a format, whatever its name ends in.
    void addPhoto(int id, QSize size, const QColor& color, const char* format = "BMP") {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        image.save(photo(id), format);
    }
    QString photo(int id) const { return folder.filePath(str("r%1.bmp").arg(id)); }

    PrintSource source() {
        const auto media = [this](const QString& path) { return folder.filePath(path.section(u'\\', -1)); };
        return {db, media, QLocale(QLocale::Czech, QLocale::CzechRepublic),
                printLogo(Resources(str(":/none/")))};
    }

    /// Prints to a file on \a paper and says how that went.
    PrintOutcome print(const std::vector<std::int16_t>& ids, const PrintOptions& options = {},
                       Paper paper = Paper::A4) {
        SystemPrinter printer(folder.filePath(str("Dokumenty")));
        PrinterChoice choice;
        choice.paper = paper;
        printer.use(choice);
        return printOn(printer, ids, options);
    }

    PrintOutcome printOn(Printer& printer, const std::vector<std::int16_t>& ids,
                         const PrintOptions& options = {}) {
        SilentProgress silent;
        QtTextMetrics metrics;
        PageComposer composer(source(), printer.scale(), metrics);
        return PrintJob(printer, composer, silent).print({ids, {}}, options, str("Recept"));
    }
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
