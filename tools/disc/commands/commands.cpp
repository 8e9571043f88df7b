#include "commands.h"

#include <QCommandLineParser>
#include <cstdio>

#include "../nearword.h"

namespace sarne::disc {
namespace {

struct Command {
    const char* name;
    const char* what;
    int (*run)(const QStringList&);
};

constexpr Command kCommands[] = {
    {"novy", "založí malou kuchařku, která se hned dá sestavit", createDisc},
    {"recept", "přidá recept: zeptá se a napíše soubor s vysvětlivkami", createRecipe},
    {"zkontroluj", "řekne všechny chyby najednou", checkCommand},
    {"sestav", "sestaví disk; vyrábí jen to, co se změnilo", buildCommand},
    {"ukaz", "otevře program na rozepsaném disku a ukazuje každou uloženou změnu", showDisc},
    {"vydej", "hotový disk: všechny kontroly, seznam souborů, složka nebo obraz ISO", releaseDisc},
    {"dovez", "recept z uložené webové stránky, z Cooklangu nebo z prostého textu", importRecipe},
    {"vyvez", "recepty jako JSON-LD, Cooklang nebo Markdown", exportDisc}};

void usage(std::FILE* to) {
    std::fputs("Použití: sarne-disc PŘÍKAZ [volby] [SLOŽKA]\n\n", to);
    for (const Command& command : kCommands) std::fprintf(to, "  %-11s %s\n", command.name, command.what);
    std::fputs("\nNápověda k příkazu: sarne-disc PŘÍKAZ --help\n", to);
}

}  // namespace

int runCommand(const QStringList& arguments) {
    const QString name = arguments.value(0);
    if (name.isEmpty() || name == QStringLiteral("--help") || name == QStringLiteral("-h")) {
        usage(name.isEmpty() ? stderr : stdout);
        return name.isEmpty() ? 2 : 0;
    }
    if (name.startsWith(u'-')) return buildCommand(arguments);
    QStringList known;
    for (const Command& command : kCommands) {
        if (name == QLatin1String(command.name)) return command.run(arguments.mid(1));
        known << QLatin1String(command.name);
    }
    complain(QStringLiteral("sarne-disc: příkaz „%1“ tu není%2").arg(name, didYouMean(name, known)));
    usage(stderr);
    return 2;
}

void addProjectOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument(QStringLiteral("SLOŽKA"), QStringLiteral("kde kuchařka leží; jinak tady"),
                                 QStringLiteral("[SLOŽKA]"));
    parser.addOptions(
        {{QStringLiteral("content"), QStringLiteral("složka s texty"), QStringLiteral("složka")},
         {QStringLiteral("art"), QStringLiteral("složka s obrazovými předlohami"), QStringLiteral("složka")},
         {QStringLiteral("out"), QStringLiteral("kam se staví; jinak „hotovo“"), QStringLiteral("složka")},
         {QStringLiteral("podklad"),
          QStringLiteral("hotový disk, z něhož jsou obrazovky a hudba; „nic“: nakreslí se"),
          QStringLiteral("složka")},
         {QStringLiteral("rcc"), QStringLiteral("překladač zdrojů Qt"), QStringLiteral("soubor")}});
}

bool parseLine(QCommandLineParser& parser, const char* command, const QStringList& arguments, int& code) {
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("vypíše tuto nápovědu")});
    const QStringList line = QStringList{QStringLiteral("sarne-disc ") + QLatin1String(command)} + arguments;
    code = 0;
    if (!parser.parse(line)) {
        complain(QStringLiteral("sarne-disc %1: %2").arg(QLatin1String(command), parser.errorText()));
        code = 2;
        return false;
    }
    if (!parser.isSet(QStringLiteral("help"))) return true;
    QString text = parser.helpText();
    text.replace(QCoreApplication::applicationFilePath(), line.first());
    // The toolkit's own words, of which a system may have no translation.
    for (const auto& [foreign, ours] : {std::pair("Usage:", "Použití:"),
                                        {"[options]", "[volby]"},
                                        {"\nOptions:", "\nVolby:"},
                                        {"\nArguments:", "\nCo se píše za příkaz:"}})
        text.replace(QLatin1String(foreign), QString::fromUtf8(ours));
    std::fputs(qUtf8Printable(text), stdout);
    return false;
}

Project projectOf(const QCommandLineParser& parser, int word) {
    Project project = projectIn(parser.positionalArguments().value(word, QStringLiteral(".")));
    const auto take = [&](const char* option, QString& folder) {
        const QString value = parser.value(QLatin1String(option));
        if (!value.isEmpty()) folder = QFileInfo(value).absoluteFilePath();
    };
    take("content", project.content);
    take("art", project.art);
    take("out", project.out);
    take("podklad", project.base);
    take("rcc", project.rcc);
    if (parser.value(QStringLiteral("podklad")) == QStringLiteral("nic")) project.base.clear();
    return project;
}

void say(const QString& line) {
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void complain(const QString& line) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
