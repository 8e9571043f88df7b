#include "tellproblems.h"

#include <QFile>
#include <QRegularExpression>
#include <cstdio>

namespace sarne::disc {
namespace {

/// How long a paragraph may be in which the quoted words are looked for.
constexpr int kParagraph = 30;

QStringList linesOf(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(opened.readAll()).split(u'\n');
}

/// The sign to look for where a problem quotes nothing as it stands in the file.
constexpr std::pair<const char*, const char*> kMarks[] = {
    {"rovné nebo cizí", "\""}, {"odkaz nemá konec", "["}, {"tučné písmo", "**"}};

/// What a text quotes, the first words first, and what stands behind its last colon.
QStringList quoted(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("„([^“]+)“"));
    QStringList found;
    for (auto all = pattern.globalMatch(text); all.hasNext();) found << all.next().captured(1);
    if (const qsizetype colon = text.lastIndexOf(QLatin1String(": ")); colon >= 0)
        found << text.mid(colon + 2).trimmed();
    // The key is named first, but its value is what is wrong.
    if (text.contains(QStringLiteral("nemůže být")) && found.size() > 1) found.swapItemsAt(0, 1);
    for (const auto& [begin, mark] : kMarks)
        if (text.startsWith(QString::fromUtf8(begin))) found << QString::fromUtf8(mark);
    found.removeIf([](const QString& words) { return words.isEmpty(); });
    return found;
}

struct Advice {
    const char* begin;
    const char* right;
};

/// By how the problem's text begins or goes on.
constexpr Advice kAdvice[] = {
    {"chybí jednotka", "správně třeba „20 g = 2 lžíce“ nebo „1 ks“"},
    {"chybí číslo", "správně třeba „1 ks“; bez čísla jen „podle chuti“"},
    {"surovina bez množství", "správně třeba „máslo: 60 g = 4 lžíce“ nebo „sůl: podle chuti“"},
    {"chybí množství na lžíce", "za váhu napište totéž na lžíce, hrnky nebo kusy: „60 g = 4 lžíce“"},
    {"lzice.txt neříká", "do lzice.txt přidejte řádek jako „máslo: lžíce 15 g; hrnek 240 g“"},
    {"potraviny.txt neříká",
     "do potraviny.txt přidejte řádek jako „máslo: 740 kcal; 1 g bílkovin; alergeny 7“"},
    {"obchod.txt neříká", "jméno připište v obchod.txt do jednoho z oddělení"},
    {"hledání: slov", "přidejte do hledani.txt slova, jedno na řádek"},
    {"slov je", "přidejte do hledani.txt slova, jedno na řádek, nebo zmenšete číslo v kniha.txt"},
    {"neznámé upřesnění", "nové upřesnění patří do upresneni.txt"},
    {"pomůcky:", "nová pomůcka patří do pomucky.txt"},
    {"vína:", "nové víno patří do vina.txt: „jméno | druh“"},
    {"odkazy:", "nový pomocný recept patří do odkazy/"},
    {"odkaz nikam", "heslo toho jména patří do hesla/, nebo odkaz napište „[slovo -> heslo]“"},
    {"odkaz nemá konec", "odkaz se píše „[slovo]“ nebo „[slovo -> heslo]“"},
    {"tučné písmo nebo kurziva nekončí", "tučné je „**slovo**“, kurziva „_slovo_“"},
    {"slovo, které slovník nezná", "opravte je, nebo je připište do slovnik.txt"},
    {"rovné nebo cizí uvozovky", "správně jsou „takto“"},
    {"váha a lžíce se liší", "opravte jedno z množství, nebo váhu lžíce v lzice.txt"},
    {"za krokem", "kroky se číslují po jedné od 1"},
    {"teplota bez", "za teplotu napište „ °C“"},
    {"v hlavičce chybí", "na začátek souboru přidejte řádek „klíč: hodnota“"},
    {"chybí text části", "pod nadpis části napište aspoň větu, nebo ji v kniha.txt vyškrtněte z „povinné“"},
    {"surovin je", "počet určuje „surovin“ v kniha.txt"},
    {"mezi surovinami není", "v suroviny.txt se značí „jméno | značka“; „hlavní surovina“ je v kniha.txt"},
    {"soubor začíná číslem", "přejmenujte jej na volné číslo, třeba „07-jmeno.txt“"},
    {"tohle není téma", "správně „téma 5: Teplá jídla“"},
    {"odsazení má být", "položka je o dvě mezery dál než to, do čeho patří"},
    {"k receptu",
     "přidejte do menu.txt položku s některým z jeho štítků, nebo jemu štítek, který menu.txt zná"},
    {"postup nejmenuje", "napište ji do postupu, nebo jak se tam jmenuje, do tvary.txt"},
    {"postup potřebuje pomůcku", "připište ji do řádku „pomůcky“"},
    {"minut nesouhlasí", "celek je nejvýš příprava a vaření dohromady, nejméně delší z nich"},
    {"desetinná tečka", "správně desetinná čárka"},
    {"desetinné číslo", "správně třeba „0,5 lžičky“"},
    {"žádný recept nepoužívá", "smažte řádek, nebo ji použijte"},
    {"nemá žádný recept", "opravte štítek, nebo položku z menu.txt vyškrtněte"},
    {"fotografie jídla",
     "položte vedle receptu obrázek stejného jména (01-smazenice.jpg); zatím je tam talíř se jménem"},
    {"soubor není v UTF-8", "uložte jej v editoru jako UTF-8"}};

bool lookIn(const QStringList& lines, const QString& words, Spot& spot) {
    for (int i = spot.place.line - 1; i < lines.size() && i < spot.place.line + kParagraph; ++i) {
        if (i > spot.place.line - 1 && lines[i].trimmed().isEmpty()) return false;
        const qsizetype at = lines[i].indexOf(words, 0, Qt::CaseInsensitive);
        if (at < 0) continue;
        spot = {{spot.place.file, i + 1}, static_cast<int>(at) + 1, lines[i]};
        return true;
    }
    return false;
}

void tell(const QString& root, const Problem& problem) {
    const Spot spot = spotOf(root, problem);
    const QString advice = adviceFor(problem.text);
    std::printf("%s:%d:%d: %s%s%s%s\n", qUtf8Printable(spot.place.file), spot.place.line, spot.column,
                problem.isError ? "" : "nehotové: ", qUtf8Printable(problem.text),
                advice.isEmpty() ? "" : "; ", qUtf8Printable(advice));
    if (spot.line.trimmed().isEmpty()) return;
    std::printf("    %s\n    %s^\n", qUtf8Printable(spot.line),
                qUtf8Printable(QString(spot.column - 1, u' ')));
}

}  // namespace

Spot spotOf(const QString& root, const Problem& problem) {
    Spot spot{problem.place, 1, {}};
    const QStringList lines = linesOf(root + u'/' + problem.place.file);
    if (problem.place.line < 1 || problem.place.line > lines.size()) return spot;
    spot.line = lines[problem.place.line - 1];
    for (const QString& words : quoted(problem.text))
        if (lookIn(lines, words, spot)) return spot;
    return spot;
}

QString adviceFor(const QString& text) {
    if (text.contains(QLatin1String("mysleli jste")) || text.contains(QStringLiteral("patří"))) return {};
    for (const Advice& one : kAdvice)
        if (text.contains(QString::fromUtf8(one.begin))) return QString::fromUtf8(one.right);
    return {};
}

qsizetype tellProblems(const QString& root, const Problems& problems) {
    qsizetype errors = 0;
    for (const bool isError : {false, true})
        for (const Problem& problem : problems.all()) {
            if (problem.isError != isError) continue;
            tell(root, problem);
            errors += isError;
        }
    return errors;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
