#include "recipe/recipefixture.h"
#include "support/kept.h"

namespace sarne {
namespace {

// What is taken along as text, string for string.
TEST_F(RecipeTest, CollectedGolden) {
    run.database.Execute(u"UPDATE Recepty SET Vlastni = 'Méně soli.\nVíc kmínu.' WHERE ID = 5"_s);
    form->Skryj();
    open(5);
    QString all = form->collectedText();
    click("imgBtn(5)");
    customPortions = 2.5;
    click("imgPrepocet(10)");
    click("imgKgLzice");
    all += u"\n--\n"_s + form->collectedText();
    form->Skryj();
    open(6);
    all += u"\n--\n"_s + form->collectedText();  // no tools, no links
    form->Skryj();
    open(-7);
    EXPECT_EQ(form->collectedText(), QString()) << "no such recipe";
    test::expectText(u"sebrane"_s, all.replace(u'\r', u'␍'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
