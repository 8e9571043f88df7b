#include "print/recipeflow.h"

#include <algorithm>

#include "print/printfonts.h"

namespace sarne {
namespace {

constexpr int kPictureShare = 2;  // of five parts of the line
constexpr int kPictureGap = 240;  // to the text beside and below it
constexpr int kNarrowestText = 1200;

/// How many lines of \a layout, up to the end of its first paragraph, say nothing but \a title.
size_t linesOfTitle(const RtfLayout& layout, const QString& title) {
    if (title.isEmpty()) return 0;
    QStringList words;
    for (size_t line = 0; line < layout.lines().size(); ++line) {
        const TextLine& textLine = layout.lines()[line];
        for (qsizetype i = 0; i < textLine.boxCount; ++i)
            words << layout.text(layout.boxes()[static_cast<size_t>(textLine.firstBox + i)]).toString();
        if (!textLine.endsParagraph || words.isEmpty()) continue;
        const QString paragraph = words.join(u' ').simplified();
        return paragraph.compare(title.simplified(), Qt::CaseInsensitive) == 0 ? line + 1 : 0;
    }
    return 0;
}

}  // namespace

void RecipeFlow::ask() {
    if (!stop_) stop_ = !progress_.goOn();
}

void RecipeFlow::append(FlowLine line) {
    height_ += line.height;
    lines_.push_back(std::move(line));
    ask();
}

void RecipeFlow::addSpace(int twips) {
    FlowLine line;
    line.kind = FlowLine::Kind::Space;
    line.height = twips;
    append(std::move(line));
}

void RecipeFlow::addHeading(const QString& text) {
    endPicture();
    addText(text, printfonts::heading(), FlowLine::Kind::Heading);
}

void RecipeFlow::addText(const QString& text, const TextFont& font, FlowLine::Kind kind) {
    addWrapped(text, font, kind, true);
}

void RecipeFlow::addContinuation(const QString& text, const TextFont& font) {
    if (!lines_.empty()) lines_.back().endsParagraph = false;
    addWrapped(text, font, FlowLine::Kind::Text, false);
}

int RecipeFlow::currentWidth() const {
    return besidePicture() ? page_.lineWidth - pictureWidth_ : page_.lineWidth;
}

void RecipeFlow::addWrapped(const QString& text, const TextFont& font, FlowLine::Kind kind, bool starts) {
    const int height = metrics_.textHeight(font), ascent = metrics_.textAscent(font);
    QStringView rest(text);
    while (!rest.isEmpty() && !stop_) {
        const qsizetype length = firstLine(rest, currentWidth(), measuring(font), LongWords::Break);
        QStringView shown = rest.left(length);
        rest = rest.mid(length);
        if (!rest.isEmpty()) {
            while (shown.endsWith(u' ')) shown.chop(1);
            while (rest.startsWith(u' ')) rest = rest.mid(1);
        }
        FlowLine line;
        line.kind = kind;
        line.height = height;
        line.startsParagraph = starts;
        line.endsParagraph = rest.isEmpty();
        line.texts.push_back(
            {page_.leftMargin, ascent, metrics_.textWidth(font, shown), shown.toString(), font});
        append(std::move(line));
        starts = false;
    }
}

MeasureText RecipeFlow::measuring(const TextFont& font) {
    return [this, &font](QStringView text) { return metrics_.textWidth(font, text); };
}

void RecipeFlow::addRichText(const QString& text, const QString& title) {
    if (text.trimmed().isEmpty()) return;
    endPicture();
    addLayout(RtfLayout::of(text, textArea(), metrics_, LinkMarkers::Remove, &stop_, [this] { ask(); }),
              title);
}

void RecipeFlow::addPlainText(const QString& text) {
    if (text.trimmed().isEmpty()) return;
    endPicture();
    addLayout(RtfLayout::ofPlain(text, textArea(), metrics_, &stop_, [this] { ask(); }), {});
}

LayoutArea RecipeFlow::textArea() const {
    return {page_.leftMargin, page_.rightMargin(), 0};
}

void RecipeFlow::addLayout(const RtfLayout& layout, const QString& title) {
    for (size_t line = linesOfTitle(layout, title); line < layout.lines().size() && !stop_; ++line)
        addLaidOutLine(layout, layout.lines()[line]);
}

void RecipeFlow::addLaidOutLine(const RtfLayout& layout, const TextLine& line) {
    if (line.boxCount == 0) return addSpace(line.height);
    FlowLine placed;
    placed.kind = line.isHeading ? FlowLine::Kind::Heading : FlowLine::Kind::Text;
    placed.height = line.height;
    placed.startsParagraph = line.startsParagraph;
    placed.endsParagraph = line.endsParagraph;
    placed.texts.reserve(static_cast<size_t>(line.boxCount));
    for (qsizetype i = 0; i < line.boxCount; ++i) {
        const WordBox& box = layout.boxes()[static_cast<size_t>(line.firstBox + i)];
        if (box.x + box.width > page_.rightMargin()) {
            addOverlongWord(layout, line, box);
            continue;
        }
        placed.texts.push_back({box.x, box.baseline - line.top, box.width, layout.text(box).toString(),
                                layout.fonts()[static_cast<size_t>(box.font)], box.color});
    }
    if (!placed.texts.empty()) append(std::move(placed));
}

void RecipeFlow::addOverlongWord(const RtfLayout& layout, const TextLine& line, const WordBox& box) {
    const TextFont& font = layout.fonts()[static_cast<size_t>(box.font)];
    QStringView rest = layout.text(box);
    bool starts = line.startsParagraph;
    while (!rest.isEmpty() && !stop_) {
        const qsizetype length =
            std::min(rest.size(), charactersFitting(rest, page_.lineWidth, measuring(font)));
        FlowLine piece;
        piece.height = line.height;
        piece.startsParagraph = starts;
        piece.endsParagraph = line.endsParagraph && length == rest.size();
        piece.texts.push_back({page_.leftMargin, line.baseline - line.top,
                               metrics_.textWidth(font, rest.left(length)), rest.left(length).toString(),
                               font, box.color});
        append(std::move(piece));
        rest = rest.mid(length);
        starts = false;
    }
}

void RecipeFlow::addPicture(const Picture& picture, int room) {
    if (picture.isNull() || room <= 0) return;
    const int width = page_.lineWidth * kPictureShare / 5;
    if (width <= 0) return;
    const QSizeF size =
        QSizeF(picture.size()).scaled(QSizeF(width, std::min(width, room)), Qt::KeepAspectRatio);
    FlowLine line;
    const QSize placed = size.toSize();
    line.pictures.push_back({QRect({page_.rightMargin() - placed.width(), 0}, placed), picture});
    append(std::move(line));
    pictureBottom_ = height_ + placed.height();
    pictureWidth_ = placed.width() + kPictureGap;
    if (page_.lineWidth - pictureWidth_ < kNarrowestText) endPicture();
}

void RecipeFlow::endPicture() {
    if (pictureBottom_ > height_) addSpace(pictureBottom_ - height_ + kPictureGap);
    pictureBottom_ = 0;
}

}  // namespace sarne
