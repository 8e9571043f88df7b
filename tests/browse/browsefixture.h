#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

#include "core/logicalpath.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run with a small cookbook: recipes "Recept 001" on, two wines for the odd ones, three quick recipes, two
/// help topics, and photos where a test puts them.
class BrowseTest : public testing::Test {
  protected:
    static constexpr int kRecipes = 50;

    BrowseTest() {
        run.database.Open(test::writeRecipeDatabase(folder.filePath(u"Sarne.drc"_s), cookbook()));
        run.MediaRoot = LogicalPaths::fromNativeFolder(folder.path());
    }

    static QStringList cookbook() {
        QStringList rows;
        for (int id = 1; id <= kRecipes; ++id)
            rows << u"INSERT INTO Recepty (ID, Nazev) VALUES (%1, 'Recept %2')"_s.arg(id).arg(
                id, 3, 10, QLatin1Char('0'));
        rows << u"INSERT INTO Vino (ID, Polozka) VALUES (1, 'Ryzlink rýnský'), (2, 'Pálava')"_s
             << u"INSERT INTO SpojVino SELECT ID, 1 FROM Recepty WHERE ID % 2 = 1"_s
             << u"INSERT INTO SpojVino SELECT ID, 2 FROM Recepty WHERE ID % 2 = 1"_s
             << u"INSERT INTO RychleRecepty (ID, Nazev, Recept) VALUES (1, 'Za deset minut', 29), "
                "(2, 'Ze skříně', 32), (3, 'Nikam', NULL)"_s
             << u"INSERT INTO Help (ID, Nazev, Recept) VALUES (1, 'Seznam receptů', 310), "
                "(2, 'Fotografie', 5)"_s;
        return rows;
    }

    /// Puts a photo of one colour at \a path below the media root.
    void writePhoto(const char* path, QSize size = {40, 30}, const QColor& color = Qt::red) const {
        ASSERT_TRUE(test::write(folder.filePath(QString::fromLatin1(path)), test::plain(size, color), "BMP"));
    }

    static void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    /// A key typed where the keyboard is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(run.window.focusWidget(), key, modifiers);
    }

    QTemporaryDir folder;
    FakeSarne run;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
