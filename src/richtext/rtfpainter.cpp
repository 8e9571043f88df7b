#include "richtext/rtfpainter.h"

namespace sarne {
namespace {

/// Sets a painter's font and pen only where they change from one box to the next.
class BoxPainter {
  public:
    BoxPainter(QPainter& painter, const RtfLayout& layout, const LinkHighlight& highlight)
        : painter_(painter), layout_(layout), highlight_(highlight) {}

    void paint(const WordBox& box) {
        const bool underlined = highlight_.contains(box.link);
        if (box.font != font_ || underlined != underlined_) setFont(box.font, underlined);
        const QColor color = layout_.color(box);
        if (color != color_) painter_.setPen(color_ = color);
        const QStringView text = layout_.text(box);
        painter_.drawText(QPointF(box.x, box.baseline), QString::fromRawData(text.data(), text.size()));
    }

  private:
    void setFont(int font, bool underlined) {
        font_ = font;
        underlined_ = underlined;
        QFont face = layout_.fonts()[font].toQFont();
        if (underlined) face.setUnderline(true);
        painter_.setFont(face);
    }

    QPainter& painter_;
    const RtfLayout& layout_;
    const LinkHighlight& highlight_;
    int font_ = -1;
    bool underlined_ = false;
    QColor color_;
};

}  // namespace

void paintLayout(QPainter& painter, const RtfLayout& layout, const QRect& visible,
                 const LinkHighlight& highlight) {
    const RtfLayout::LineRange range = layout.linesBetween(visible.top(), visible.top() + visible.height());
    BoxPainter boxes(painter, layout, highlight);
    for (qsizetype line = range.first; line < range.end; ++line) {
        const TextLine& textLine = layout.lines()[line];
        for (qsizetype i = 0; i < textLine.boxCount; ++i) boxes.paint(layout.boxes()[textLine.firstBox + i]);
    }
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
