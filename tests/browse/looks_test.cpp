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
using test::walkAll;

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
    void change(const QString& statements) {
        for (const QString& one : statements.split(u';', Qt::SkipEmptyParts)) run.database.Execute(one);
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
    walkAll("cesty-seznamu", [](const QString& what, const Look& look) {
        Browse book;
        book.change(what.section(u" ! "_s, 1));
        const QString list = what.section(u" ! "_s, 0, 0);
        book.list(list.section(u' ', 1), list.section(u' ', 0, 0));
        look(book.run);
    });
}

TEST(Looks, Grid) {
    for (const int group : {0, 2})
        exploreOrLook(!group, group ? "sit-skupina" : "sit", [&](const Look& look) {
            Browse book;
            if (group) book.change(u"INSERT INTO Kniha (Nazev, Hodnota) VALUES ('Skupina3', 'Na oslavu')"_s);
            auto* grid = new frmSit(book.run);
            grid->Zobraz();
            if (group) child<Control>(*grid, "imgSkupina(1)")->click();
            look(book.run);
        });
}

TEST(Looks, GridInUse) {
    walkAll("cesty-mrizky", [](const QString&, const Look& look) {
        Browse book;
        book.change(u"DELETE FROM Recepty WHERE ID = 8"_s);
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
    walkAll("cesty-fotek", [](const QString& what, const Look& look) {
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
            {.photoIds = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, .slideShow = what == u"promitani"});
        look(book.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
