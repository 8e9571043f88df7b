#pragma once

#include "richtext/rtflayout.h"
#include "richtext/rtfpainter.h"

namespace sarne {

/// What a scrolling picture box shows of a text and which of its links the user is at, without a window:
/// which part is seen, the link under the pointer, the link that has the focus. Keeps the layout. Lengths are
/// twips; points are from the upper left corner of the part that is seen.
class RtfView {
  public:
    enum class Direction { Backward, Forward };

    /// Shows \a layout from its top, no link focused.
    void setLayout(RtfLayout layout);
    const RtfLayout& layout() const { return layout_; }
    /// The height of the part that is seen. The offset stays within the text.
    void setViewHeight(int height);
    int viewHeight() const { return viewHeight_; }

    /// How far the text is scrolled: 0 shows its top.
    int offset() const { return offset_; }
    /// The largest offset; 0 for a text that fits.
    int maxOffset() const;
    bool canScroll() const { return maxOffset() > 0; }

    // Each scrolls, within the text, and returns whether anything moved.
    bool scrollTo(int offset);
    bool scrollBy(int distance) { return scrollTo(offset_ + distance); }
    /// One line of the text, so that a whole line stands at the top.
    bool scrollLine(Direction direction);
    /// What is seen but for one line, which stays in sight.
    bool scrollPage(Direction direction);
    bool scrollToEnd(Direction direction);

    /// The link at \a point.
    std::optional<int> linkAt(QPoint point) const;
    /// Takes note of the pointer; \a point is nothing when it has left. Returns whether another link is
    /// hovered now.
    bool setPointer(std::optional<QPoint> point);
    std::optional<int> hoveredLink() const { return highlight_.hovered; }

    /// Moves the focus to the next link and scrolls it into sight. Without a focus it begins at the first or
    /// last link. Returns false, and gives the focus up, behind the last one: then it is the next control's
    /// turn.
    bool focusNext(Direction direction);
    void clearFocus() { highlight_.focused.reset(); }
    std::optional<int> focusedLink() const { return highlight_.focused; }
    /// Gives the focus to \a link, as a click on it does. A link that does not exist clears it.
    void focusLink(int link);

    /// Where \a link leads; nothing when there is no such link.
    std::optional<LinkKey> key(std::optional<int> link) const;

    /// The part of the layout that is seen, \a width wide.
    QRect visibleRect(int width) const { return {0, offset_ + layout_.area().top, width, viewHeight_}; }
    /// Paints what is seen, \a width wide, with the upper left corner of the view at the painter's origin.
    void paint(QPainter& painter, int width) const;

  private:
    int lineCount() const { return static_cast<int>(layout_.lines().size()); }
    void showLink(int link);

    RtfLayout layout_;
    LinkHighlight highlight_;
    std::optional<QPoint> pointer_;
    int viewHeight_ = 0;
    int offset_ = 0;
};

}  // namespace sarne
