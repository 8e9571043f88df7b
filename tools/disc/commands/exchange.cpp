#include "../exchange/booknames.h"

#include <QCommandLineParser>
#include <QFile>
#include <QRegularExpression>

#include "../exchange/cooklang.h"
#include "../exchange/jsonld.h"
#include "../exchange/markdown.h"
#include "../exchange/pastedtext.h"
#include "../recipefile.h"
#include "commands.h"

namespace sarne::disc {
namespace {

constexpr qint64 kLargestFile = 20'000'000;

QString textIn(const QString& name) {
    QFile file(name);
    const bool isOpen = name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    return isOpen ? QString::fromUtf8(file.read(kLargestFile)) : QString();
}

/// Cooklang may leave the name to the file: "rybizovy-rez.cook".
void nameAfter(const QString& file, SharedRecipe& recipe) {
    static const QRegularExpression blanks(QStringLiteral("[-_ ]+"));
    recipe.name = QFileInfo(file).completeBaseName().replace(blanks, QStringLiteral(" "));
    recipe.head << QStringLiteral("; ??? název je ze jména souboru, doplňte háčky a čárky");
}

/// By what the text looks like, whatever the file is called.
SharedRecipe readShared(const QString& text, const QString& name, const QStringList& units) {
    if (const auto recipe = fromJsonLd(text, units)) return *recipe;
    static const QRegularExpression mark(QStringLiteral("@[\\p{L}][^@{}\\n]*\\{|^>> ?\\w"),
                                         QRegularExpression::MultilineOption);
    if (name.endsWith(QLatin1String(".cook")) || mark.match(text).hasMatch()) {
        SharedRecipe recipe = fromCooklang(text, units);
        if (recipe.name.isEmpty()) nameAfter(name, recipe);
        return recipe;
    }
    return fromPastedText(text, units);
}

/// What the ingredients name and the book's lists lack is added to them.
void completeLists(const SharedRecipe& recipe, const QString& content) {
    QStringList names, refinements;
    for (const SharedIngredient& one : recipe.ingredients) {
        names << one.name.section(u',', 0, 0).trimmed() << one.alternative;
        refinements << one.name.section(u',', 1).trimmed();
    }
    const QStringList added = addToList(content + QStringLiteral("/suroviny.txt"), names);
    const QStringList more = addToList(content + QStringLiteral("/upresneni.txt"), refinements);
    if (!added.isEmpty())
        say(QStringLiteral("Do suroviny.txt přibylo: %1").arg(added.join(QStringLiteral(", "))));
    if (!more.isEmpty())
        say(QStringLiteral("Do upresneni.txt přibylo: %1").arg(more.join(QStringLiteral(", "))));
}

bool writeFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray inFormat(const SharedRecipe& recipe, const QString& format) {
    if (format == u"json") return toJsonLd(recipe);
    return (format == u"cook" ? toCooklang(recipe) : toMarkdown(recipe)).toUtf8();
}

}  // namespace

int importRecipe(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Udělá soubor receptu z uložené webové stránky (schema.org/Recipe), z Cooklangu nebo z prostého "
        "textu; „-“ je vložený text. Řádky „; ???“ říkají, kde se má člověk podívat."));
    parser.addPositionalArgument(QStringLiteral("SOUBOR"), QStringLiteral("co se má dovézt"));
    addProjectOptions(parser);
    parser.addOption({QStringLiteral("chod"), QStringLiteral("který chod to je"), QStringLiteral("chod")});
    int code = 0;
    if (!parseLine(parser, "dovez", arguments, code)) return code;
    const QStringList words = parser.positionalArguments();
    const QString text = words.isEmpty() ? QString() : textIn(words.first());
    if (text.trimmed().isEmpty()) {
        complain(QStringLiteral("sarne-disc dovez: soubor s receptem chybí, nebo je prázdný"));
        return 2;
    }
    const Project project = projectOf(parser, 1);
    const ReadBook read(project);
    SharedRecipe recipe = readShared(text, words.first(), read.book.unitForms.keys());
    Problems told;
    useBookNames(read.book, recipe, readStems(read.folder, told));
    if (!recipe.name.isEmpty()) recipe.name[0] = recipe.name[0].toUpper();
    const QString course = parser.isSet(QStringLiteral("chod")) ? parser.value(QStringLiteral("chod"))
                                                                : read.book.facts.courses.value(1);
    const RecipePlace place = recipePlace(read.book, course, recipe.name);
    if (!recipe.head.join(u'\n').contains(QStringLiteral("chod:")))
        recipe.head << QStringLiteral("chod: ") + place.courses
                    << QStringLiteral("; ??? štítky, podle kterých vybírá menu.txt, mají klíče: ") +
                           read.book.facts.tagKeys.join(QStringLiteral(", "));
    const QString file = QStringLiteral("recepty/%1.txt").arg(place.stem);
    if (!writeFile(project.content + u'/' + file, recipeFile(recipe).toUtf8())) {
        complain(QStringLiteral("Soubor %1 nejde zapsat.").arg(file));
        return 1;
    }
    completeLists(recipe, project.content);
    say(QStringLiteral(
            "%1: surovin %2, kroků %3. Podívejte se na řádky „; ???“ a zkontrolujte: sarne-disc zkontroluj")
            .arg(file)
            .arg(recipe.ingredients.size())
            .arg(recipe.steps.size()));
    return 0;
}

int exportDisc(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Vyveze recepty do složky, každý do svého souboru."));
    addProjectOptions(parser);
    parser.addOptions(
        {{QStringLiteral("jako"),
          QStringLiteral("json (schema.org/Recipe), cook (Cooklang) nebo md (Markdown)"),
          QStringLiteral("formát"), QStringLiteral("json")},
         {QStringLiteral("recept"), QStringLiteral("jen recept tohoto čísla"), QStringLiteral("číslo")},
         {QStringLiteral("kam"), QStringLiteral("složka"), QStringLiteral("složka"),
          QStringLiteral("vyvoz")}});
    int code = 0;
    if (!parseLine(parser, "vyvez", arguments, code)) return code;
    const Project project = projectOf(parser);
    const QString format = parser.value(QStringLiteral("jako"));
    if (!QStringList{QStringLiteral("json"), QStringLiteral("cook"), QStringLiteral("md")}.contains(format)) {
        complain(QStringLiteral("sarne-disc vyvez: formát je json, cook nebo md"));
        return 2;
    }
    Problems problems;
    const ContentFolder folder(project.content, problems);
    const QDir target(parser.value(QStringLiteral("kam")));
    target.mkpath(QStringLiteral("."));
    int count = 0;
    for (const QString& file : folder.files(QStringLiteral("recepty"))) {
        const QString stem = QFileInfo(file).completeBaseName();
        const QString only = parser.value(QStringLiteral("recept"));
        if (!only.isEmpty() && stem.section(u'-', 0, 0).toInt() != only.toInt()) continue;
        if (!writeFile(target.filePath(stem + u'.' + format),
                       inFormat(sharedRecipe(folder.read(file)), format))) {
            complain(QStringLiteral("Do složky %1 nejde psát.").arg(target.path()));
            return 1;
        }
        ++count;
    }
    say(QStringLiteral("Vyvezeno receptů: %1, do složky %2").arg(count).arg(target.path()));
    return count > 0 ? 0 : 1;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
