#include "screens/kitchen/ticklist.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "core/unbreakable.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"
#include "forms/keys.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/resources.h"

namespace sarne {
namespace {

const QString kFamily = QStringLiteral("Arial");
constexpr double kSmall = .72;     // the smaller text, of the row's
constexpr double kLead = 1.75;     // a row's height, of its text's size
constexpr double kPictured = 2.6;  // the height of a heading with a picture
constexpr int kTwipsOfPoint = 20;
constexpr int kEdge = 120;  // twips left and right of a row
constexpr int kBoxGap = 150;
constexpr int kBar = 75;
constexpr QColor kSoftInk(92, 70, 50);

QString spoken(const TickRow& row) {
    QStringList parts{row.text, row.right, row.below};
    if (row.ticked) parts << Texts::tr("odškrtnuto");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

}  // namespace

TickList::TickList(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
    on_ = form.resources().picture(QStringLiteral("Zaskrtnuto"));
    off_ = form.resources().picture(QStringLiteral("Nezaskrtnuto"));
}

QString TickList::accessibleValue() const {
    const int row = selected();
    return row == RowPaging::kNone ? QString() : spoken(rows_[static_cast<size_t>(row)]);
}

AccessiblePart TickList::part(int index) const {
    if (index < 0 || index >= partCount()) return {};
    const TickRow& row = rows_[static_cast<size_t>(index)];
    AccessiblePart part;
    QStringList words{row.text, row.right, row.below};
    words.removeAll(QString());
    part.name = words.join(QStringLiteral(", "));
    part.place = rowRect(index);
    part.description = placeAmong(index, partCount());
    part.isCurrent = index == selected();
    part.isCheckable = row.kind == TickRow::Kind::Item;
    part.isChecked = part.isCheckable && row.ticked;
    part.isUsable = row.kind != TickRow::Kind::Heading;
    part.role = !part.isUsable     ? QAccessible::Heading
                : part.isCheckable ? QAccessible::CheckBox
                                   : QAccessible::ListItem;
    return part;
}

void TickList::usePart(int index) {
    if (!canBeSelected(index)) return;
    select(index);
    Q_EMIT used(index);
}

void TickList::setPoints(double points) {
    points_ = points;
    setRows(rows_, done_);
}

int TickList::twipsOf(double points) const {
    return static_cast<int>(points * form().textScale() * kTwipsOfPoint);
}

TextFont TickList::font(double share, bool bold) const {
    return {kFamily, points_ * form().textScale() * share, bold};
}

/// What a row's box and amount leave for its text.
int TickList::textWidth(const TickRow& row) const {
    const bool hasBox = row.kind == TickRow::Kind::Item || row.kind == TickRow::Kind::Fold;
    const int box = hasBox ? twipsOf(points_ * 1.25) + kBoxGap : 0;
    const int right = row.right.isEmpty() ? 0 : Label::measure(row.right, font(1, true)).width() + kBoxGap;
    return std::max(twipsOf(points_), twips().width() - 2 * kEdge - kBar - box - right);
}

/// One line; more of them where the texts are larger than designed, so that no less of it is read.
int TickList::belowHeight(const TickRow& row) const {
    const int line = twipsOf(points_ * kSmall * 1.1);
    if (row.below.isEmpty()) return 0;
    if (form().textScale() <= 1) return line;
    TickRow alone = row;
    alone.right.clear();
    return std::max(line, Label::measure(row.below, font(kSmall, false), textWidth(alone)).height());
}

int TickList::heightOf(const TickRow& row) const {
    if (!row.picture.isNull()) return twipsOf(points_ * kPictured);
    const int line = twipsOf(points_ * kLead);
    const bool bold = row.kind == TickRow::Kind::Heading || row.kind == TickRow::Kind::Fold;
    const int lines = std::max(
        1, Label::measure(row.text, font(1, bold), textWidth(row)).height() / std::max(1, twipsOf(points_)));
    return line + (lines - 1) * twipsOf(points_ * 1.15) + belowHeight(row);
}

void TickList::rescale() {
    Control::rescale();
    if (laidOutFor_ != form().textScale()) setRows(std::vector(rows_), done_);
}

void TickList::setRows(std::vector<TickRow> rows, Done done) {
    done_ = done;
    laidOutFor_ = form().textScale();
    const int top = paging_.top(), wanted = selected();
    rows_ = std::move(rows);
    std::vector<int> heights;
    for (const TickRow& row : rows_) heights.push_back(heightOf(row));
    paging_.reset(heights, twips().height());
    paging_.scrollBy(top);
    if (wanted != RowPaging::kNone) select(wanted);
    changed(true);
}

bool TickList::canBeSelected(int row) const {
    return row >= 0 && row < paging_.count() &&
           rows_[static_cast<size_t>(row)].kind != TickRow::Kind::Heading;
}

void TickList::select(int row) {
    int wanted = std::clamp(row, 0, std::max(0, paging_.count() - 1));
    while (wanted < paging_.count() && !canBeSelected(wanted)) ++wanted;
    if (canBeSelected(wanted)) changed(paging_.select(wanted));
}

void TickList::scrollBy(int rows) {
    changed(paging_.scrollBy(rows));
}

void TickList::moveRow(int rows) {
    const int direction = rows < 0 ? -1 : 1;
    int wanted = selected() == RowPaging::kNone ? paging_.top() - direction : selected();
    wanted = std::clamp(wanted + rows, 0, std::max(0, paging_.count() - 1));
    while (wanted >= 0 && wanted < paging_.count() && !canBeSelected(wanted)) wanted += direction;
    if (canBeSelected(wanted)) changed(paging_.select(wanted));
    if (selected() == 1 && !canBeSelected(0)) changed(paging_.scrollBy(-1));  // the heading above the first
}

void TickList::changed(bool something) {
    if (!something) return;
    update();
    Q_EMIT moved();
}

bool TickList::keyDown(const QKeyEvent& event) {
    if (moveInList(*this, event.key())) return true;
    if (event.key() != Qt::Key_Space) return false;
    if (selected() != RowPaging::kNone) Q_EMIT used(selected());
    return true;
}

QRect TickList::rowRect(int row) const {
    if (!paging_.sees(row)) return {};
    int top = 0;
    for (int above = paging_.top(); above < row; ++above) top += paging_.height(above);
    return {0, top, twips().width(), paging_.height(row)};
}

int TickList::rowAt(QPoint at) const {
    for (int row = paging_.top(); row < paging_.end(); ++row)
        if (rowRect(row).contains(at)) return row;
    return RowPaging::kNone;
}

void TickList::mousePressEvent(QMouseEvent* event) {
    Control::mousePressEvent(event);
    const int row = rowAt(toTwips(event->position()));
    if (event->button() != Qt::LeftButton || !canBeSelected(row)) return;
    select(row);
    Q_EMIT used(row);
}

void TickList::wheelEvent(QWheelEvent* event) {
    scrollBy(wheel_.take(*event));
    event->accept();
}

void TickList::paintBox(QPainter& painter, const QRect& place, const TickRow& row) const {
    if (row.kind == TickRow::Kind::Fold) {
        painter.drawText(place, Qt::AlignCenter, row.ticked ? QStringLiteral("▾") : QStringLiteral("▸"));
        return;
    }
    const Picture& mark = row.ticked ? on_ : off_;
    if (!mark.isNull()) return mark.draw(painter, place, Fit::Inside);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place);
    if (row.ticked) painter.drawLine(place.bottomLeft(), place.topRight());
}

void TickList::paintRow(QPainter& painter, int row) const {
    const TickRow& content = rows_[static_cast<size_t>(row)];
    const QRect place = rowRect(row);
    const bool isSelected = row == selected() && showsFocus();
    const bool isHeading = content.kind == TickRow::Kind::Heading;
    if (isSelected) {
        painter.fillRect(place, form().eyes().selected());
        paintRowFrame(painter, place);
    }
    if (isHeading) painter.fillRect(place.adjusted(0, 30, 0, -15), colors::kTeal);
    painter.setPen(isHeading ? colors::kTitle : isSelected ? colors::kPaper : colors::kInk);
    const QRect room = paintLead(painter, content, place);
    paintTexts(painter, content, room);
    painter.setPen(isSelected ? colors::kPaper : kSoftInk);
    paintBelow(painter, content, room);
}

/// Draws the box and the picture in front of a row's texts; the room that is left for these.
QRect TickList::paintLead(QPainter& painter, const TickRow& row, const QRect& place) const {
    QRect room = place.adjusted(kEdge, 0, -kEdge - kBar, 0);
    if (row.kind == TickRow::Kind::Item || row.kind == TickRow::Kind::Fold) {
        const int side = twipsOf(points_ * 1.25);
        painter.setFont(font(1, true).toQFont());
        paintBox(painter, {room.left(), place.top() + (twipsOf(points_ * kLead) - side) / 2, side, side},
                 row);
        room.setLeft(room.left() + side + kBoxGap);
    }
    if (!row.picture.isNull()) {
        const int side = place.height() - 75;
        row.picture.draw(painter, QRect(room.left(), place.top() + 45, side, side), Fit::Inside);
        room.setLeft(room.left() + place.height());
    }
    return room;
}

/// The text, and at the right of its first line the amount.
void TickList::paintTexts(QPainter& painter, const TickRow& row, const QRect& room) const {
    painter.setFont(font(1, true).toQFont());
    const QRect first(room.left(), room.top(), room.width(), twipsOf(points_ * kLead));
    painter.drawText(first, Qt::AlignRight | Qt::AlignVCenter, row.right);
    const int amount = row.right.isEmpty() ? 0 : Label::measure(row.right, font(1, true)).width() + kBoxGap;
    const bool bold = row.kind == TickRow::Kind::Heading || row.kind == TickRow::Kind::Fold;
    QFont named = font(1, bold).toQFont();
    named.setStrikeOut(row.ticked && row.kind == TickRow::Kind::Item && done_ == Done::StruckOut);
    painter.setFont(named);
    painter.drawText(room.adjusted(0, 0, -amount, -belowHeight(row)),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, unbroken(row.text));
}

void TickList::paintBelow(QPainter& painter, const TickRow& row, const QRect& room) const {
    painter.setFont(font(kSmall, false).toQFont());
    const int height = belowHeight(row) + 30;
    const QRect small(room.left(), room.bottom() - height, room.width(), height);
    if (form().textScale() > 1)
        return painter.drawText(small, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, row.below);
    painter.drawText(small, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                     QFontMetricsF(painter.font()).elidedText(row.below, Qt::ElideRight, room.width()));
}

/// Where in the list one is, at its right edge, when not all of it is seen.
void TickList::paintPosition(QPainter& painter) const {
    if (!paging_.canScroll()) return;
    const int height = twips().height(), count = paging_.count();
    const int top = height * paging_.top() / count, bottom = height * paging_.end() / count;
    const QRect track(twips().width() - kBar, 0, kBar, height);
    QColor ground = kSoftInk;
    ground.setAlpha(60);
    painter.fillRect(track, ground);
    painter.fillRect(QRect(track.left(), top, kBar, bottom - top), colors::kCopper);
}

void TickList::paint(QPainter& painter) {
    painter.setClipRect(QRect({0, 0}, twips().size()));
    for (int row = paging_.top(); row < paging_.end(); ++row) paintRow(painter, row);
    paintPosition(painter);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
