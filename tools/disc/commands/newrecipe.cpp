#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>

#include "../recipefile.h"
#include "ask.h"
#include "commands.h"
#include "core/gridtable.h"

namespace sarne::disc {
namespace {

/// The value of an option, or what the user types when asked. Empty when there is none.
QString answer(const QCommandLineParser& parser, const Question& question, QTextStream& typed,
               QTextStream& said) {
    if (!parser.isSet(question.option)) return ask(question, typed, said);
    QString given = question.read(parser.value(question.option).simplified());
    if (given.isEmpty()) complain(QStringLiteral("--%1: %2").arg(question.option, question.hint));
    return given;
}

QString portionsText(const QString& typed) {
    constexpr int kMost = 255;
    const int portions = typed.section(u' ', 0, 0).toInt();
    return portions >= 1 && portions <= kMost ? QString::number(portions) : QString();
}

/// The course that \a typed begins; "pol" is "polévka".
QString courseOf(const QString& typed, const QStringList& courses) {
    QStringList begun;
    for (const QString& course : courses) {
        if (course.compare(typed, Qt::CaseInsensitive) == 0) return course;
        if (course.startsWith(typed, Qt::CaseInsensitive)) begun << course;
    }
    return begun.size() == 1 ? begun.first() : QString();
}

struct NewRecipe {
    QString name;
    QString main;
    int portions = 4;
    QString course;
};

QString recipeText(const NewRecipe& recipe, const BookFacts& facts) {
    const QString& tag = facts.mainMark;
    QString text = QStringLiteral(
                       "; Řádky za středníkem jsou poznámky a na disk nejdou. Fotografie leží vedle tohoto "
                       "souboru a jmenuje se stejně.\n"
                       "název: %1\n"
                       "dlouhý název: %1\n"
                       "porce: %2\n"
                       "; Minuty: práce rukama, vaření vedle ní nebo po ní, celkem od začátku ke stolu.\n"
                       "příprava: 20\n"
                       "vaření: 20\n"
                       "minut: 40\n"
                       "; snadné, střední, náročné\n"
                       "obtížnost: snadné\n"
                       "%4"
                       "mrazit: ne\n"
                       "vydrží: 1 den v chladu\n"
                       "sezona: celoročně\n"
                       "chod: %3\n")
                       .arg(recipe.name)
                       .arg(recipe.portions)
                       .arg(recipe.course, facts.needs("kosti") ? QStringLiteral("kosti: ne\n") : QString());
    text += QStringLiteral("; Štítky, podle kterých vybírá menu.txt, mají klíče: %1.\n")
                .arg(facts.tagKeys.join(QStringLiteral(", ")));
    if (facts.tagKeys.contains(tag)) text += QStringLiteral("%1: %2\n").arg(tag, recipe.main);
    text += QStringLiteral(
                "; Volitelně: předem, pomůcky, vína, odkazy (jména ze seznamů), výřez (bod fotografie v "
                "procentech: 30 60).\n"
                "\n== Suroviny\n"
                "; jméno, upřesnění: množství podle váhy = totéž na lžíce, hrnky nebo kusy, nebo náhrada\n"
                "%1: 400 g = 4 ks\n"
                "sůl: podle chuti\n"
                "\n== Úvod\n"
                "Odkud jídlo je a čím je dobré.\n"
                "\n== Postup\n"
                "1. Připravíme, co je třeba: %1.\n\n"
                "2. Osolíme a upečeme.\n"
                "\n== Jak podávat\n"
                "S přílohou.\n")
                .arg(recipe.main);
    return text;
}

bool writeNew(const QString& file, const QString& text) {
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    return out.open(QIODevice::WriteOnly | QIODevice::NewOnly) && out.write(text.toUtf8()) >= 0;
}

}  // namespace

int createRecipe(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Napíše soubor nového receptu. Na co neodpovídá volba, na to se zeptá."));
    addProjectOptions(parser);
    parser.addOptions(
        {{QStringLiteral("nazev"), QStringLiteral("jak se jídlo jmenuje"), QStringLiteral("text")},
         {QStringLiteral("hlavni"), QStringLiteral("hlavní surovina"), QStringLiteral("jméno")},
         {QStringLiteral("porce"), QStringLiteral("pro kolik"), QStringLiteral("číslo")},
         {QStringLiteral("chod"), QStringLiteral("který chod"), QStringLiteral("chod")}});
    int code = 0;
    if (!parseLine(parser, "recept", arguments, code)) return code;
    const Project project = projectOf(parser);
    const ReadBook read(project);
    const BookFacts& facts = read.book.facts;
    const QString courses = facts.courses.join(QStringLiteral(", "));
    const auto asItIs = [](const QString& typed) { return typed; };
    QStringList answers;
    QTextStream typed(stdin), said(stdout);
    for (const Question& question :
         {Question{QStringLiteral("nazev"),
                   QStringLiteral("Jak se jídlo jmenuje?"),
                   {},
                   asItIs,
                   QStringLiteral("Bez názvu to nejde; třeba „Bramboračka“.")},
          Question{QStringLiteral("hlavni"),
                   QStringLiteral("Hlavní surovina?"),
                   {},
                   asItIs,
                   QStringLiteral("Napište surovinu, která v jídle nesmí chybět; třeba „brambory“.")},
          Question{QStringLiteral("porce"), QStringLiteral("Pro kolik lidí?"), QStringLiteral("4"),
                   portionsText, QStringLiteral("Napište číslo od 1 do 255.")},
          Question{QStringLiteral("chod"), QStringLiteral("Chod (%1)?").arg(courses), facts.courses.value(1),
                   [&](const QString& text) { return courseOf(text, facts.courses); },
                   QStringLiteral("Chod je jeden z těchto: %1.").arg(courses)}}) {
        answers << answer(parser, question, typed, said);
        if (answers.last().isEmpty()) {
            complain(
                QStringLiteral("Recept nevznikl: potřebuje název, hlavní surovinu, počet porcí a chod."));
            return 2;
        }
    }
    const RecipePlace place = recipePlace(read.book, answers[3], answers[0]);
    const NewRecipe recipe{answers[0], answers[1], answers[2].toInt(), place.courses};
    const QString file = QStringLiteral("recepty/%1.txt").arg(place.stem);
    if (!writeNew(project.content + u'/' + file, recipeText(recipe, facts))) {
        complain(QStringLiteral("Soubor %1 nejde zapsat.").arg(file));
        return 1;
    }
    const QString mark = facts.mainMark.isEmpty() ? QString() : QStringLiteral(" | ") + facts.mainMark;
    const QStringList added =
        addToList(project.content + QStringLiteral("/suroviny.txt"), {recipe.main}, mark) +
        addToList(project.content + QStringLiteral("/suroviny.txt"), {QStringLiteral("sůl")});
    say(QStringLiteral("Recept je v %1; doplňte jej a zkontrolujte: sarne-disc zkontroluj").arg(file));
    if (file.section(u'/', 1).section(u'-', 0, 0).toInt() > kGridCells)
        say(QStringLiteral(
            "Mřížka fotografií už pro tento chod místo nemá; k receptu vedou nabídky a hledání."));
    if (!added.isEmpty())
        say(QStringLiteral("Do suroviny.txt přibylo: %1").arg(added.join(QStringLiteral(", "))));
    return 0;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
