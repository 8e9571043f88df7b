#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "print/pagegeometry.h"
#include "print/paragraphsetter.h"
#include "print/printprogress.h"
#include "richtext/rtflayout.h"

namespace sarne {

/// An ingredient on paper: its name, and how much of it in one or two columns.
struct QuantityRow {
    QString name;
    std::array<QString, 2> quantities;  ///< by weight and by the spoon, as "(g): 250"
    QString alternative;                ///< the line below, its blanks in front; empty where there is none
};

/// Sets the texts of a recipe one below the other, as lines that have no page yet. Nothing passes the right
/// margin: a word that is longer than a line is broken. Metrics and progress must outlive it.
class RecipeFlow {
  public:
    /// \a scale is the size of all letters, 1 as usual.
    RecipeFlow(const PageGeometry& page, TextMetrics& metrics, PrintProgress& progress, double scale = 1);

    /// A paragraph of plain text. Blanks in front indent it. An empty one adds nothing.
    void addText(const QString& text, const TextFont& font, FlowLine::Kind kind = FlowLine::Kind::Text);
    /// A text of the database, an RTF document or plain; link markers are left out. Its headings look like
    /// all others. A first paragraph that only repeats \a title is left out too.
    void addRichText(const QString& text, const QString& title = {});
    void addHeading(const QString& text);
    /// Whether the headings in rich texts stand in the table of contents; at first they do.
    void listHeadings(bool listed) { listHeadings_ = listed; }
    /// What is added next is \a place, which links lead to.
    void nameNext(const DocumentPlace& place) { nextPlace_ = place; }
    void addSpace(int twips);
    /// Adds a text in which every character stands for itself, laid out like a rich text.
    void addPlainText(const QString& text);
    /// Adds the rows with their quantities in columns; where the line is too short for columns, one behind
    /// the other.
    void addQuantities(const std::vector<QuantityRow>& rows);
    /// Places \a picture, which comes from \a file, at the right margin, in its proportions; the plain texts
    /// that follow stand to the left of it as long as it lasts. Where the line is too short for both it
    /// stands alone. \a room is what is left of the page.
    void addPicture(const Picture& picture, const QString& file, int room);
    bool besidePicture() const { return height_ < pictureBottom_; }
    /// What follows stands below the picture.
    void endPicture();

    /// Which part of the recipe the next text is: its lines tell the progress.
    void setPart(double from, double to);

    /// False when the progress wanted no more; the lines are incomplete then.
    bool wentOn() const { return !stop_; }
    int height() const { return height_; }
    std::vector<FlowLine> take() { return std::move(lines_); }

  private:
    void append(FlowLine line);
    void addWords(const QString& text, const TextFont& font, const ParagraphStyle& style,
                  QRgb color = 0xff000000);
    void addQuantityRow(const QuantityRow& row, const std::array<int, 2>& columns);
    void addJoinedRow(const QuantityRow& row);
    void addAlternative(const QuantityRow& row);
    std::array<int, 2> quantityColumns(const std::vector<QuantityRow>& rows);
    ParagraphStyle plainStyle(FlowLine::Kind kind) const;
    LayoutArea wideArea() const;
    void addLayout(const RtfLayout& layout, size_t firstLine);
    void addLaidOutLine(const RtfLayout& layout, const TextLine& line);
    SetWord laidOutWord(const RtfLayout& layout, const TextLine& line, const WordBox& box);
    TextFont scaled(TextFont font) const;
    int currentWidth() const;
    void ask();

    const PageGeometry page_;
    TextMetrics& metrics_;
    PrintProgress& progress_;
    const double scale_;
    ParagraphSetter setter_;
    StopFlag stop_ = false;
    std::vector<FlowLine> lines_;
    std::optional<DocumentPlace> nextPlace_;
    bool listHeadings_ = true;
    bool inParagraph_ = false;
    double partFrom_ = 0, partTo_ = 0;
    double reached_ = 0;  // of the recipe
    int height_ = 0;
    int pictureBottom_ = 0;
    int pictureWidth_ = 0;  // with the gap beside it
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
