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
        for (const char* photo : {"foto/Velke/r5.bmp", "foto/Podklad/r5.bmp", "foto/vino256.bmp"})
            (void)test::write(folder.filePath(QLatin1String(photo)), test::plain({80, 60}, Qt::darkRed));
    }
    void show(std::int16_t id, int section) {
        form->Skryj();
        open(id);
        form->openSection(section);
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

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
