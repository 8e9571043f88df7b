#include <gtest/gtest.h>

#include "platform/pagesonsheet.h"
#include "printcookbook.h"
#include "richtext/layoutdump.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;

/// Five recipes: one with everything, one of steps, one whose name is long, one with a long note, an empty
/// one.
QStringList cookbook() {
    const QString steps = str(
        "\\b Postup\\b0\\par 1. Rybu opl\\'e1chneme a osol\\'edme z obou stran.\\par 2.\\~Troubu "
        "p\\'f8edeh\\'f8ejeme na 200 stup\\'f2\\'f9 a *44pek\\'e1\\'e8* vyma\\'9eeme m\\'e1slem, kter\\'e9 "
        "jsme nechali zm\\'ecknout.\\par\\fs10\\par\\fs24 Pod\\'e1v\\'e1me s bramborem, v m\\'edse a k "
        "tomu p\\'edsn\\'ec slovo.\\par 12. Nakonec ");
    return {PrintCookbook::recipe(
                1, str("Kapr na kmíně"),
                {str("DlouhyNazev"), str("Kapr pečený na kmíně"), str("Uvod"),
                 test::rtf(str("\\i Rychl\\'e9\\i0\\par Kapr a km\\'edn k sob\\'ec pat\\'f8\\'ed.")),
                 str("Recept"), test::rtf(steps), str("Prezentace"), test::rtf(str("Na tal\\'ed\\'f8i.")),
                 str("vino"), test::rtf(str("Ryzlink.")), str("Vlastni"), str("Méně soli. ")}),
            PrintCookbook::recipe(2, str("Štika"), {str("Recept"), test::rtf(steps.repeated(4))}),
            PrintCookbook::recipe(3, str("Rybí polévka z hlav a jiker na způsob staré rybníkářské kuchyně"),
                                  {str("Recept"), test::rtf(test::longText(900))}),
            PrintCookbook::recipe(4, str("Okoun"), {str("Vlastni"), test::longText(1500)}),
            PrintCookbook::recipe(5, str("Lín")),
            str("INSERT INTO Suroviny VALUES (1,'kapr'),(2,'amur'),(3,'sůl'),(4,'paprika mletá')"),
            str("INSERT INTO Upresneni VALUES (1,'podkovy'),(2,'sladká')"),
            str("INSERT INTO Jednotky VALUES (1,'g'),(2,'lžičky'),(3,'ks')"),
            str("INSERT INTO SpojSur VALUES (1,1,1,1,1200,3,4,2),(1,3,0,1,5.5,2,0.5,0),(1,4,2,1,250,0,2,0)"),
            str("INSERT INTO Pomucky VALUES (1,'pekáč')"),
            str("INSERT INTO SpojPomucky VALUES (1,1)"),
            str("INSERT INTO Odkazy VALUES (5,'Vývar',") + test::sqlText(test::rtf(str("Va\\'f8\\'edme."))) +
                u')',
            str("INSERT INTO SpojOdkazy VALUES (1,5)")};
}

/// One row a line: its baseline, where each word begins, the line's end, and the words.
void dump(QStringList& rows, const PrintedPage& page) {
    for (const PagePicture& picture : page.pictures) {
        const QRect& at = picture.place;
        rows << str("# %1 %2 %3 %4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
    }
    for (size_t i = 0; i < page.texts.size();) {
        QStringList places, words;
        const int baseline = page.texts[i].baseline;
        int end = 0;
        for (; i < page.texts.size() && page.texts[i].baseline == baseline; ++i) {
            places << QString::number(page.texts[i].x);
            words << page.texts[i].text;
            end = page.texts[i].x + page.texts[i].width;
        }
        rows << str("%1: %2 -%3 | %4").arg(baseline).arg(places.join(u' ')).arg(end).arg(words.join(u' '));
    }
}

TEST(PrintedPage, StandsToTheTwipWhereItStood) {
    PrintCookbook book(cookbook());
    book.addPhoto(1, {400, 300}, Qt::red);
    QStringList rows;
    for (const Paper paper : {Paper::A4, Paper::A5}) {
        test::FixedMetrics metrics;
        SilentProgress silent;
        PageComposer composer(book.source(), PagesOnSheet::of(paper).scale(), metrics);
        for (int id = 1; id <= 5; ++id) {
            for (const PrintedPage& page : composer.recipe(id, {}, silent)) {
                rows << str("== %1, %2").arg(paperName(paper)).arg(id);
                dump(rows, page);
            }
        }
    }
    QFile file(str(SARNE_PRINTED_PAGES));
    if (qEnvironmentVariableIsSet("SARNE_RENEW") && file.open(QIODevice::WriteOnly)) {
        file.write((rows.join(u'\n') + u'\n').toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList expected = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(rows.size(), expected.size());
    for (qsizetype i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i], expected[i]) << "row " << i + 1;
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
