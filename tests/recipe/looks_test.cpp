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
    const struct {
        const char* name;
        std::int16_t id;
        int section;
        const char* way;
    } ways[] = {
        {"sekce-klavesami", 5, 0, "Down Down Right Return"},
        {"sekce-prazdneho", 6, 0, "Up Left Left Left Left"},
        {"sekce-niceho", -7, 0,
         "click:imgBtn(1) click:imgBtn(2) click:imgBtn(4) click:imgBtn(5) click:imgBtn(6) click:imgBtn(7) "
         "type:x click:imgBtn(3)"},
        {"sekce-cteckou", 5, 0,
         "reader click:imgBtn(1) Down Right Tab click:imgBtn(2) click:imgBtn(3) Tab click:imgBtn(5) "
         "click:imgBtn(7) "
         "click:imgBtn(0)"},
        {"text-klavesami", 5, 1,
         "Tab Tab Tab Tab Tab Tab Shift+Tab Shift+Tab Left Shift+Tab Shift+Tab Return over pop"},
        {"text-mysi", 5, 1, "click:picRecept.0 click:picRecept.1 over pop click:picRecept.2"},
        {"odkazy", 8, 3,
         "Tab Up Return click:imgOdkazy(0) click:imgOdkazy(0) Down Return click:imgOdkazy(1)"},
        {"porce-mysi", 5, 5,
         "click:imgPrepocet(6) click:imgPrepocet(6) click:imgPrepocet(2) click:imgPrepocet(10) answer:100 "
         "click:imgPrepocet(10) click:imgKgLzice answer:0 click:imgPrepocet(10) answer:3 "
         "click:imgPrepocet(10) answer:0 click:imgPrepocet(10)"},
        {"porce-podle-ryby", 5, 5, "answer:500 click:cmdRyba answer:0 click:cmdRyba"},
        {"porce-klavesami", 5, 5,
         "Right Right Right Return Left Left Left Left Right Return Left Right Down Tab Right"},
        {"porce-zadne", 9, 5, "click:imgPrepocet(6) click:imgBtn(6)"},
        {"poznamka-otazky", 5, 7,
         "type:x answer:7 click:imgBtn(1) click:imgBtn(7) type:Sůl answer:6 click:imgBtn(7) click:imgBtn(2)"},
        {"poznamka-odchody", 5, 7,
         "type:x answer:0 Escape answer:0 click:imgBtn(1) answer:0 click:lblIkona(2) answer:0 "
         "click:imgBtnHlavni(3) click:imgBtnHlavni(3) click:imgBtnHlavni(3) click:400,200 type:y answer:7 "
         "Alt+F4 over "
         "answer:0 "
         "Alt+F4 Alt+F4 pop click:400,200 type:z answer:0 pop"},
        {"poznamka-tlacitky", 5, 7,
         "type:x click:cmdUloz(1) click:imgBtn(7) type:{\\rtf1*12sůl*@7{\\b}# click:cmdUloz(0) Ctrl+C "
         "click:imgBtn(7) Ctrl+A Delete click:cmdUloz(0)"},
        {"poznamka-tisk", 5, 7, "type:ryba click:imgBtnHlavni(0) click:imgBtn(1) click:imgBtnHlavni(0)"},
        {"poznamka-klavesami", 5, 7,
         "Shift+Tab Up Return click:imgBtn(7) click:lblIkona(2) click:imgBtn(7) Tab Shift+Tab type:ryba Tab "
         "Return"}};
    test::walkEach(ways, [](const auto& one, const Look& look) {
        Recipe book;
        book.ask(2.5);
        book.addLinks(8);
        book.show(one.id, one.section);
        look(book.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
