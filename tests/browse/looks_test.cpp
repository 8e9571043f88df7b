#include "browse/browsefixture.h"
#include "screens/browse/frmfotobig.h"
#include "screens/browse/frmseznam.h"
#include "screens/browse/frmsit.h"
#include "support/explore.h"

namespace sarne {
namespace {

using test::explore;
using test::exploreOrLook;
using test::Look;
using test::walkEach;

/// A cookbook whose first recipes have photos, and a screen below.
class Browse : public BrowseTest {
  public:
    Browse() {
        for (const char* photo :
             {"foto/Male/r1.bmp", "foto/Male/r29.bmp", "foto/Velke/r2.bmp", "foto/sitCela.bmp"})
            writePhoto(photo);
        writePhoto("foto/sit1.bmp", {40, 30}, Qt::magenta);
        writePhoto("foto/Male/r3.bmp", {300, 200});
        (void)QFile::resize(folder.filePath(u"foto/Male/r3.bmp"_s), 1000);
        (void)test::write(folder.filePath(u"foto/Male/r4.bmp"_s), "BM" + QByteArray(60, '\x7f'));
        run.openAbove("frmHlavni");
    }
    using BrowseTest::folder;
    using BrowseTest::run;
    using BrowseTest::writePhoto;
    void change(const char* statements) {
        for (const QString& one : QString::fromUtf8(statements).split(u';', Qt::SkipEmptyParts))
            run.database.Execute(one);
    }
    void list(const QString& ids, const QString& source, std::initializer_list<Qt::Key> keys = {}) {
        auto* form = new frmSeznam(run);
        form->setSubject(u"losos"_s);
        form->Zobraz(ids, source);
        for (const Qt::Key one : keys) key(one);
    }

  private:
    void TestBody() override {}
};

TEST(Looks, List) {
    const struct {
        bool isExplored;
        const char *name, *ids, *source;
        std::initializer_list<Qt::Key> keys;
    } lists[] = {{true, "seznam", "", "recepty", {}},
                 {true, "seznam-vybrano", "", "recepty", {Qt::Key_Down}},
                 {false, "seznam-kratky", "3,1,2,", "recepty", {Qt::Key_Down, Qt::Key_Down}},
                 {false, "seznam-karty", "1,29,", "recepty", {}},
                 {true, "seznam-prazdny", "5", "recepty", {}},
                 {true, "seznam-bez-knihy", "", "recepty", {}},
                 {true, "seznam-rychle", "", "RychleRecepty", {Qt::Key_Down}},
                 {false, "seznam-napoveda", "", "Help", {Qt::Key_Down}}};
    for (const auto& one : lists)
        exploreOrLook(one.isExplored, one.name, [&](const Look& look) {
            Browse book;
            if (!qstrcmp(one.name, "seznam-bez-knihy")) book.run.database.Close();
            book.list(QString::fromLatin1(one.ids), QString::fromLatin1(one.source), one.keys);
            look(book.run);
        });
}

TEST(Looks, ListInUse) {
    const struct {
        const char *name, *ids, *source, *change, *way;
    } ways[] = {
        {"seznam-klavesami", "", "recepty", "",
         "Down PgDown End PgUp Up Home Tab Right Enter Shift+Tab Return Left Left Return F1 X Escape"},
        {"seznam-navrat", "", "recepty", "", "Down PgDown Tab Return over pop Down"},
        {"seznam-ctecka", "", "recepty", "", "press:lstSeznam.2"},
        {"seznam-pismeny", "", "recepty",
         "UPDATE Recepty SET Nazev = 'Štika' WHERE ID IN (30, 40);"
         "UPDATE Recepty SET Nazev = 'Arašídy' WHERE ID = 1",
         "type:s wait:5000 type:s type:q wait:5000 type:sti wait:5000 type:a type:r type:c"},
        {"seznam-mysi", "", "recepty", "",
         "click:lblSeznam(1) click:imgBtn(1) click:lblSeznam(2) click:imgBtn(1) click:imgBtn(1) "
         "click:imgBtn(0) click:lblSeznam(3) click:lblSeznam(4) click:imgSipky(0) click:imgSipky(3) "
         "click:imgSipky(1) click:imgSipky(2)"},
        {"seznam-vina", "1,", "recepty",
         "INSERT INTO SpojVino VALUES (1, 1);INSERT INTO SpojVino VALUES (1, 2);"
         "INSERT INTO SpojVino VALUES (1, 1);INSERT INTO SpojVino VALUES (1, 2);"
         "INSERT INTO SpojVino VALUES (1, 1);INSERT INTO SpojVino VALUES (1, 2)",
         "click:lblSeznam(1) click:imgBtn(1)"},
        {"seznam-predany", "7,9,11,", "recepty", "",
         "click:lblSeznam(2) click:picFoto Space click:imgBtnHlavni(0)"},
        {"seznam-temat", "", "Help", "",
         "click:lblSeznam(2) click:picFoto Space Return double:lblSeznam(1) click:imgBtnHlavni(0)"},
        {"seznam-rychlych", "", "RychleRecepty", "",
         "click:lblSeznam(2) click:lblSeznam(1) click:imgBtn(1) click:imgBtn(1) click:imgBtn(2) "
         "double:lblSeznam(3) click:imgBtnHlavni(0) Tab click:Picture1 hover:Picture1 Down Down"}};
    walkEach(ways, [](const auto& one, const Look& look) {
        Browse book;
        book.change(one.change);
        book.list(QString::fromLatin1(one.ids), QString::fromLatin1(one.source));
        look(book.run);
    });
}

TEST(Looks, Grid) {
    for (const int group : {0, 2})
        exploreOrLook(!group, group ? "sit-skupina" : "sit", [&](const Look& look) {
            Browse book;
            if (group) book.change("INSERT INTO Kniha (Nazev, Hodnota) VALUES ('Skupina3', 'Na oslavu')");
            auto* grid = new frmSit(book.run);
            grid->Zobraz();
            if (group) child<Control>(*grid, "imgSkupina(1)")->click();
            look(book.run);
        });
}

TEST(Looks, GridInUse) {
    const struct {
        const char *name, *way;
    } ways[] = {
        {"sit-ukazovani", "hover:imgFoto(7) hover:imgFoto(8) hover:imgFoto(9)"},
        {"sit-vyber",
         "hover:imgFoto(3) click:imgFoto(3) hover:imgFoto(4) hover:imgFoto(20) click:imgBtnHlavni(0) "
         "click:imgFoto(20) hover:imgFoto(5) click:imgFoto(20) hover:imgFoto(5) click:imgFoto(5) "
         "click:300,580 hover:imgFoto(6) double:imgFoto(12) hover:imgFoto(6) click:imgFoto(30) "
         "double:imgFoto(30) hover:imgFoto(6)"},
        {"sit-skupiny",
         "click:imgFoto(50) click:imgBtnHlavni(0) click:imgSkupina(3) hover:imgFoto(9) click:imgFoto(50) "
         "hover:imgFoto(9) over pop Space click:imgBtnHlavni(2) click:imgSkupina(1) click:imgSkupina(1) "
         "click:imgFoto(13) click:imgFoto(15) click:imgSkupina(2) click:imgSkupina(0) click:imgCela "
         "click:imgSkupina(0) click:300,580"},
        {"sit-klavesami",
         "Right Right Down Return Space Tab Return 4 Shift+Tab Shift+Tab Return Left Return 0 Escape"}};
    walkEach(ways, [](const auto&, const Look& look) {
        Browse book;
        book.change("DELETE FROM Recepty WHERE ID = 8");
        (new frmSit(book.run))->Zobraz();
        look(book.run);
    });
}

TEST(Looks, Photo) {
    for (const bool slideShow : {false, true})
        explore(slideShow ? "promitani" : "foto", [&](const Look& look) {
            Browse book;
            (new frmFotoBig(book.run))
                ->Zobraz({.photoIds = {1, 2, 3}, .startPosition = 1, .slideShow = slideShow});
            look(book.run);
        });
    // A click or a key within half a second of the last one is the same one.
    const struct {
        const char *name, *way;
    } ways[] = {
        {"foto-mysi",
         "wait:500 click:750,300 wait:500 click:400,550 wait:500 click:400,550 wait:500 "
         "click:400,50 over pop wait:500 click:50,300 wait:500 click:50,300 wait:500 click:400,300"},
        {"foto-v-rychlosti",
         "click:750,300 wait:499 click:750,300 Right wait:1 Right wait:499 Right click:400,300"},
        {"foto-klavesami",
         "wait:500 Left wait:500 Down wait:500 Down wait:500 Right wait:500 Left wait:500 Up Alt+X"},
        {"promitani-klavesami", "tick tick over tick pop tick wait:500 Right Space tick Space Escape"}};
    walkEach(ways, [](const auto& one, const Look& look) {
        Browse book;  // whose fourth photo is there, the eighth cut off
        book.writePhoto("foto/Recepty/r4.bmp");
        book.writePhoto("foto/Recepty/r8.bmp", {300, 200});
        (void)QFile::resize(book.folder.filePath(u"foto/Recepty/r8.bmp"_s), 5000);
        QPointer<frmFotoBig> viewer = new frmFotoBig(book.run);
        test::alsoTold = [viewer] {  // the arrow that says what a click does
            const QImage cursor = viewer ? viewer->cursor().pixmap().toImage() : QImage();
            return QStringList(u"cursor "_s + (cursor.isNull() ? u"none"_s : cursor.pixelColor(3, 3).name()));
        };
        viewer->Zobraz(
            {.photoIds = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, .slideShow = one.name[0] == 'p'});
        look(book.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
