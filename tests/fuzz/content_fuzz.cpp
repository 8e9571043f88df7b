// Any bytes as a recipe of the content: no crash, no endless loop; what is wrong is told.
#include <cstdlib>

#include "disc/checks.h"
#include "disc/readrecipes.h"
#include "disc/smallcookbook.h"
#include "disc/steps.h"

using namespace sarne::disc;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

/// The small cookbook, whose only recipe is replaced by others; what stands beside it is read once.
struct Kitchen {
    SmallCookbook files;
    Problems problems;
    ContentFolder folder{files.path(), problems};
    Cookbook rest = loadCookbook(folder, problems);
    Stems stems = readStems(folder, problems);
    QString recipe =
        QDir(files.path(QStringLiteral("recepty"))).entryInfoList(QDir::Files).first().filePath();

    Kitchen() { rest.recipes.clear(); }
};

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const Kitchen kitchen;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (!sarne::test::write(kitchen.recipe, bytes)) std::abort();
    Problems problems;
    Cookbook book = kitchen.rest;
    readRecipes(ContentFolder(kitchen.files.path(), problems), book, problems);
    for (Recipe& recipe : book.recipes) recipe.steps = cookingSteps(book, kitchen.stems, recipe, problems);
    checkCookbook(book, kitchen.stems, problems);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
