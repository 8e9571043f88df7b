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

QRect placeLogo(const Picture& logo, const PageGeometry& page) {
    const QSizeF size = logo.isNull() ? QSizeF(0, kLogoHeight)
                                      : QSizeF(logo.size()).scaled(1e6, kLogoHeight, Qt::KeepAspectRatio);
    return QRect(QPoint(page.left, page.top), size.toSize());
}

void addTo(PrintedPage& page, const FlowLine& line, int top) {
    for (PageText text : line.texts) {
        text.baseline += top;
        page.texts.push_back(std::move(text));
    }
    for (PagePicture picture : line.pictures) {
        picture.place.translate(0, top);
        page.pictures.push_back(std::move(picture));
    }
}

}  // namespace

PageComposer::PageComposer(PrintSource source, const PageScale& scale, TextMetrics& metrics)
    : source_(std::move(source)), page_(PageGeometry::of(scale)), metrics_(metrics) {
    logoPlace_ = placeLogo(source_.logo, page_);
    const int headerHeight = metrics_.textHeight(printfonts::header());
    const int below = page_.top + logoPlace_.height() / 2 + (headerHeight + 1) / 2;
    bodyTop_ = std::max(below + metrics_.textHeight(printfonts::body()), page_.top + logoPlace_.height());
}

ComposedRecipe PageComposer::recipe(int id, const PrintOptions& options, PrintProgress& progress) {
    Recordset recipes = source_.db.OpenTable(QStringLiteral("Recepty"));
    recipes.setIndex(QStringLiteral("PrimaryKey"));
    if (!RecordExists(recipes, id)) return {};
    ComposedRecipe composed;
    composed.name = recipes.field(QStringLiteral("Nazev")).toString();
    progress.recipeStarted(composed.name);
    progress.status(Texts::tr(" Tisknu recept ... "));
    RecipeFlow flow(page_, metrics_, progress);
    RecipeSections(recipes, flow, {source_, options, progress, page_.bottom - bodyTop_}).set();
    if (flow.wentOn()) composed.pages = paginate(flow.take(), composed.name);
    return composed;
}

std::vector<PrintedPage> PageComposer::text(const TitledText& text, PrintProgress& progress) {
    progress.recipeStarted(text.title);
    RecipeFlow flow(page_, metrics_, progress);
    flow.addText(text.title, printfonts::name(), FlowLine::Kind::Heading);
    flow.addSpace(kTextGap);
    flow.addRichText(text.richText, text.title);
    return flow.wentOn() ? paginate(flow.take(), text.title) : std::vector<PrintedPage>();
}

std::vector<PrintedPage> PageComposer::paginate(const std::vector<FlowLine>& lines, const QString& name) {
    std::vector<PrintedPage> pages;
    for (const PageRange& range : breakPages(lines, page_.bottom - bodyTop_)) {
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
    return pages;
}

/// The header: the logo, and the title at the right margin.
PrintedPage PageComposer::startPage() {
    PrintedPage page;
    if (!source_.logo.isNull()) page.pictures.push_back({logoPlace_, source_.logo});
    const TextFont font = printfonts::header();
    const QString header = kHeaderText + kPrintTitle;
    const int width = metrics_.textWidth(font, header);
    page.texts.push_back({page_.rightMargin() - width, headerBaseline(), width, header, font});
    return page;
}

int PageComposer::headerBaseline() {
    const TextFont font = printfonts::header();
    return logoPlace_.top() + logoPlace_.height() / 2 - metrics_.textHeight(font) / 2 +
           metrics_.textAscent(font);
}

/// Which page of what it is stands between logo and title.
void PageComposer::addPageName(PrintedPage& page, const QString& name, const QString& number) {
    const TextFont font = printfonts::header();
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
