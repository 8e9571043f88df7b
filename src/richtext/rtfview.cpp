#include "richtext/rtfview.h"

#include <algorithm>

namespace sarne {

void RtfView::setLayout(RtfLayout layout) {
    layout_ = std::move(layout);
    highlight_ = {};
    offset_ = 0;
    setPointer(pointer_);
}

void RtfView::setViewHeight(int height) {
    viewHeight_ = qMax(0, height);
    scrollTo(offset_);
}

int RtfView::maxOffset() const {
    return qMax(0, layout_.height() - viewHeight_);
}

bool RtfView::scrollTo(int offset) {
    const int before = offset_;
    offset_ = qBound(0, offset, maxOffset());
    if (offset_ != before) setPointer(pointer_);
    return offset_ != before;
}

bool RtfView::scrollLine(Direction direction) {
    if (layout_.lines().empty()) return false;
    const int top = layout_.area().top;
    const auto isAbove = [edge = top + offset_](const TextLine& line) { return line.top < edge; };
    const auto first = layout_.lines().begin(), end = layout_.lines().end();
    const auto at = std::partition_point(first, end, isAbove);
    if (direction == Direction::Backward) return scrollTo(at == first ? 0 : std::prev(at)->top - top);
    const auto next = at != end && at->top == top + offset_ ? std::next(at) : at;
    return scrollTo(next == end ? maxOffset() : next->top - top);
}

bool RtfView::scrollPage(Direction direction) {
    if (layout_.lines().empty()) return false;
    const int oneLine = layout_.lines().front().height;
    const int step = qMax(viewHeight_ / 2, viewHeight_ - oneLine);
    return scrollBy(direction == Direction::Forward ? step : -step);
}

bool RtfView::scrollToEnd(Direction direction) {
    return scrollTo(direction == Direction::Forward ? maxOffset() : 0);
}

std::optional<int> RtfView::linkAt(QPoint point) const {
    if (point.y() < 0 || point.y() >= viewHeight_) return std::nullopt;
    return layout_.linkAt(point + QPoint(0, offset_ + layout_.area().top));
}

bool RtfView::setPointer(std::optional<QPoint> point) {
    pointer_ = point;
    const std::optional<int> before = highlight_.hovered;
    highlight_.hovered = point ? linkAt(*point) : std::nullopt;
    return highlight_.hovered != before;
}

bool RtfView::focusNext(Direction direction) {
    const auto count = static_cast<int>(layout_.links().size());
    const int step = direction == Direction::Forward ? 1 : -1;
    const int start = direction == Direction::Forward ? 0 : count - 1;
    const int next = highlight_.focused ? *highlight_.focused + step : start;
    focusLink(next);
    return highlight_.focused.has_value();
}

void RtfView::focusLink(int link) {
    highlight_.focused.reset();
    if (link < 0 || link >= static_cast<int>(layout_.links().size())) return;
    highlight_.focused = link;
    showLink(link);
}

/// Scrolls no further than needed; a phrase that is taller than the view shows its beginning.
void RtfView::showLink(int link) {
    const std::vector<QRect> rects = layout_.linkRects(link);
    if (rects.empty()) return;
    const int top = rects.front().top() - layout_.area().top;
    const int bottom = rects.back().top() + rects.back().height() - layout_.area().top;
    if (bottom > offset_ + viewHeight_) scrollTo(bottom - viewHeight_);
    if (top < offset_) scrollTo(top);
}

std::optional<LinkKey> RtfView::key(std::optional<int> link) const {
    if (!link || *link < 0 || *link >= static_cast<int>(layout_.links().size())) return std::nullopt;
    return layout_.links()[*link].key;
}

void RtfView::paint(QPainter& painter, int width) const {
    painter.save();
    painter.setClipRect(QRect(0, 0, width, viewHeight_), Qt::IntersectClip);
    const QRect visible = visibleRect(width);
    painter.translate(0, -visible.top());
    paintLayout(painter, layout_, visible, highlight_);
    painter.restore();
}

}  // namespace sarne
