#pragma once

#include <QTemporaryDir>
#include <QTest>

#include "kitchen/goods.h"
#include "kitchen/shoppingstore.h"
#include "screens/kitchen/ticklist.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/recipedatabase.h"
#include "support/smallbook.h"

namespace sarne {

/// A run on the small book; the user's things are kept in a file.
class KitchenRun : public FakeSarne {
  public:
    KitchenRun() {
        database.Open(test::writeRecipeDatabase(folder_.filePath(u"Sarne.drc"_s), test::smallBook()));
        userFile = UserFile(folder_.filePath(u"vlastni.db"_s));
        (void)test::write(folder_.filePath(u"foto/Male/r5.bmp"_s), test::plain({80, 60}, Qt::darkRed));
        MediaRoot = LogicalPaths::fromNativeFolder(folder_.path());
    }

    UserFile& file() { return userFile; }

  private:
    QTemporaryDir folder_;
};

/// What recipe 5 needs for four.
inline ShoppingList shoppingList(KitchenRun& run) {
    ShoppingList list;
    list.addRecipe(
        shoppingNeeds(readIngredients(run.database, 5), Goods(run.database), {5, u"Kapr na kmíně"_s, 4}, 4));
    return list;
}

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
