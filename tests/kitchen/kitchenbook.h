#pragma once

#include <QTemporaryDir>
#include <QTest>

#include "screens/kitchen/ticklist.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run on a book of one recipe with steps, and one without; the user's things are kept in a file.
class KitchenRun : public FakeSarne {
  public:
    KitchenRun() {
        database.Open(test::writeRecipeDatabase(
            folder_.filePath(u"Sarne.drc"_s),
            {u"INSERT INTO Suroviny VALUES (1,'kapr'),(2,'máslo'),(3,'sůl')"_s,
             u"INSERT INTO Jednotky VALUES (1,'g'),(2,'lžíce')"_s,
             u"INSERT INTO Pomucky VALUES (1,'pekáč')"_s,
             u"INSERT INTO Recepty (ID, Nazev, Porce) VALUES (5,'Kapr na kmíně',4),(6,'Bez kroků',4)"_s,
             u"INSERT INTO SpojSur VALUES (5,1,0,1,1200,1,1200,0),(5,2,0,1,80,2,4,0),(5,3,0,0,0,0,0,0)"_s,
             u"INSERT INTO SpojPomucky VALUES (5,1)"_s,
             u"INSERT INTO Kroky VALUES (1,5,'','Kapra osolíme a necháme 15 minut stát.'),"
             "(2,5,'','Polovinu másla rozpustíme.'),(3,5,'Na stůl','S chlebem.')"_s,
             u"INSERT INTO KrokySur VALUES (1,0,1),(1,2,1),(2,1,0.5),(3,1,0.5)"_s,
             u"INSERT INTO Zbozi VALUES (1,0,0,8),(2,2,0,64),(3,4,1,0)"_s,
             u"INSERT INTO Fakta (ID, Minut, Mesice, Alergeny, Ryba) VALUES (5,40,4095,72,0)"_s}));
        file_ = UserFile(folder_.filePath(u"vlastni.db"_s));
    }

    UserFile& file() { return file_; }

  private:
    QTemporaryDir folder_;
    UserFile file_;
};

inline void press(Form& form, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* focus = form.window()->focusWidget();
    QTest::keyClick(focus ? focus : &form, key, modifiers);
}

/// What the rows of a list say, "x" in front of what is ticked: "kapr/1,2 kg | x máslo/80 g".
inline QString rows(const Form& form, const char* list) {
    QStringList all;
    for (const TickRow& row : child<TickList>(form, list)->rows()) {
        QStringList said{row.text, row.right, row.below};
        said.removeAll(QString());
        all << (row.ticked ? u"x "_s : QString()) + said.join(u'/');
    }
    return all.join(u" | "_s).replace(QChar(QChar::Nbsp), u' ');
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
