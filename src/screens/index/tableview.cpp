#include "screens/index/tableview.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

#include "core/unbreakable.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"
#include "forms/largertext.h"
#include "forms/panel.h"

namespace sarne {
namespace {

const TextFont kFont{QStringLiteral("Arial"), 12};
const TextFont kHeadFont{QStringLiteral("Arial"), 12, true};
constexpr QColor kOtherRow(234, 221, 190);  // paper a shade darker, so that the eye keeps to its row

}  // namespace

TableView::TableView(Form& form, const QString& name) : Control(form, name) {
    setFocusPolicy(Qt::ClickFocus);
}

TextFont TableView::scaled(const TextFont& font) const {
    return larger(font, form().textScale());
}

void TableView::layOutAgain() {
    const int row = rows_.selected();
    setTable(std::move(table_));
    if (row != RowPaging::kNone) select(row);
}

void TableView::setTable(LookupTable table) {
    table_ = std::move(table);
    layout_ = TableLayout::of(table_, twips().width(), scaled(kFont), scaled(kHeadFont));
    rows_.reset(layout_.heights, twips().height() - layout_.headHeight);
    hovered_ = pressed_ = RowPaging::kNone;
    setAccessibleName(table_.title);
    changed(true);
}

void TableView::changed(bool something) {
    if (!something) return;
    update();
    Q_EMIT moved();
}

void TableView::scrollBy(int rows) {
    changed(rows_.scrollBy(rows));
}

void TableView::select(int row) {
    changed(rows_.select(row));
}

void TableView::openSelected() {
    if (rows_.selected() != RowPaging::kNone) Q_EMIT opened(rows_.selected());
}

QString TableView::rowText(int row) const {
    if (row < 0 || row >= rows_.count()) return {};
    const QStringList& cells = table_.rows[static_cast<size_t>(row)].cells;
    QStringList parts{cells.first()};
    for (qsizetype column = 1; column < cells.size(); ++column) {
        if (!cells[column].isEmpty()) parts << table_.columns[column] + QStringLiteral(": ") + cells[column];
    }
    return parts.join(QStringLiteral(", "));
}

int TableView::currentPart() const {
    return rows_.selected() == RowPaging::kNone ? -1 : (rows_.selected() + 1) * partColumns();
}

AccessiblePart TableView::part(int index) const {
    const int row = index / partColumns() - 1, column = index % partColumns();
    if (row < 0) return {table_.columns.value(column), QAccessible::ColumnHeader, {}, {}, false, false};
    if (row >= rows_.count()) return {};
    AccessiblePart cell{table_.rows[static_cast<size_t>(row)].cells.value(column), QAccessible::Cell,
                        cellRect(row, column)};
    cell.isCurrent = row == rows_.selected();
    if (column > 0) return cell;
    // The first cell stands for its row, as the keyboard goes from row to row.
    const QString rest = rowText(row).mid(cell.name.size() + 2);
    cell.description = (rest.isEmpty() ? rest : rest + QStringLiteral(", ")) + placeAmong(row, rows_.count());
    return cell;
}

void TableView::usePart(int index) {
    select(index / partColumns() - 1);
    openSelected();
}

QRect TableView::rowRect(int row) const {
    if (!rows_.sees(row)) return {};
    int top = layout_.headHeight;
    for (int above = rows_.top(); above < row; ++above) top += rows_.height(above);
    return {0, top, twips().width(), rows_.height(row)};
}

QRect TableView::cellRect(int row, int column) const {
    const QRect place = rowRect(row);
    if (place.isEmpty() || column < 0 || column >= static_cast<int>(layout_.lefts.size())) return {};
    const auto index = static_cast<size_t>(column);
    return {layout_.lefts[index], place.top(), layout_.widths[index], place.height()};
}

int TableView::rowAt(QPoint at) const {
    for (int row = rows_.top(); row < rows_.end(); ++row) {
        if (rowRect(row).contains(at)) return row;
    }
    return RowPaging::kNone;
}

int TableView::linkAt(QPoint at) const {
    const int row = rowAt(at);
    if (row == RowPaging::kNone || table_.rows[static_cast<size_t>(row)].keyword == 0)
        return RowPaging::kNone;
    // Of an index the whole row is the link; of a table the name, so that a row can be marked while reading.
    return table_.hasLetters || cellRect(row, 0).contains(at) ? row : RowPaging::kNone;
}

void TableView::mousePressEvent(QMouseEvent* event) {
    Control::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = toTwips(event->position());
    pressed_ = linkAt(at);
    if (const int row = rowAt(at); row != RowPaging::kNone) select(row);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
    Control::mouseReleaseEvent(event);
    const int row = std::exchange(pressed_, RowPaging::kNone);
    if (row != RowPaging::kNone && row == linkAt(toTwips(event->position()))) Q_EMIT opened(row);
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
    Control::mouseDoubleClickEvent(event);
    const int row = rowAt(toTwips(event->position()));
    if (event->button() == Qt::LeftButton && row != RowPaging::kNone) Q_EMIT opened(row);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    Control::mouseMoveEvent(event);
    setHovered(linkAt(toTwips(event->position())));
}

void TableView::leaveEvent(QEvent* event) {
    Control::leaveEvent(event);
    setHovered(RowPaging::kNone);
}

void TableView::setHovered(int row) {
    if (row == hovered_) return;
    hovered_ = row;
    if (row == RowPaging::kNone)
        unsetCursor();
    else
        setCursor(Qt::PointingHandCursor);
    update();
}

void TableView::wheelEvent(QWheelEvent* event) {
    scrollBy(wheel_.take(*event));
    event->accept();
}

void TableView::paintCell(QPainter& painter, const QRect& cell, const QString& text) const {
    const QRect room = cell.adjusted(TableLayout::kPadding, TableLayout::kLeading, -TableLayout::kPadding,
                                     -TableLayout::kLeading);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, unbroken(text));
}

void TableView::paintHead(QPainter& painter) const {
    painter.fillRect(QRect(0, 0, twips().width(), layout_.headHeight), colors::kTeal);
    painter.setFont(scaled(kHeadFont).toQFont());
    painter.setPen(colors::kTitle);
    for (size_t column = 0; column < layout_.lefts.size(); ++column) {
        const QRect cell(layout_.lefts[column], 0, layout_.widths[column], layout_.headHeight);
        painter.drawText(cell.adjusted(TableLayout::kPadding, 0, -TableLayout::kPadding, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
                         table_.columns[static_cast<qsizetype>(column)]);
    }
}

void TableView::paintRow(QPainter& painter, int row) const {
    const LookupRow& content = table_.rows[static_cast<size_t>(row)];
    const bool selected = row == rows_.selected();
    if (selected) {
        painter.fillRect(rowRect(row), form().eyes().selected());
        paintRowFrame(painter, rowRect(row));
    } else if (row % 2 == 1)
        painter.fillRect(rowRect(row), kOtherRow);
    for (int column = 0; column < static_cast<int>(layout_.lefts.size()); ++column) {
        const bool link = column == 0 && content.keyword != 0;
        QFont font = scaled(kFont).toQFont();
        font.setBold(link);
        font.setUnderline(link && row == hovered_);
        painter.setFont(font);
        painter.setPen(selected ? colors::kPaper : link ? form().eyes().linkInk() : colors::kInk);
        paintCell(painter, cellRect(row, column), content.cells[column]);
    }
}

void TableView::paint(QPainter& painter) {
    painter.setClipRect(QRect({0, 0}, twips().size()));
    if (!table_.isEmpty()) paintHead(painter);
    for (int row = rows_.top(); row < rows_.end(); ++row) paintRow(painter, row);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
