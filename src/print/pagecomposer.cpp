#include "print/pagecomposer.h"

#include <algorithm>

#include "core/texts.h"
#include "db/database.h"
#include "print/pagebreaker.h"
#include "print/printfonts.h"
#include "print/recipeflow.h"
#include "print/recipesections.h"

namespace sarne {
namespace {

constexpr int kLogoHeight = 720;
constexpr int kTextGap = 160;
constexpr int kHeaderGap = 160;

const QString kNameFromNumber = QStringLiteral(" · ");

const QString kHeaderText = QStringLiteral("CD Tobrela - ");
const QString kPrintTitle = QStringLiteral("Velisa sarn");

/// How much of each step a card holds, and the size of its letters: the first that fits is taken.
constexpr struct {
    int sentences;
    double scale;
} kCards[] = {{9, .88}, {9, .8},  {9, .74}, {2, .8},  {2, .74},
              {1, .8},  {1, .74}, {1, .68}, {1, .62}, {1, .56}};
constexpr double kCardHeaderScale = .75;

QRect placeLogo(const Picture& logo, const PageGeometry& page, int height) {
    const QSizeF size =
        logo.isNull() ? QSizeF(0, height) : QSizeF(logo.size()).scaled(1e6, height, Qt::KeepAspectRatio);
    return QRect(QPoint(page.left, page.top), size.toSize());
}

/// Adds \a parts to \a all, each moved to its place by \a move.
template <typename Part, typename Move>
void addMoved(std::vector<Part>& all, const std::vector<Part>& parts, Move move) {
    for (Part part : parts) {
        move(part);
        all.push_back(std::move(part));
    }
}

Picture inGrey(const Picture& picture) {
    return Picture::fromImage(picture.image().convertToFormat(QImage::Format_Grayscale8));
}

void addTo(PrintedPage& page, const FlowLine& line, int top) {
    addMoved(page.texts, line.texts, [top](PageText& text) { text.baseline += top; });
    addMoved(page.pictures, line.pictures, [top](PagePicture& at) { at.place.translate(0, top); });
    addMoved(page.places, line.places, [top](DocumentPlace& place) { place.top += top; });
    addMoved(page.links, line.links, [top](DocumentLink& link) { link.place.translate(0, top); });
}

}  // namespace

PageComposer::PageComposer(PrintSource source, const PageScale& scale, TextMetrics& metrics)
    : source_(std::move(source)), page_(PageGeometry::of(scale)), metrics_(metrics), card_(scale.card) {
    if (source_.grey) source_.logo = inGrey(source_.logo);
    logoPlace_ = placeLogo(source_.logo, page_, card_ ? kLogoHeight / 2 : kLogoHeight);
    const int headerHeight = metrics_.textHeight(headerFont());
    const int below = page_.top + logoPlace_.height() / 2 + (headerHeight + 1) / 2;
    const int gap = card_ ? 0 : metrics_.textHeight(printfonts::body());
    bodyTop_ = std::max(below + gap, page_.top + logoPlace_.height());
}

TextFont PageComposer::headerFont() const {
    TextFont font = printfonts::header();
    if (card_) font.size *= kCardHeaderScale;
    return font;
}

std::vector<PrintedPage> PageComposer::item(const PrintMaterial& material, int index,
                                            const PrintOptions& options, PrintProgress& progress) {
    const auto at = static_cast<size_t>(index);
    return material.isText() ? text(material.texts.at(at), progress)
                             : recipe(material.recipes.at(at), options, progress);
}

std::vector<PrintedPage> PageComposer::recipe(int id, const PrintOptions& options, PrintProgress& progress) {
    Recordset recipes = source_.db.OpenTable(QStringLiteral("Recepty"));
    recipes.setIndex(QStringLiteral("PrimaryKey"));
    if (!RecordExists(recipes, id)) return {};
    const QString name = recipes.field(QStringLiteral("Nazev")).toString();
    progress.recipeStarted(name);
    progress.status(Texts::tr(" Tisknu recept ... "));
    const std::vector<FlowLine> lines =
        card_ ? setCard(recipes, options, progress) : setRecipe(recipes, options, progress);
    return lines.empty() ? std::vector<PrintedPage>() : paginate(lines, name);
}

/// The lines of a recipe; none when it was stopped.
std::vector<FlowLine> PageComposer::setRecipe(const Recordset& recipe, const PrintOptions& options,
                                              PrintProgress& progress) {
    RecipeFlow flow(page_, metrics_, progress);
    RecipeSections sections(recipe, flow, {source_, options, progress, room()});
    sections.set();
    if (!flow.wentOn()) return {};
    std::vector<FlowLine> lines = flow.take();
    sections.linkTexts(lines);
    return lines;
}

/// The lines of a recipe's card, in the largest letters in which it is one page.
std::vector<FlowLine> PageComposer::setCard(const Recordset& recipe, const PrintOptions& options,
                                            PrintProgress& progress) {
    std::vector<FlowLine> lines;
    for (const auto& [sentences, scale] : kCards) {
        RecipeFlow flow(page_, metrics_, progress, scale);
        RecipeSections(recipe, flow, {source_, options, progress, room()}).setCard(sentences);
        if (!flow.wentOn()) return {};
        const bool fits = flow.height() <= room();
        lines = flow.take();
        if (fits) break;
    }
    return lines;
}

std::vector<PrintedPage> PageComposer::text(const TitledText& text, PrintProgress& progress) {
    progress.recipeStarted(text.title);
    RecipeFlow flow(page_, metrics_, progress);
    flow.nameNext({0, text.title, text.title});
    flow.addText(text.title, printfonts::name(), FlowLine::Kind::Heading);
    flow.addSpace(kTextGap);
    flow.addRichText(text.richText, text.title);
    return flow.wentOn() ? paginate(flow.take(), text.title) : std::vector<PrintedPage>();
}

std::vector<PrintedPage> PageComposer::paginate(const std::vector<FlowLine>& lines, const QString& name) {
    std::vector<PrintedPage> pages;
    for (const PageRange& range : breakPages(lines, room())) {
        PrintedPage page = startPage();
        int top = bodyTop_;
        for (size_t line = range.first; line < range.end; ++line) {
            addTo(page, lines[line], top);
            top += lines[line].height;
        }
        pages.push_back(std::move(page));
    }
    if (pages.empty()) pages.push_back(startPage());
    for (size_t i = 1; i < pages.size(); ++i)
        addPageName(pages[i], name, Texts::tr("%1 z %2").arg(i + 1).arg(pages.size()));
    if (source_.grey) std::ranges::for_each(pages, [this](PrintedPage& page) { loseColours(page); });
    return pages;
}

void PageComposer::loseColours(PrintedPage& page) const {
    for (PageText& text : page.texts) {
        const int grey = qGray(text.color);
        text.color = qRgb(grey, grey, grey);
    }
    for (PagePicture& picture : page.pictures) picture = {picture.place, inGrey(picture.picture)};
}

/// The header: the logo, and the title at the right margin.
PrintedPage PageComposer::startPage() {
    PrintedPage page;
    if (!source_.logo.isNull()) page.pictures.push_back({logoPlace_, source_.logo});
    const TextFont font = headerFont();
    const QString header = kHeaderText + kPrintTitle;
    const int width = metrics_.textWidth(font, header);
    page.texts.push_back({page_.rightMargin() - width, headerBaseline(), width, header, font});
    return page;
}

int PageComposer::headerBaseline() {
    const TextFont font = headerFont();
    return logoPlace_.top() + logoPlace_.height() / 2 - metrics_.textHeight(font) / 2 +
           metrics_.textAscent(font);
}

/// Which page of what it is stands between logo and title.
void PageComposer::addPageName(PrintedPage& page, const QString& name, const QString& number) {
    const TextFont font = headerFont();
    const int left = logoPlace_.right() + kHeaderGap;
    const int room = page.texts.front().x - kHeaderGap - left;
    const QString behind = kNameFromNumber + number;
    QString text = name + behind;
    for (QString shorter = name; !shorter.isEmpty() && metrics_.textWidth(font, text) > room;) {
        shorter.chop(1);
        text = shorter.trimmed() + QStringLiteral("…") + behind;
    }
    const int width = metrics_.textWidth(font, text);
    page.texts.insert(page.texts.begin(), {left + (room - width) / 2, headerBaseline(), width, text, font});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
