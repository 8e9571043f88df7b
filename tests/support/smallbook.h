#pragma once

#include <QStringList>

#include "support/print.h"

namespace sarne::test {

/// What fills a book with one recipe with steps, and one without.
inline QStringList smallBook() {
    return {u"INSERT INTO Suroviny VALUES (1,'kapr'),(2,'máslo'),(3,'sůl')"_s,
            u"INSERT INTO Jednotky VALUES (1,'g'),(2,'lžíce')"_s,
            u"INSERT INTO Pomucky VALUES (1,'pekáč')"_s,
            u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (5,'Kapr na kmíně',4),(6,'Bez kroků',4)"_s,
            u"INSERT INTO SpojSur VALUES (5,1,0,1,1200,1,1200,0),(5,2,0,1,80,2,4,0),(5,3,0,0,0,0,0,0)"_s,
            u"INSERT INTO SpojPomucky VALUES (5,1)"_s,
            u"INSERT INTO Kroky VALUES (1,5,'','Kapra osolíme a necháme 15 minut stát.'),"
            "(2,5,'','Polovinu másla rozpustíme.'),(3,5,'Na stůl','S chlebem.')"_s,
            u"INSERT INTO KrokySur VALUES (1,0,1),(1,2,1),(2,1,0.5),(3,1,0.5)"_s,
            u"INSERT INTO Zbozi VALUES (1,0,0,8),(2,2,0,64),(3,4,1,0)"_s,
            u"INSERT INTO Fakta (ID, Minut, Mesice, Alergeny, Ryba) VALUES (5,40,4095,72,0)"_s};
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
