#include <QCommandLineParser>
#include <QRegularExpression>

#include "build.h"
#include "commands.h"
#include "progressline.h"
#include "tellproblems.h"

namespace sarne::disc {
namespace {

QString countText(qsizetype count) {
    return count == 0   ? QStringLiteral("bez chyby")
           : count == 1 ? QStringLiteral("1 chyba")
           : count < 5  ? QStringLiteral("%1 chyby").arg(count)
                        : QStringLiteral("%1 chyb").arg(count);
}

/// Says what is wrong; the process's code.
int finish(const Project& project, const Problems& problems) {
    tellProblems(project.content, problems);
    for (const QString& note : problems.notes())
        if (!note.contains(QRegularExpression(QStringLiteral("^[^ ]+:\\d+: ")))) say(note);
    return problems.hasErrors() ? 1 : 0;
}

}  // namespace

int buildCommand(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sestaví databáze, obrázky, zvuky a videa kuchařky z jejích textů "
                       "a předloh. Vyrábí jen to, co se změnilo."));
    addProjectOptions(parser);
    parser.addOptions(
        {{QStringLiteral("film"), QStringLiteral("jen jeden film: číslo nebo „uvod“"),
          QStringLiteral("název")},
         {QStringLiteral("vydani"), QStringLiteral("k vydání: co není hotové, je chyba")},
         {QStringLiteral("kompaktni"), QStringLiteral("JPEG, Opus a H.264 (bez --content samozřejmé)")},
         {QStringLiteral("plny"),
          QStringLiteral("BMP, WAV a AVI: disk desetkrát větší, pro staré přehrávače")}});
    int code = 0;
    if (!parseLine(parser, "sestav", arguments, code)) return code;
    Project project = projectOf(parser);
    const bool isPlain = !parser.isSet(QStringLiteral("content"));
    project.kind =
        !parser.isSet(QStringLiteral("plny")) && (isPlain || parser.isSet(QStringLiteral("kompaktni")))
            ? DiscKind::Compact
            : DiscKind::Full;
    if (parser.isSet(QStringLiteral("vydani"))) project.edition = Edition::release;
    Problems problems(project.edition);
    ProgressLine progress;
    buildDisc(project, parser.value(QStringLiteral("film")), problems, &progress);
    progress.finish(problems.hasErrors() ? QStringLiteral("Nesestaveno")
                                         : QStringLiteral("Sestaveno v ") + project.out);
    return finish(project, problems);
}

int checkCommand(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Řekne všechny chyby najednou: soubor, řádek, sloupec, co je špatně a co by bylo správně."));
    addProjectOptions(parser);
    parser.addOption({QStringLiteral("vydani"), QStringLiteral("co není hotové, je chyba")});
    int code = 0;
    if (!parseLine(parser, "zkontroluj", arguments, code)) return code;
    Project project = projectOf(parser);
    if (parser.isSet(QStringLiteral("vydani"))) project.edition = Edition::release;
    QElapsedTimer since;
    since.start();
    Problems problems(project.edition);
    checkDisc(project, problems);
    code = finish(project, problems);
    const qsizetype unfinished = problems.all().size() - problems.errors().size();
    say(QStringLiteral("%1, nehotového: %2 (%3)")
            .arg(countText(problems.errors().size()))
            .arg(unfinished)
            .arg(durationText(since.elapsed())));
    return code;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
