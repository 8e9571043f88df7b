#include "app/condition.h"

#include "core/texts.h"

namespace sarne {
namespace {

void addMissing(const Condition& condition, std::vector<PageAddition>& additions) {
    if (!condition.unreadableBook.isEmpty())
        additions.push_back(
            {Texts::tr("Kuchařku se nepodařilo otevřít"),
             Texts::tr("Soubor %1 chybí nebo je poškozený. Seznamy a texty proto zůstávají prázdné. Pomůže "
                       "nový soubor z disku; Vaše poznámky jsou uložené i mimo něj a vrátí se.")
                 .arg(condition.unreadableBook)});
    if (!condition.missingMedia.isEmpty())
        additions.push_back(
            {Texts::tr("Chybí fotografie, hudba a videa"),
             Texts::tr("Složku %1 se nepodařilo najít. Zkontrolujte, zda je v mechanice vložen "
                       "disk.")
                 .arg(condition.missingMedia)});
}

void addKeptAside(const Condition& condition, std::vector<PageAddition>& additions) {
    if (condition.keptAside.isEmpty()) return;
    additions.push_back(
        {Texts::tr("Odložená kopie"),
         Texts::tr("Soubor s Vašimi údaji byl poškozený, nahradil ho nový. Co se dalo přečíst, je v "
                   "něm; původní soubor zůstal zde:") +
             u'\n' + condition.keptAside.join(u'\n')});
}

void addHomeless(const Condition& condition, std::vector<PageAddition>& additions) {
    if (condition.homeless.empty()) return;
    additions.push_back(
        {Texts::tr("Poznámky k receptům, které zde nejsou"),
         Texts::tr("Kuchařka je zachovala; vrátí se s diskem, na kterém jejich recepty jsou.")});
    for (const KeptNote& note : condition.homeless) additions.push_back({note.name, note.text});
}

}  // namespace

std::vector<PageAddition> helpAdditions(const QString& formName, const Condition& condition) {
    std::vector<PageAddition> additions;
    const bool main = formName == u"frmHlavni";
    if (main || formName == u"frmNastavHudbu") addMissing(condition, additions);
    if (main) {
        addKeptAside(condition, additions);
        addHomeless(condition, additions);
    }
    return additions;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
