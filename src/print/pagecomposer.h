#pragma once

#include <QLocale>
#include <functional>
#include <optional>

#include "print/pagegeometry.h"
#include "print/printedpage.h"
#include "print/printmaterial.h"
#include "print/printoptions.h"
#include "print/printprogress.h"
#include "richtext/textmetrics.h"

namespace sarne {

class Database;
class Recordset;

/// Where the composer takes its material from.
struct PrintSource {
    Database& db;
    /// The native path of a picture by its path below the media root; empty where there is none.
    std::function<QString(const QString&)> media;
    QLocale locale;
    Picture logo;
    bool grey = false;  ///< without colours
    /// The own note of a recipe as it stands in an open editor; none where nothing is being written.
    std::function<std::optional<QString>(int)> draft = [](int) { return std::nullopt; };
};

/// Turns recipes into pages for one printer's scale. The metrics must outlive it.
class PageComposer {
  public:
    PageComposer(PrintSource source, const PageScale& scale, TextMetrics& metrics);

    /// Number \a index of \a material; no pages where there is no such recipe or printing was stopped.
    std::vector<PrintedPage> item(const PrintMaterial& material, int index, const PrintOptions& options,
                                  PrintProgress& progress);
    std::vector<PrintedPage> recipe(int id, const PrintOptions& options, PrintProgress& progress);
    /// A text below its title, on pages like those of a recipe.
    std::vector<PrintedPage> text(const TitledText& text, PrintProgress& progress);

    const PageGeometry& geometry() const { return page_; }

  private:
    std::vector<FlowLine> setRecipe(const Recordset& recipe, const PrintOptions& options,
                                    PrintProgress& progress);
    std::vector<FlowLine> setCard(const Recordset& recipe, const PrintOptions& options,
                                  PrintProgress& progress);
    int room() const { return page_.bottom - bodyTop_; }
    std::vector<PrintedPage> paginate(const std::vector<FlowLine>& lines, const QString& name);
    void loseColours(PrintedPage& page) const;
    PrintedPage startPage();
    int headerBaseline();
    TextFont headerFont() const;
    void addPageName(PrintedPage& page, const QString& name, const QString& number);

    PrintSource source_;
    PageGeometry page_;
    TextMetrics& metrics_;
    const bool card_;
    QRect logoPlace_;
    int bodyTop_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
