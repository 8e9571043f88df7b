#include <gtest/gtest.h>

#include "cookbook.h"
#include "forms/label.h"
#include "screens/index/frmindex.h"
#include "screens/index/frmsponzor.h"
#include "screens/index/frmstranka.h"
#include "screens/index/frmtabulky.h"

namespace sarne {
namespace {

TEST(TablesTest, WhatIsMissingDoesNotOpen) {
    Cookbook book({});
    EXPECT_FALSE((new frmIndex(book.run))->Zobraz(999));
    EXPECT_FALSE((new frmStranka(book.run))->Zobraz(u"11"_s));
    for (const std::int16_t item : {99, -1}) EXPECT_FALSE((new FrmTabulky(book.run))->Zobraz(item));
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST(GalleryTest, OpensAtTheWantedPictureOrTheFirst) {
    Cookbook book({Cookbook::picture(9, 9, u"Ryby"_s), Cookbook::picture(91, 9, u"Mořské ryby"_s),
                   Cookbook::picture(1, 1, u"O kuchařce"_s)});
    for (const auto& [text, title] :
         {std::pair("", u"Ryby"_s), {"91", u"Mořské ryby"_s}, {"1", u"Ryby"_s}, {"x", u"Ryby"_s}}) {
        auto* form = new frmSponzor(book.run);
        ASSERT_TRUE(form->Zobraz(9, QString::fromUtf8(text)));
        EXPECT_EQ(child<Label>(*form, "lblTitul")->text(), title) << text;
        book.run.PopScreen(*form);
    }
    EXPECT_FALSE((new frmSponzor(book.run))->Zobraz(13, {}));
    EXPECT_TRUE(book.callerIsOnTop());
}

TEST(GalleryTest, IsPrintedToItsLastWord) {
    Cookbook book(
        {Cookbook::picture(9, 9, u"Ryby"_s),
         Cookbook::area(9, {100, 150, 200, 150}, u"Kapr"_s, u"Kapr "_s.repeated(9000) + u"konec."_s, {})});
    auto* form = new frmSponzor(book.run);
    ASSERT_TRUE(form->Zobraz(9, {}));
    child<Control>(*form, "imgBtnHlavni(0)")->click();
    EXPECT_TRUE(book.run.recorded.printedText.contains(u"konec."_s));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
