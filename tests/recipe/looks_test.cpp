#include "recipe/recipefixture.h"
#include "support/explore.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

using test::Look;

class Recipe : public RecipeTest {
  public:
    Recipe() {
        for (const char* photo :
             {"foto/Velke/r5.bmp", "foto/Podklad/r5.bmp", "foto/vino256.bmp", "foto/pomucky/varecka.bmp",
              "foto/pomucky/panev.bmp", "foto/pomucky/ciska.bmp", "foto/pomucky/chnapka.bmp"})
            (void)test::write(folder.filePath(QLatin1String(photo)), test::plain({80, 60}, Qt::darkRed));
        // Recipe 9 is for nobody and takes fewer tools than are shown.
        for (const char* row : {"Recepty (ID, Nazev, DlouhyNazev, Porce) VALUES (9,'Nic','Nic',-3)",
                                "SpojSur VALUES (9,1,1,1,250,3,0.5,0)", "SpojPomucky VALUES (9,1),(9,2)"})
            run.database.Execute(u"INSERT INTO "_s + QString::fromUtf8(row));
    }
    void show(std::int16_t id, int section) {
        form->Skryj();
        open(id);
        form->openSection(section);
    }
    /// Many for recipe \a id.
    void addLinks(int id) {
        for (int link = 10; link < 30; ++link) {
            run.database.Execute(
                u"INSERT INTO Odkazy (ID, Polozka, Text) VALUES (%1,'Odkaz %1','t%1')"_s.arg(link));
            run.database.Execute(u"INSERT INTO SpojOdkazy VALUES (%1,%2)"_s.arg(id).arg(link));
        }
    }
    void ask(double portions) { customPortions = portions; }
    using RecipeTest::run;
    using RecipeTest::type;

  private:
    void TestBody() override {}
};

void recipe(const char* kind, std::int16_t id, int section, bool used) {
    const auto scene = [=](const Look& look) {
        Recipe book;
        book.ask(2.5);
        book.show(id, section);
        look(book.run);
    };
    const QByteArray name = QByteArray(kind) + '-' + QByteArray::number(section);
    test::exploreOrLook(used, name, scene);
}

TEST(Looks, Sections) {
    for (int section = 0; section < 8; ++section) {
        recipe("recept", 5, section, section == 0 || section == 3 || section == 5 || section == 7);
        recipe("prazdny", 6, section, false);
    }
    recipe("dlouhy", 7, 5, true);
}

TEST(Looks, NoteThatWasTyped) {
    test::explore("poznamka-psana", [](const Look& look) {
        Recipe book;
        book.show(5, 7);
        book.type(u"víc kmínu"_s);
        look(book.run);
    });
}

TEST(Looks, InUse) {
    test::walkAll("cesty", [](const QString& what, const Look& look) {
        Recipe book;
        book.ask(2.5);
        book.addLinks(8);
        book.show(what.section(u' ', 0, 0).toShort(), what.section(u' ', 1).toInt());
        look(book.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
