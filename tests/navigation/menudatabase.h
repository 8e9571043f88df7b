#pragma once

#include <gtest/gtest.h>

#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run over a small cookbook with a menu.
class MenuFixture : public testing::Test {
  protected:
    void SetUp() override {
        QStringList rows{
            u"INSERT INTO Menu VALUES ('20','@Sladkovodní ryby',''),('21','Kapr','D'),('22','Pstruh','D'),"
            "('210','@Kapr',''),('211','Pečený','D'),('212','Vařený','D'),('2111','Recepty','1,4,'),"
            "('2112','Rychle','2,'),('2121','Recepty','5,'),('2122','Rychle','2,'),"
            "('221','Recepty','6,'),('222','Rychle','3,'),"
            "('120','@Hledání podle surovin',''),('121','Napište začátek názvu a stiskněte Enter','F'),"
            "('170','@Mísy',''),('171','Slavnostní mísy na velký stůl','D'),('1711','Recepty','1,'),"
            "('172','Štika','D'),('1721','Recepty','1,'),('31','Omáčky','7,9,'),('32','Základy','9,'),"
            "('41','Návod','x'),('42','Rejstřík','x'),('91','Naše vody','x'),('101','Promítání','x'),"
            "('102','Mřížka','x'),('181','Kuchání','1'),('5','','')"_s,
            u"DELETE FROM Menu WHERE Id = '5'"_s,
            u"INSERT INTO Suroviny VALUES (1,'Kapr'),(2,'kapary'),(3,'kapie'),(4,'mouka')"_s,
            u"INSERT INTO Recepty (ID,Nazev) VALUES (1,'Kapr na "
            "kmíně'),(2,'Čočka'),(3,'Candát'),(40000,'Velký')"_s,
            u"INSERT INTO SpojSur (ID_Receptu,ID_Polozky) VALUES "
            "(1,1),(1,1),(3,1),(2,1),(40000,1),(2,2)"_s};
        QStringList many;
        for (int i = 0; i < 85; ++i)
            many << u"(%1,'%2%3')"_s.arg(100 + i).arg(i < 84 ? u"bylina" : u"byl").arg(i);
        rows << u"INSERT INTO Suroviny VALUES "_s + many.join(u',');
        ASSERT_TRUE(run.database.Open(test::writeRecipeDatabase(folder.filePath(u"Sarne.drc"_s), rows)));
        run.database.keepInMemory(u"Menu"_s);
    }

    QTemporaryDir folder;
    FakeSarne run;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
