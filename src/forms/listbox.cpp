#include "forms/listbox.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "forms/colors.h"

namespace sarne {
namespace {

using Reach = ListSelection::Reach;

constexpr int kBorder = 30;
constexpr int kPadding = 90;     // above the first row, where the focus ring is
constexpr int kRowGap = 60;      // between the texts of two rows
constexpr int kTextInset = 120;  // from the left edge to the texts
constexpr int kBarWidth = 240;   // of the scroll bar
constexpr int kShortestThumb = 300;
constexpr int kWheelRows = 3;
constexpr int kTypingPause = 1000;  // milliseconds after which letters begin a new word

/// \a text as a hurried typist sees it: without case and accents.
QString plainLetters(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D).toCaseFolded()) {
        if (c.category() != QChar::Mark_NonSpacing) plain += c;
    }
    return plain;
}

Reach reachOf(Qt::KeyboardModifiers modifiers, Reach withCtrl) {
    const bool shift = modifiers & Qt::ShiftModifier, ctrl = modifiers & Qt::ControlModifier;
    if (shift) return ctrl ? Reach::AddRange : Reach::Range;
    return ctrl ? withCtrl : Reach::Only;
}

}  // namespace

ListBox::ListBox(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::StrongFocus);
}

void ListBox::setFont(const TextFont& font) {
    font_ = font;
    update();
}

void ListBox::addItem(const QString& text, std::int32_t itemData) {
    items_.push_back({text, itemData});
    selection_.resize(listCount());
    update();
}

void ListBox::removeItem(int index) {
    if (index < 0 || index >= listCount()) return;
    items_.erase(items_.begin() + index);
    selection_.remove(index);
    scrollTo(top_);
    changed();
}

void ListBox::setItems(const QStringList& texts, const std::vector<std::int32_t>& itemData) {
    items_.clear();
    selection_.clear();
    for (size_t i = 0; i < itemData.size() && static_cast<qsizetype>(i) < texts.size(); ++i)
        items_.push_back({texts[static_cast<qsizetype>(i)], itemData[i]});
    selection_.resize(listCount());
    top_ = 0;
    changed();
}

void ListBox::clear() {
    setItems({}, {});
}

QString ListBox::text(int index) const {
    return index >= 0 && index < listCount() ? items_[static_cast<size_t>(index)].text : QString();
}

std::int32_t ListBox::itemData(int index) const {
    return index >= 0 && index < listCount() ? items_[static_cast<size_t>(index)].data : 0;
}

int ListBox::indexOf(std::int32_t itemData) const {
    const auto found = std::ranges::find(items_, itemData, &Item::data);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ListBox::setListIndex(int index) {
    if (index >= 0) return go(index, Reach::Only);
    selection_.clear();
    changed();
}

void ListBox::go(int index, Reach reach) {
    selection_.go(index, reach);
    showCurrent();
    changed();
}

void ListBox::showCurrent() {
    const int current = listIndex();
    if (current < 0) return;
    if (current < top_) scrollTo(current);
    if (current >= top_ + visibleRows()) scrollTo(current - visibleRows() + 1);
}

void ListBox::changed() {
    update();
    Q_EMIT selectionChanged();
    QAccessibleValueChangeEvent event(this, accessibleValue());
    QAccessible::updateAccessibility(&event);
}

int ListBox::rowHeight() const {
    return static_cast<int>(std::ceil(QFontMetricsF(font_.toQFont()).height())) + kRowGap;
}

int ListBox::visibleRows() const {
    return std::max(1, (twips().height() - 2 * kPadding) / rowHeight());
}

int ListBox::maxTop() const {
    return std::max(0, listCount() - visibleRows());
}

void ListBox::scrollTo(int topIndex) {
    top_ = std::clamp(topIndex, 0, maxTop());
    update();
}

QRect ListBox::rowRect(int index) const {
    if (index < top_ || index >= std::min(listCount(), top_ + visibleRows())) return {};
    const int right = maxTop() > 0 ? kBarWidth : 0;
    return {kBorder, kPadding + (index - top_) * rowHeight(), twips().width() - 2 * kBorder - right,
            rowHeight()};
}

int ListBox::rowAt(int y) const {
    return top_ + static_cast<int>(std::floor(double(y - kPadding) / rowHeight()));
}

QRect ListBox::scrollTrack() const {
    if (maxTop() == 0) return {};
    return {twips().width() - kBorder - kBarWidth, kBorder, kBarWidth, twips().height() - 2 * kBorder};
}

QRect ListBox::thumb() const {
    const QRect track = scrollTrack();
    if (track.isEmpty()) return {};
    const int height =
        std::min(track.height(), std::max(kShortestThumb, track.height() * visibleRows() / listCount()));
    const int way = track.height() - height;
    return {track.left(), track.top() + static_cast<int>(qint64(way) * top_ / maxTop()), kBarWidth, height};
}

void ListBox::pressScrollBar(QPoint at) {
    const QRect held = thumb();
    if (held.contains(at)) {
        drag_ = Drag::Thumb;
        grab_ = at.y() - held.top();
        return;
    }
    scrollTo(top_ + (at.y() < held.top() ? -1 : 1) * std::max(1, visibleRows() - 1));
}

void ListBox::pressRow(int row, Qt::KeyboardModifiers modifiers) {
    if (row < 0 || row >= listCount()) return;
    drag_ = Drag::Rows;
    typed_.clear();
    go(row, reachOf(modifiers, Reach::Toggle));
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setFocus(Qt::MouseFocusReason);
    const QPoint at = toTwips(event->position());
    if (scrollTrack().contains(at)) return pressScrollBar(at);
    pressRow(rowAt(at.y()), event->modifiers());
    Control::mousePressEvent(event);
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
    Control::mouseMoveEvent(event);
    const QPoint at = toTwips(event->position());
    if (drag_ == Drag::Thumb) {
        const int way = scrollTrack().height() - thumb().height();
        const int offset = at.y() - grab_ - scrollTrack().top();
        scrollTo(way > 0 ? qRound(double(offset) * maxTop() / way) : 0);
    } else if (drag_ == Drag::Rows && !items_.empty()) {
        const int row = std::clamp(rowAt(at.y()), 0, listCount() - 1);
        if (row != listIndex()) go(row, Reach::Range);
    }
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    drag_ = Drag::None;
    Control::mouseReleaseEvent(event);
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint at = toTwips(event->position());
    if (scrollTrack().contains(at)) return pressScrollBar(at);
    Control::mouseDoubleClickEvent(event);
}

void ListBox::wheelEvent(QWheelEvent* event) {
    const int notches = event->angleDelta().y();
    if (notches != 0) scrollTo(top_ + (notches < 0 ? kWheelRows : -kWheelRows));
    event->accept();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (moveKey(*event) || markKey(*event) || letterKey(*event)) return event->accept();
    Control::keyPressEvent(event);
}

bool ListBox::moveKey(const QKeyEvent& event) {
    if (event.modifiers() & Qt::AltModifier) return false;
    int target = listIndex();
    switch (event.key()) {
        case Qt::Key_Up:
            target = std::max(0, target - 1);
            break;
        case Qt::Key_Down:
            ++target;
            break;
        case Qt::Key_PageUp:
            target = std::max(0, target - std::max(1, visibleRows() - 1));
            break;
        case Qt::Key_PageDown:
            target += std::max(1, visibleRows() - 1);
            break;
        case Qt::Key_Home:
            target = 0;
            break;
        case Qt::Key_End:
            target = listCount() - 1;
            break;
        default:
            return false;
    }
    typed_.clear();
    go(target, reachOf(event.modifiers(), Reach::MoveOnly));
    return true;
}

bool ListBox::markKey(const QKeyEvent& event) {
    const bool ctrl = event.modifiers() & Qt::ControlModifier;
    if (ctrl && event.key() == Qt::Key_A) {
        selection_.markAll();
        changed();
        return true;
    }
    if (event.key() != Qt::Key_Space || (!ctrl && !typed_.isEmpty() && !typing_.hasExpired(kTypingPause)))
        return false;
    if (listIndex() >= 0) go(listIndex(), ctrl ? Reach::Toggle : Reach::Only);
    return true;
}

bool ListBox::letterKey(const QKeyEvent& event) {
    const QString text = event.text();
    const bool printable = !text.isEmpty() && text[0].isPrint();
    if (!printable || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))) return false;
    const QString letter = plainLetters(text);
    if (letter.isEmpty()) return true;
    const bool fresh = !typing_.isValid() || typing_.hasExpired(kTypingPause);
    typing_.restart();
    // The same letter again and again goes through the entries that begin with it.
    if (fresh || typed_ == letter) typed_.clear();
    typed_ += letter;
    jumpTo(typed_);
    return true;
}

void ListBox::jumpTo(const QString& prefix) {
    const int from = prefix.size() == 1 ? listIndex() + 1 : std::max(0, listIndex());
    for (int step = 0; step < listCount(); ++step) {
        const int index = (from + step) % listCount();
        if (!plainLetters(text(index)).startsWith(prefix)) continue;
        return go(index, Reach::Only);
    }
}

void ListBox::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    painter.setPen(QPen(colors::kCopper, kBorder));
    painter.setBrush(colors::kPaper);
    painter.drawRect(QRectF(place).adjusted(kBorder / 2., kBorder / 2., -kBorder / 2., -kBorder / 2.));
    painter.setFont(font_.toQFont());
    const int end = std::min(listCount(), top_ + visibleRows());
    for (int index = top_; index < end; ++index) paintRow(painter, index);
    if (maxTop() > 0) paintScrollBar(painter);
    if (showsFocus()) paintFocusRing(painter, place);
}

void ListBox::paintRow(QPainter& painter, int index) const {
    const QRect row = rowRect(index);
    const bool marked = selection_.isMarked(index);
    if (marked) painter.fillRect(row, colors::kSelected);
    QColor ink = marked ? colors::kPaper : colors::kInk;
    if (!isEnabled()) ink.setAlphaF(.6f);
    painter.setPen(ink);
    const QRect room = row.adjusted(kTextInset, 0, -kTextInset / 2, 0);
    const QString shown =
        QFontMetricsF(painter.font()).elidedText(text(index), Qt::ElideRight, room.width() + 1);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    if (index != listIndex() || !showsFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 15, Qt::DotLine));
    painter.drawRect(row.adjusted(45, 15, -45, -15));
}

void ListBox::paintScrollBar(QPainter& painter) const {
    painter.fillRect(scrollTrack(), colors::kPaper.darker(115));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kCopper.darker(drag_ == Drag::Thumb ? 130 : 110));
    painter.drawRoundedRect(QRectF(thumb()).adjusted(45, 15, -45, -15), 60, 60);
}

}  // namespace sarne
