#include "print/recipeflow.h"

#include <algorithm>

#include "print/printfonts.h"

namespace sarne {
namespace {

constexpr double kPictureShare = .4, kCardShare = .3;  // of the line, beside texts
constexpr double kAloneShare = .6;                     // of the line, without texts beside it
constexpr int kPictureGap = 240;                       // to the text beside and below it
constexpr int kNarrowestText = 4200;                   // beside the picture
constexpr int kNarrowestName = 1300;                   // beside columns of quantities
constexpr int kColumnGap = 200;
/// A paragraph is read in pieces of so many lines, so that the longest can be stopped.
constexpr int kLinesRead = 48;

QString textOf(const RtfLayout& layout, const TextLine& line) {
    QStringList words;
    for (qsizetype i = 0; i < line.boxCount; ++i)
        words << layout.text(layout.boxes()[static_cast<size_t>(line.firstBox + i)]).toString();
    return words.join(u' ');
}

/// How many lines of \a layout, up to the end of its first paragraph, say nothing but \a title.
size_t linesOfTitle(const RtfLayout& layout, const QString& title) {
    if (title.isEmpty()) return 0;
    QStringList words;
    for (size_t line = 0; line < layout.lines().size(); ++line) {
        const TextLine& textLine = layout.lines()[line];
        if (textLine.boxCount > 0) words << textOf(layout, textLine);
        if (!textLine.endsParagraph || words.isEmpty()) continue;
        const QString paragraph = words.join(u' ').simplified();
        return paragraph.compare(title.simplified(), Qt::CaseInsensitive) == 0 ? line + 1 : 0;
    }
    return 0;
}

qsizetype blanksInFront(const QString& text) {
    qsizetype blanks = 0;
    while (blanks < text.size() && text[blanks] == u' ') ++blanks;
    return blanks;
}

}  // namespace

RecipeFlow::RecipeFlow(const PageGeometry& page, TextMetrics& metrics, PrintProgress& progress, double scale)
    : page_(page),
      metrics_(metrics),
      progress_(progress),
      scale_(scale),
      setter_(metrics, [this](FlowLine line) { append(std::move(line)); }) {}

void RecipeFlow::ask() {
    if (!stop_) stop_ = !progress_.goOn();
}

void RecipeFlow::setPart(double from, double to) {
    partFrom_ = from;
    partTo_ = to;
    reached_ = from;
}

void RecipeFlow::append(FlowLine line) {
    if (stop_) return;
    height_ += line.height;
    if (nextPlace_ && line.kind != FlowLine::Kind::Space) {
        line.places.push_back(*nextPlace_);
        nextPlace_.reset();
    }
    lines_.push_back(std::move(line));
    if (reached_ > 0) progress_.progressed(reached_);
    ask();
}

void RecipeFlow::addSpace(int twips) {
    FlowLine line;
    line.kind = FlowLine::Kind::Space;
    line.height = twips;
    append(std::move(line));
}

TextFont RecipeFlow::scaled(TextFont font) const {
    font.size *= scale_;
    return font;
}

void RecipeFlow::addHeading(const QString& text) {
    endPicture();
    addWords(text, scaled(printfonts::heading()), plainStyle(FlowLine::Kind::Heading),
             printfonts::kHeadingColor);
}

int RecipeFlow::currentWidth() const {
    return besidePicture() ? page_.lineWidth - pictureWidth_ : page_.lineWidth;
}

ParagraphStyle RecipeFlow::plainStyle(FlowLine::Kind kind) const {
    ParagraphStyle style;
    style.kind = kind;
    style.left = page_.leftMargin;
    style.width = currentWidth();
    style.justified = false;
    return style;
}

void RecipeFlow::addText(const QString& text, const TextFont& font, FlowLine::Kind kind) {
    addWords(text, scaled(font), plainStyle(kind));
}

void RecipeFlow::addWords(const QString& text, const TextFont& font, const ParagraphStyle& style,
                          QRgb color) {
    const int blank = metrics_.textWidth(font, u" ");
    ParagraphStyle indented = style;
    indented.indent += static_cast<int>(blanksInFront(text)) * blank;
    setter_.begin(indented);
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (stop_) return;
        setter_.add({word, font, color, metrics_.textWidth(font, word), blank});
    }
    setter_.end();
}

void RecipeFlow::addRichText(const QString& text, const QString& title) {
    if (text.trimmed().isEmpty()) return;
    endPicture();
    const RtfLayout layout =
        RtfLayout::of(text, wideArea(), metrics_, LinkMarkers::Remove, &stop_, [this] { ask(); });
    addLayout(layout, linesOfTitle(layout, title));
}

void RecipeFlow::addPlainText(const QString& text) {
    endPicture();
    addLayout(RtfLayout::ofPlain(text, wideArea(), metrics_, &stop_, [this] { ask(); }), 0);
}

/// Wide enough for many lines: what is read is set again by the setter.
LayoutArea RecipeFlow::wideArea() const {
    return {0, static_cast<int>(page_.lineWidth / scale_) * kLinesRead, 0};
}

void RecipeFlow::addLayout(const RtfLayout& layout, size_t firstLine) {
    const size_t count = layout.lines().size();
    for (size_t line = firstLine; line < count && !stop_; ++line)
        addLaidOutLine(layout, layout.lines()[line]);
    if (inParagraph_ && !stop_) setter_.end();
    inParagraph_ = false;
}

void RecipeFlow::addLaidOutLine(const RtfLayout& layout, const TextLine& line) {
    if (!inParagraph_ && line.boxCount == 0) return addSpace(static_cast<int>(line.height * scale_));
    if (!inParagraph_) {
        ParagraphStyle style = plainStyle(line.isHeading ? FlowLine::Kind::Heading : FlowLine::Kind::Text);
        style.justified = !line.isHeading;
        style.ragged = scale_ < 1;  // the short lines of a card would get holes
        if (line.isHeading && listHeadings_) nameNext({0, {}, textOf(layout, line), 1});
        setter_.begin(style);
    }
    inParagraph_ = !line.endsParagraph;
    for (qsizetype i = line.firstBox; i < line.firstBox + line.boxCount && !stop_; ++i) {
        const double done = double(i + 1) / double(layout.boxes().size());
        // Several texts of one part begin anew, what the user sees of it does not.
        reached_ = std::max(reached_, partFrom_ + (partTo_ - partFrom_) * done);
        setter_.add(laidOutWord(layout, line, layout.boxes()[static_cast<size_t>(i)]));
    }
    if (!inParagraph_ && !stop_) setter_.end();
}

SetWord RecipeFlow::laidOutWord(const RtfLayout& layout, const TextLine& line, const WordBox& box) {
    SetWord word;
    word.text = layout.text(box).toString();
    word.color = line.isHeading ? printfonts::kHeadingColor : box.color;
    const TextFont& own = layout.fonts()[static_cast<size_t>(box.font)];
    word.font = scaled(line.isHeading ? printfonts::heading() : own);
    word.width = word.font == own ? box.width : metrics_.textWidth(word.font, word.text);
    word.blanks = box.blanks * metrics_.textWidth(word.font, u" ");
    // Where a tab has moved a word, it stands off its neighbour.
    if (!line.isHeading && line.endsParagraph) {
        const WordBox* before =
            &box == &layout.boxes()[static_cast<size_t>(line.firstBox)] ? nullptr : &box - 1;
        const int natural =
            before ? before->x + before->width +
                         before->blanks *
                             metrics_.textWidth(layout.fonts()[static_cast<size_t>(before->font)], u" ")
                   : 0;
        if (box.x > natural + 1) word.tab = static_cast<int>(box.x * scale_);
    }
    return word;
}

std::array<int, 2> RecipeFlow::quantityColumns(const std::vector<QuantityRow>& rows) {
    const TextFont font = scaled(printfonts::body());
    int names = 0;
    std::array<int, 2> widths{};
    for (const QuantityRow& row : rows) {
        names = std::max(names, metrics_.textWidth(font, row.name));
        for (size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], metrics_.textWidth(font, row.quantities[i]));
    }
    const auto gap = [&](int width) { return width > 0 ? width + static_cast<int>(kColumnGap * scale_) : 0; };
    const int room = currentWidth() - gap(widths[0]) - gap(widths[1]);
    if (room < std::min(names, static_cast<int>(kNarrowestName * scale_))) return {};
    // The columns stand close to the names, not at the end of a wide line.
    const int first = std::min(names, room) + static_cast<int>(kColumnGap * scale_);
    return {first, first + gap(widths[0])};
}

void RecipeFlow::addQuantities(const std::vector<QuantityRow>& rows) {
    const std::array<int, 2> columns = quantityColumns(rows);
    for (const QuantityRow& row : rows) columns[0] > 0 ? addQuantityRow(row, columns) : addJoinedRow(row);
}

void RecipeFlow::addQuantityRow(const QuantityRow& row, const std::array<int, 2>& columns) {
    const TextFont font = scaled(printfonts::body());
    const size_t first = lines_.size();
    ParagraphStyle style = plainStyle(FlowLine::Kind::Text);
    style.width = columns[0] - static_cast<int>(kColumnGap * scale_);
    addWords(row.name, font, style);
    if (first == lines_.size()) return;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (row.quantities[i].isEmpty()) continue;
        lines_[first].texts.push_back({page_.leftMargin + columns[i], metrics_.textAscent(font),
                                       metrics_.textWidth(font, row.quantities[i]), row.quantities[i], font});
    }
    addAlternative(row);
}

void RecipeFlow::addAlternative(const QuantityRow& row) {
    if (row.alternative.isEmpty() || lines_.empty()) return;
    lines_.back().endsParagraph = false;
    ParagraphStyle style = plainStyle(FlowLine::Kind::Text);
    style.starts = false;
    addWords(row.alternative, scaled(printfonts::body()), style);
}

void RecipeFlow::addJoinedRow(const QuantityRow& row) {
    QStringList parts{row.name};
    for (const QString& quantity : row.quantities) {
        // What belongs together is not parted at the end of a line.
        if (!quantity.isEmpty()) parts << QString(quantity).replace(u' ', QChar(0xa0));
    }
    addText(parts.join(u' '), printfonts::body());
    addAlternative(row);
}

/// Where quantities in columns have room beside the picture, they stand there; else it takes the middle of
/// the line, larger.
void RecipeFlow::addPicture(const Picture& picture, const QString& file, int room) {
    if (picture.isNull() || room <= 0) return;
    const auto besideWidth = static_cast<int>(page_.lineWidth * (scale_ < 1 ? kCardShare : kPictureShare));
    const bool beside = page_.lineWidth - besideWidth - kPictureGap >= kNarrowestText * scale_;
    const int width = beside ? besideWidth : static_cast<int>(page_.lineWidth * kAloneShare);
    if (width <= 0) return;
    const QSize placed =
        QSizeF(picture.size()).scaled(QSizeF(width, std::min(width, room)), Qt::KeepAspectRatio).toSize();
    const int free = page_.lineWidth - placed.width();
    FlowLine line;
    const QRect place({page_.leftMargin + (beside ? free : free / 2), 0}, placed);
    line.pictures.push_back({place, picture, file});
    if (!beside) line.height = placed.height() + kPictureGap;
    append(std::move(line));
    if (!beside) return;
    pictureBottom_ = height_ + placed.height();
    pictureWidth_ = placed.width() + kPictureGap;
}

void RecipeFlow::endPicture() {
    if (pictureBottom_ > height_) addSpace(pictureBottom_ - height_ + kPictureGap);
    pictureBottom_ = 0;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
