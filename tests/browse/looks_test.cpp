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

/// A cookbook whose first recipes have photos, and a screen below.
class Browse : public BrowseTest {
  public:
    Browse() {
        for (const char* photo : {"foto/Male/r1.bmp", "foto/Male/r29.bmp", "foto/Velke/r2.bmp",
                                  "foto/sitCela.bmp", "foto/sit1.bmp"})
            writePhoto(photo);
        run.openAbove("frmHlavni");
    }
    using BrowseTest::run;
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
                 {false, "seznam-prazdny", "5", "recepty", {}},
                 {true, "seznam-rychle", "", "RychleRecepty", {Qt::Key_Down}},
                 {false, "seznam-napoveda", "", "Help", {Qt::Key_Down}}};
    for (const auto& one : lists)
        exploreOrLook(one.isExplored, one.name, [&](const Look& look) {
            Browse book;
            book.list(QString::fromLatin1(one.ids), QString::fromLatin1(one.source), one.keys);
            look(book.run);
        });
}

TEST(Looks, Grid) {
    for (const int group : {0, 2})
        exploreOrLook(!group, group ? "sit-skupina" : "sit", [&](const Look& look) {
            Browse book;
            auto* grid = new frmSit(book.run);
            grid->Zobraz();
            if (group) child<Control>(*grid, "imgSkupina(1)")->click();
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
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
