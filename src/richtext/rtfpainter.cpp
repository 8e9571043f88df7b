#include "richtext/rtfpainter.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>

#include "richtext/fontface.h"

namespace sarne {
namespace {

constexpr qreal kDot = 30;       // twips, and as much room to the next
constexpr int kStrongInk = 180;  // of 100

/// Paints words: gathers those of one font and colour, wherever they stand, and paints their glyphs together.
class BoxPainter {
  public:
    BoxPainter(QPainter& painter, const RtfLayout& layout, const LinkHighlight& highlight)
        : painter_(painter), layout_(layout), highlight_(highlight), faces_(layout.fonts().size()) {
        const qreal scale = std::abs(painter.deviceTransform().m22());
        onePixel_ = scale > 0 ? 1 / scale : 0;
    }

    void paintLine(const TextLine& line) {
        const WordBox* previous = nullptr;
        for (qsizetype i = 0; i < line.boxCount; ++i) {
            const WordBox& box = layout_.boxes()[line.firstBox + i];
            paint(box);
            if (strokeOf(box) != Stroke::None) underline(box, previous);
            previous = &box;
        }
    }

    void finish() {
        for (Batch& batch : batches_) paint(batch);
        batches_.clear();
        current_ = kNone;
    }

  private:
    struct Batch {
        int font = 0;
        QRgb color = 0;
        PlacedGlyphs glyphs;
    };
    static constexpr size_t kNone = ~size_t(0);

    const FontFace& face(int font) {
        if (!faces_[font]) faces_[font].emplace(layout_.fonts()[font]);
        return *faces_[font];
    }

    void paint(const WordBox& box) {
        const QPointF origin(box.x, box.baseline);
        const QRgb color =
            (highlight_.strong ? layout_.color(box).darker(kStrongInk) : layout_.color(box)).rgb();
        const FontFace& face = this->face(box.font);
        if (face.place(layout_.text(box), origin, batch(box.font, color).glyphs)) return;
        QFont font = face.font();
        font.setUnderline(false);
        painter_.setFont(font);
        painter_.setPen(QColor(color));
        painter_.drawText(origin, layout_.text(box).toString());
    }

    Batch& batch(int font, QRgb color) {
        const auto fits = [&](const Batch& batch) { return batch.font == font && batch.color == color; };
        if (current_ != kNone && fits(batches_[current_])) return batches_[current_];
        constexpr size_t kMostBatches = 32;
        if (batches_.size() >= kMostBatches) finish();
        const auto found = std::find_if(batches_.begin(), batches_.end(), fits);
        current_ = found - batches_.begin();
        return found != batches_.end() ? *found : batches_.emplace_back(Batch{font, color, {}});
    }

    void paint(const Batch& batch) {
        QGlyphRun run;
        run.setRawFont(face(batch.font).rawFont());
        run.setRawData(batch.glyphs.indexes.data(), batch.glyphs.positions.data(),
                       static_cast<int>(batch.glyphs.indexes.size()));
        painter_.setPen(QColor(batch.color));
        painter_.drawGlyphRun({}, run);
    }

    enum class Stroke { None, Dots, Line, Heavy };

    /// A phrase that leads on has dots below it, beside its colour; a line where that is to be stronger, and
    /// a heavier one where the user is at it.
    Stroke strokeOf(const WordBox& box) const {
        if (highlight_.contains(box.link)) return highlight_.strong ? Stroke::Heavy : Stroke::Line;
        if (box.link >= 0) return highlight_.strong ? Stroke::Line : Stroke::Dots;
        return layout_.fonts()[box.font].underline ? Stroke::Line : Stroke::None;
    }

    /// The stroke below a word; between words that belong together it runs on over the gap.
    void underline(const WordBox& box, const WordBox* previous) {
        const bool joined = previous && strokeOf(*previous) != Stroke::None && previous->link == box.link;
        const int left = joined ? previous->x + previous->width : box.x;
        const QRawFont& font = face(box.font).rawFont();
        const qreal thin = qMax(font.lineThickness(), onePixel_);
        const qreal thickness = strokeOf(box) == Stroke::Heavy ? 2 * thin : thin;
        const QRectF stroke(left, box.baseline + font.underlinePosition() - thin / 2,
                            box.x + box.width - left, thickness);
        if (strokeOf(box) != Stroke::Dots) return painter_.fillRect(stroke, layout_.color(box));
        const qreal dot = qMax(kDot, onePixel_);
        for (qreal x = stroke.left(); x < stroke.right(); x += 2 * dot)
            painter_.fillRect(QRectF(x, stroke.top(), dot, thickness), layout_.color(box));
    }

    QPainter& painter_;
    const RtfLayout& layout_;
    const LinkHighlight& highlight_;
    qreal onePixel_;  // a stroke thinner than a pixel could fall between two rows of them
    std::vector<std::optional<FontFace>> faces_;
    std::vector<Batch> batches_;
    size_t current_ = kNone;
};

}  // namespace

void paintLayout(QPainter& painter, const RtfLayout& layout, const QRect& visible,
                 const LinkHighlight& highlight) {
    const RtfLayout::LineRange range = layout.linesBetween(visible.top(), visible.top() + visible.height());
    BoxPainter boxes(painter, layout, highlight);
    for (qsizetype line = range.first; line < range.end; ++line) boxes.paintLine(layout.lines()[line]);
    boxes.finish();
}

void drawLine(Surface& surface, const RtfLayout& layout, qsizetype line, QPoint offset,
              const StopFlag* stop) {
    if (line < 0 || line >= static_cast<qsizetype>(layout.lines().size())) return;
    const TextLine& textLine = layout.lines()[line];
    for (qsizetype i = 0; i < textLine.boxCount; ++i) {
        if (stop && *stop) return;
        const WordBox& box = layout.boxes()[textLine.firstBox + i];
        const TextFont& font = layout.fonts()[box.font];
        if (!(surface.font() == font)) surface.setFont(font);
        surface.setForeColor(layout.color(box));
        surface.textOut(box.x + offset.x(), box.baseline + offset.y(), layout.text(box).toString());
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
