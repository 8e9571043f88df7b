#pragma once

#include <vector>

#include "print/pagegeometry.h"
#include "print/printedpage.h"
#include "print/printprogress.h"
#include "richtext/rtflayout.h"
#include "richtext/wordwrap.h"

namespace sarne {

/// Sets the texts of a recipe one below the other, as lines that have no page yet. Nothing passes the right
/// margin: a word that is longer than a line is broken. Metrics and progress must outlive it.
class RecipeFlow {
  public:
    RecipeFlow(const PageGeometry& page, TextMetrics& metrics, PrintProgress& progress)
        : page_(page), metrics_(metrics), progress_(progress) {}

    /// A paragraph of plain text, its blanks kept. An empty one adds nothing.
    void addText(const QString& text, const TextFont& font, FlowLine::Kind kind = FlowLine::Kind::Text);
    /// A second line that stays with the paragraph before it.
    void addContinuation(const QString& text, const TextFont& font);
    /// A text of the database, an RTF document or plain; link markers are left out. A first paragraph that
    /// only repeats \a title is left out too.
    void addRichText(const QString& text, const QString& title = {});
    void addHeading(const QString& text);
    void addSpace(int twips);
    /// Adds a text in which every character stands for itself, laid out like a rich text.
    void addPlainText(const QString& text);
    /// Places \a picture at the right margin, in its proportions; the plain texts that follow stand to the
    /// left of it as long as it lasts. \a room is what is left of the page.
    void addPicture(const Picture& picture, int room);
    bool besidePicture() const { return height_ < pictureBottom_; }
    /// What follows stands below the picture.
    void endPicture();

    /// False when the progress wanted no more; the lines are incomplete then.
    bool wentOn() const { return !stop_; }
    int height() const { return height_; }
    std::vector<FlowLine> take() { return std::move(lines_); }

  private:
    void append(FlowLine line);
    void addWrapped(const QString& text, const TextFont& font, FlowLine::Kind kind, bool starts);
    MeasureText measuring(const TextFont& font);
    LayoutArea textArea() const;
    void addLayout(const RtfLayout& layout, const QString& title);
    int currentWidth() const;
    void addLaidOutLine(const RtfLayout& layout, const TextLine& line);
    void addOverlongWord(const RtfLayout& layout, const TextLine& line, const WordBox& box);
    void ask();

    const PageGeometry page_;
    TextMetrics& metrics_;
    PrintProgress& progress_;
    StopFlag stop_ = false;
    std::vector<FlowLine> lines_;
    int height_ = 0;
    int pictureBottom_ = 0;
    int pictureWidth_ = 0;  // with the gap beside it
};

}  // namespace sarne
