#include "tellproblems.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <cstdio>
#include <tuple>

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
constexpr std::pair<const char*, const char*> kMarks[] = {{"rovné nebo cizí", "\""},
                                                          {"odkaz nemá konec", "["},
                                                          {"tučné písmo", "**"},
                                                          {"tady se má podívat", "???"}};

/// What a text quotes, the first words first, and what stands behind its last colon; nothing where something
/// is missing, which stands nowhere.
QStringList quoted(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("„([^“]+)“"));
    if (text.startsWith(QStringLiteral("v hlavičce chybí"))) return {};
    QStringList found;
    for (auto all = pattern.globalMatch(text); all.hasNext();) found << all.next().captured(1);
    if (const qsizetype colon = text.lastIndexOf(QLatin1String(": ")); colon >= 0)
        found << text.mid(colon + 2).trimmed();
    // The key is named first, but its value is what is wrong.
    if (text.contains(QStringLiteral("nemůže být")) && found.size() > 1) found.swapItemsAt(0, 1);
    for (const auto& [begin, mark] : kMarks)
        if (text.startsWith(QString::fromUtf8(begin))) found.prepend(QString::fromUtf8(mark));
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
    {"v hlavičce chybí „název", "na začátek souboru přidejte třeba „název: Kulajda“"},
    {"v hlavičce chybí „dlouhý", "přidejte třeba „dlouhý název: Kulajda s houbami a vejcem“"},
    {"v hlavičce chybí „porce", "na začátek souboru přidejte třeba „porce: 4“"},
    {"v hlavičce chybí „minut", "přidejte, kolik minut to trvá od začátku ke stolu, třeba „minut: 45“"},
    {"v hlavičce chybí", "na začátek souboru přidejte řádek toho jména, dvojtečku a hodnotu"},
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
    {"tak se tu nejmenuje", "soubor přejmenujte podle jeho receptu, nebo smažte"},
    {"neznámá surovina", "smažte řádek, nebo jméno připište do suroviny.txt"},
    {"neznámá pomůcka", "smažte řádek, nebo jméno připište do pomucky.txt"},
    {"nenajde žádnou surovinu", "smažte slovo, nebo je opravte podle suroviny.txt"},
    {"není v seznamu", "smažte je, nebo je připište do suroviny.txt či upresneni.txt"},
    {"neznámý druh jednotky", "druh je hmotnost, objem, lžíce, kus nebo volné"},
    {"číslo musí být", "zvolte číslo, které tu ještě není"},
    {"buněk pod", "buňky se oddělují svislou čarou; prázdná smí být"},
    {"buňky pod", "buňky se oddělují svislou čarou; prázdná smí být"},
    {"podíly suroviny", "mají dát 100 %; u poslední zmínky napište „zbytek“, třeba „{máslo: zbytek}“"},
    {"plocha musí ležet", "vlevo a šířka, nahoře a výška dají dohromady nejvýš 1000"},
    {"neexistuje", "opravte jméno či číslo, nebo řádek smažte"},
    {"menu.txt nezná štítek", "přidejte do menu.txt položku jako „Léto => léto“, nebo štítek opravte"},
    {"nemá v knize nabídku", "nabídku mají témata 1 až 6, 8 až 18"},
    {"v rychlých receptech", "do rychle.txt patří jen recepty do 30 minut"},
    {"soubor není v UTF-8", "uložte jej v editoru jako UTF-8"}};

/// Where \a words stand in a line, if need be in other letter cases; behind a name that is written alike.
qsizetype columnOf(const QString& line, const QString& words) {
    const qsizetype behind = std::max<qsizetype>(0, line.indexOf(QLatin1String("=>")));
    for (const qsizetype from : {behind, qsizetype{0}})
        for (const Qt::CaseSensitivity letters : {Qt::CaseSensitive, Qt::CaseInsensitive})
            if (const qsizetype at = line.indexOf(words, from, letters); at >= 0) return at;
    return -1;
}

/// Moves \a spot to the first of \a wanted that its line has, or that a later one of its paragraph has.
bool lookIn(const QStringList& lines, const QStringList& wanted, ProblemSpot& spot) {
    for (int i = spot.place.line - 1; i < lines.size() && i < spot.place.line + kParagraph; ++i) {
        if (i > spot.place.line - 1 && lines[i].trimmed().isEmpty()) return false;
        for (const QString& words : wanted)
            if (const qsizetype at = columnOf(lines[i], words); at >= 0) {
                spot = {{spot.place.file, i + 1}, static_cast<int>(at) + 1, lines[i]};
                return true;
            }
    }
    return false;
}

/// "soubor:řádek:sloupec: "; what concerns a whole file has only its name.
QString locationOf(const ProblemSpot& spot) {
    return spot.place.line < 1
               ? spot.place.file + QStringLiteral(": ")
               : QStringLiteral("%1:%2:%3: ").arg(spot.place.file).arg(spot.place.line).arg(spot.column);
}

void tell(const QString& root, const Problem& problem) {
    const ProblemSpot spot = spotOf(root, problem);
    const QString advice = adviceFor(problem.text);
    std::printf("%s%s%s%s%s\n", qUtf8Printable(locationOf(spot)),
                problem.isError ? "" : "nehotové: ", qUtf8Printable(problem.text),
                advice.isEmpty() ? "" : "; ", qUtf8Printable(advice));
    if (spot.line.trimmed().isEmpty()) return;
    std::printf("    %s\n    %s^\n", qUtf8Printable(spot.line),
                qUtf8Printable(QString(spot.column - 1, u' ')));
}

}  // namespace

ProblemSpot spotOf(const QString& root, const Problem& problem) {
    ProblemSpot spot{problem.place, 1, {}};
    const QStringList lines = linesOf(root + u'/' + problem.place.file);
    if (problem.place.line < 1 || problem.place.line > lines.size()) return spot;
    spot.line = lines[problem.place.line - 1];
    lookIn(lines, quoted(problem.text), spot);
    return spot;
}

QString adviceFor(const QString& text) {
    if (text.contains(QLatin1String("mysleli jste")) || text.contains(QStringLiteral("patří"))) return {};
    for (const Advice& one : kAdvice)
        if (text.contains(QString::fromUtf8(one.begin))) return QString::fromUtf8(one.right);
    return {};
}

qsizetype tellProblems(const QString& root, const Problems& problems) {
    QList<Problem> all = problems.all();
    std::ranges::stable_sort(
        all, {}, [](const Problem& one) { return std::tuple(one.isError, one.place.file, one.place.line); });
    for (const Problem& problem : all) tell(root, problem);
    return std::ranges::count(all, true, &Problem::isError);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
