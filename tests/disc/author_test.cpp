#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "disc/commands/build.h"
#include "disc/commands/commands.h"
#include "disc/commands/tellproblems.h"

namespace sarne::disc {
namespace {

/// An author's disc, begun in a folder of its own.
class AuthorTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(createDisc({folder()}), 0); }

    QString folder() const { return folder_.filePath(QStringLiteral("kniha")); }
    QString path(const char* name) const { return folder() + u'/' + QString::fromUtf8(name); }

    void replace(const char* file, const char* from, const char* to) const {
        QFile opened(path(file));
        ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
        QByteArray text = opened.readAll();
        ASSERT_TRUE(text.contains(from)) << from;
        opened.resize(0);
        opened.seek(0);
        opened.write(text.replace(from, to));
    }

    /// All errors, with their lines and columns.
    std::string check(Edition edition = Edition::draft) const {
        Problems problems(edition);
        checkDisc(project(), problems);
        QStringList all;
        for (const Problem& problem : problems.all()) {
            const Spot spot = spotOf(project().content, problem);
            if (problem.isError)
                all << QStringLiteral("%1:%2:%3 %4")
                           .arg(spot.place.file)
                           .arg(spot.place.line)
                           .arg(spot.column)
                           .arg(problem.text);
        }
        return all.join(u'\n').toStdString();
    }

    Project project() const {
        Project made = projectIn(folder());
        made.base.clear();
        made.rcc = QStringLiteral(SARNE_RCC);
        return made;
    }

    QTemporaryDir folder_;
};

TEST_F(AuthorTest, ANewDiscHasNoFaultsAndIsNeverWrittenOver) {
    EXPECT_EQ(check(), "");
    EXPECT_EQ(createDisc({folder()}), 1);
}

TEST_F(AuthorTest, AllMistakesAreToldAtOnceWhereTheyStand) {
    replace("content/recepty/01-smazenice.txt", "máslo: 45 g", "maslo: 45 g");
    replace("content/recepty/02-nakladane-zampiony.txt", "obtížnost: snadné", "obtížnost: lehké");
    replace("content/hesla/houby.txt", "ve vodě by", "[ve vodě] by");
    EXPECT_EQ(check(),
              "recepty/01-smazenice.txt:24:1 neznámá surovina „maslo“ – mysleli jste „máslo“?\n"
              "recepty/02-nakladane-zampiony.txt:8:1 „obtížnost“ nemůže být „lehké“\n"
              "hesla/houby.txt:4:15 odkaz nikam: „ve vodě“");
}

TEST_F(AuthorTest, ANewRecipeHasNoFaults) {
    ASSERT_EQ(createRecipe({folder(), QStringLiteral("--nazev"), QStringLiteral("Bedla jako řízek"),
                            QStringLiteral("--hlavni"), QStringLiteral("bedly"), QStringLiteral("--porce"),
                            QStringLiteral("2"), QStringLiteral("--chod"), QStringLiteral("teplé")}),
              0);
    EXPECT_TRUE(QFile::exists(path("content/recepty/03-bedla-jako-rizek.txt")));
    EXPECT_EQ(check(), "");
}

}  // namespace
}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
