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

/// Five recipes: one with everything, one of steps, one whose name is long, one with a long note, an empty
/// one.
inline QStringList fiveRecipes() {
    const QString steps = str(
        "\\b Postup\\b0\\par 1. Rybu opl\\'e1chneme a osol\\'edme z obou stran.\\par 2.\\~Troubu "
        "p\\'f8edeh\\'f8ejeme na 200 stup\\'f2\\'f9 a *44pek\\'e1\\'e8* vyma\\'9eeme m\\'e1slem, kter\\'e9 "
        "jsme nechali zm\\'ecknout.\\par\\fs10\\par\\fs24 Pod\\'e1v\\'e1me s bramborem, v m\\'edse a k "
        "tomu p\\'edsn\\'ec slovo.\\par 12. Nakonec ");
    return {
        PrintCookbook::recipe(1, u"Kapr na kmíně"_s,
                              {u"DlouhyNazev"_s, u"Kapr pečený na kmíně"_s, u"Uvod"_s,
                               rtf(u"\\i Rychl\\'e9\\i0\\par Kapr a km\\'edn k sob\\'ec pat\\'f8\\'ed."_s),
                               u"Recept"_s, rtf(steps), u"Poznamka"_s, rtf(u"Pozor na *12kosti*."_s),
                               u"Prezentace"_s, rtf(u"Na tal\\'ed\\'f8i."_s), u"vino"_s, rtf(u"Ryzlink."_s),
                               u"Vlastni"_s, u"Méně * 3 soli. "_s}),
        PrintCookbook::recipe(2, u"Štika"_s, {u"Recept"_s, rtf(steps.repeated(4))}),
        PrintCookbook::recipe(3, u"Rybí polévka z hlav a jiker na způsob staré rybníkářské kuchyně"_s,
                              {u"Recept"_s, rtf(longText(900))}),
        PrintCookbook::recipe(4, u"Okoun"_s, {u"Vlastni"_s, longText(1500)}),
        PrintCookbook::recipe(5, u"Lín"_s),
        u"INSERT INTO Suroviny VALUES (1,'kapr'),(2,'amur'),(3,'sůl'),(4,'paprika mletá')"_s,
        u"INSERT INTO Upresneni VALUES (1,'podkovy'),(2,'sladká')"_s,
        u"INSERT INTO Jednotky VALUES (1,'g'),(2,'lžičky'),(3,'ks')"_s,
        u"INSERT INTO SpojSur VALUES (1,1,1,1,1200,3,4,2),(1,3,0,1,5.5,2,0.5,0),(1,4,2,1,250,0,2,0)"_s,
        u"INSERT INTO Pomucky VALUES (1,'pekáč')"_s,
        u"INSERT INTO SpojPomucky VALUES (1,1)"_s,
        u"INSERT INTO Odkazy VALUES (5,'Vývar',"_s + sqlText(rtf(u"Va\\'f8\\'edme."_s)) + u')',
        u"INSERT INTO SpojOdkazy VALUES (1,5)"_s};
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
