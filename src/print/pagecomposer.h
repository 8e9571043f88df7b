#pragma once

#include <QLocale>
#include <functional>
#include <optional>

#include "print/pagegeometry.h"
#include "print/printedpage.h"
#include "print/printoptions.h"
#include "print/printprogress.h"
#include "richtext/textmetrics.h"

namespace sarne {

class Database;

/// Where the composer takes its material from.
struct PrintSource {
    Database& db;
    /// A picture by its path below the media root.
    std::function<Picture(const QString&)> media;
    QLocale locale;
    Picture logo;
    /// The own note of a recipe as it stands in an open editor; none where nothing is being written.
    std::function<std::optional<QString>(int)> draft = [](int) { return std::nullopt; };
};

/// A recipe as the pages it takes. No pages: there is no such recipe, or printing was stopped.
struct ComposedRecipe {
    QString name;
    std::vector<PrintedPage> pages;
};

/// A text that is no recipe.
struct TitledText {
    QString title;
    QString richText;
};

/// Turns recipes into pages for one printer's scale. The metrics must outlive it.
class PageComposer {
  public:
    PageComposer(PrintSource source, const PageScale& scale, TextMetrics& metrics);

    ComposedRecipe recipe(int id, const PrintOptions& options, PrintProgress& progress);
    /// A text below its title, on pages like those of a recipe.
    std::vector<PrintedPage> text(const TitledText& text, PrintProgress& progress);

    const PageGeometry& geometry() const { return page_; }

  private:
    std::vector<PrintedPage> paginate(const std::vector<FlowLine>& lines, const QString& name);
    PrintedPage startPage();
    int headerBaseline();
    void addPageName(PrintedPage& page, const QString& name, const QString& number);

    PrintSource source_;
    PageGeometry page_;
    TextMetrics& metrics_;
    QRect logoPlace_;
    int bodyTop_ = 0;
};

}  // namespace sarne
