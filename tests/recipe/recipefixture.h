#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

#include "forms/checkbox.h"
#include "screens/recipe/frmrecept.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// \a body as a document of the cookbook, a literal of SQL.
inline QString rtfValue(const char* body) {
    return test::sqlText(test::rtf(QString::fromUtf8(body)));
}

/// Recipe 5 has everything once: an alternative, missing names, both units, links, tools. Recipe 6 is bare.
/// Recipe 7 is for 3 portions and has a long list.
inline QStringList testRecipes() {
    QStringList all{
        u"INSERT INTO Suroviny (ID, Polozka) VALUES "
        "(1,'kapr'),(2,'máslo'),(3,'sůl'),(4,'olej'),(5,'kmín')"_s,
        u"INSERT INTO Upresneni (ID, Polozka) VALUES (1,'filety bez kůže'),(2,'čerstvé')"_s,
        u"INSERT INTO Jednotky (ID, Polozka) VALUES (1,' g '),(2,'lžíce'),(3,'kus')"_s,
        u"INSERT INTO Pomucky (ID, Polozka) VALUES (1,'vařečka'),(2,'pánev'),(3,'číška'),(4,'chňapka')"_s,
        u"INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Porce, vino) VALUES (6,'Prázdný','Prázdný "
        "recept',0,NULL)"_s,
        u"INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Porce) VALUES (7,'Dlouhý','Dlouhý seznam',3)"_s,
        u"INSERT INTO SpojSur VALUES (5,1,1,1,250,3,0.5,0)"_s,
        u"INSERT INTO SpojSur VALUES (5,2,0,1,50,2,2,4)"_s,
        u"INSERT INTO SpojSur VALUES (5,99,0,99,12.5,2,0.05,0)"_s,
        u"INSERT INTO SpojSur VALUES (5,3,0,0,0,0,NULL,0)"_s,
        u"INSERT INTO Vyteznost VALUES (1,45)"_s,
        u"INSERT INTO Fakta (ID, Ryba) VALUES (5,0)"_s,
        u"INSERT INTO SpojPomucky VALUES (5,1),(5,2),(5,3),(5,4)"_s,
        u"INSERT INTO SpojOdkazy VALUES (5,1),(5,2),(7,3)"_s,
    };
    all << u"INSERT INTO Odkazy (ID, Polozka, Text) VALUES (1,'Rybí vývar',%1),(2,'Chlebové "
           "kostky',%2),(3,'Jen jeden',%3)"_s.arg(rtfValue("Vývar va\\'f8\\'edme *12pomalu*."),
                                                  rtfValue("Chléb nakrájíme."), rtfValue("Text odkazu"));
    all << u"INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Porce, Recept, Uvod, Prezentace, Poznamka, "
           "vino, Vlastni) VALUES "
           "(5,'Kapr','Kapr na kmíně s máslem, jak se dělá v neděli u rybníka, když přijede celá rodina "
           "a nikdo nespěchá domů',4,"
           "%1,%2,%3,%4,%5,NULL)"_s.arg(
               rtfValue("Kapra *12osol\\'edme* a pe\\'e8eme @7podle videa@.\\par Pod\\'e1v\\'e1me #ihned#."),
               rtfValue("\\'davod k receptu."), rtfValue("Na tal\\'ed\\'f8i."),
               rtfValue("Pozn\\'e1mka kucha\\'f8e."), rtfValue("Ryzlink"));
    for (int line = 0; line < 60; ++line)
        all << u"INSERT INTO SpojSur VALUES (7,%1,2,1,%2,2,1,0)"_s.arg(line % 5 + 1).arg(30 * line + 30);
    return all;
}

/// The recipe screen over a screen below it, in a run of its own.
class RecipeTest : public testing::Test {
  protected:
    RecipeTest() {
        run.database.Open(test::writeRecipeDatabase(file(), testRecipes()));
        run.MediaRoot = LogicalPaths::fromNativeFolder(folder.path());
        open(5);
    }

    void open(std::int16_t id) {
        form = new frmRecept(run, lookedAt, [this](const QString& prompt) {
            run.recorded.calls << prompt;
            if (!run.answers.empty()) customPortions = run.answers.front();
            run.answers.clear();
            return customPortions;
        });
        form->Zobraz(id);
        QApplication::processEvents();
    }
    QString file() const { return folder.filePath(u"Sarne.drc"_s); }
    template <typename Widget = Control>
    Widget& at(const char* name) {
        return *child<Widget>(*form, name);
    }
    void click(const char* name) {
        QTest::mouseClick(&at(name), Qt::LeftButton);
        QApplication::processEvents();
    }
    /// Types \a text where the keyboard is; Czech letters come as the input method sends them.
    void type(const QString& text) {
        for (QChar letter : text) {
            QKeyEvent key(QEvent::KeyPress, letter == u'\n' ? Qt::Key_Return : Qt::Key_unknown, {},
                          letter == u'\n' ? u"\r"_s : QString(letter));
            QApplication::sendEvent(QApplication::focusWidget(), &key);
        }
    }
    TextView& view() { return at<TextView>("picRecept"); }
    QString shown() { return view().drawnText(); }
    QVariant storedNote(int id = 5) {
        Recordset row = run.database.OpenTable(u"Recepty"_s);
        row.Seek(u"="_s, id);
        return row.field(u"Vlastni"_s);
    }
    QTemporaryDir folder;
    FakeSarne run;
    double customPortions = 0;
    Serving lookedAt;
    Form* below = run.openAbove("frmSeznam");
    frmRecept* form = nullptr;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
