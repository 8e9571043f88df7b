#pragma once

#include "db/database.h"
#include "forms/resources.h"
#include "platform/systemprinter.h"
#include "print/printjob.h"
#include "print/printlogo.h"
#include "richtext/qttextmetrics.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/pictures.h"
#include "support/print.h"
#include "support/recipedatabase.h"

namespace sarne::test {

inline QString str(const char* text) {
    return QString::fromUtf8(text);
}

/// A sentence again and again, about \a length characters.
inline QString longText(int length, const QString& sentence = u"Rybu osolíme a necháme stát. "_s) {
    return sentence.repeated(length / int(sentence.size()) + 1);
}

/// A small cookbook to print from, with a folder for photos and one for printed files.
class PrintCookbook {
  public:
    QTemporaryDir folder;
    Database db;

    explicit PrintCookbook(const QStringList& statements) {
        db.Open(writeRecipeDatabase(folder.filePath(u"Sarne.drc"_s), statements));
    }

    /// The statement of a recipe with \a fields ("Uvod", text, ...).
    static QString recipe(int id, const QString& name, const QStringList& fields = {}, int portions = 4) {
        QString names = u"ID,Nazev,Porce"_s;
        QString values = u"%1,%2,%3"_s.arg(QString::number(id), sqlText(name), QString::number(portions));
        for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
            names += u',' + fields[i];
            values += u',' + sqlText(fields[i + 1]);
        }
        return u"INSERT INTO Recepty ("_s + names + u") VALUES ("_s + values + u')';
    }

    /// In the form \a format, whatever its name ends in.
    void addPhoto(int id, QSize size, const QColor& color, const char* format = "BMP") {
        if (!write(photo(id), plain(size, color), format)) qFatal("no room for a photo");
    }
    QString photo(int id) const { return folder.filePath(u"r%1.bmp"_s.arg(id)); }

    PrintSource source() {
        const auto media = [this](const QString& path) { return folder.filePath(path.section(u'\\', -1)); };
        return {db, media, QLocale(QLocale::Czech, QLocale::CzechRepublic),
                printLogo(Resources(u":/none/"_s))};
    }

    /// Prints to a file on \a paper and says how that went.
    PrintOutcome print(const std::vector<std::int16_t>& ids, const PrintOptions& options = {},
                       Paper paper = Paper::A4) {
        SystemPrinter printer(folder.filePath(u"Dokumenty"_s));
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
        return PrintJob(printer, composer, silent).print({ids, {}}, options, u"Recept"_s);
    }
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
