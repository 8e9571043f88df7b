#include "screens/recipe/sectiontable.h"

#include "screens/recipe/ingredientpanel.h"
#include "screens/recipe/linkpanel.h"
#include "screens/recipe/notepanel.h"
#include "screens/recipe/textsections.h"

namespace sarne {
namespace {

using Made = std::unique_ptr<RecipeSection>;

template <typename Section>
Made make(const SectionRoom& room) {
    return std::make_unique<Section>(room);
}

Made method(const SectionRoom& room) {
    return std::make_unique<TextSection>(room, TextSection::Fields{"Recept"});
}

Made introduction(const SectionRoom& room) {
    return std::make_unique<TextSection>(room, TextSection::Fields{"Uvod", "Prezentace", "Poznamka"});
}

constexpr SectionKind kSections[] = {{{u"Foto", {}, u"Foto"}, make<PhotoSection>},
                                     {{u"Recept", {}, u"Recept"}, method},
                                     {{u"Uvod", {}, u"Úvod"}, introduction},
                                     {{u"Odkazy", {}, u"Odkazy"}, make<LinkPanel>},
                                     {{u"Vino", {}, u"Víno"}, make<WineSection>},
                                     {{u"Suroviny", {}, u"Suroviny"}, make<IngredientPanel>},
                                     {{u"Pomucky", {}, u"Pomůcky"}, make<ToolSection>},
                                     {{u"Vlastni", {}, u"Vlastní poznámka"}, make<NotePanel>}};
static_assert(std::size(kSections) == recipelayout::kSectionCount, "a section without a place");

}  // namespace

std::span<const SectionKind> sectionKinds() {
    return kSections;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
