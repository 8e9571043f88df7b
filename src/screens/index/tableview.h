#pragma once

#include "core/rowpaging.h"
#include "forms/control.h"
#include "forms/wheelsteps.h"
#include "screens/index/lookuptable.h"
#include "screens/index/tablelayout.h"

namespace sarne {

/// Shows a table, one of its rows selected. A click selects a row; a double click, or a click on the name of
/// a row that has a keyword, opens it; in an index a click anywhere in the row does. Scrolls by whole rows.
class TableView : public Control {
    Q_OBJECT
  public:
    TableView(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Table; }
    QRect focusPlace() const override { return {{0, 0}, twips().size()}; }
    QString accessibleValue() const override { return rowText(rows_.selected()); }
    int partColumns() const override { return std::max(1, static_cast<int>(layout_.lefts.size())); }
    int partCount() const override { return table_.isEmpty() ? 0 : (rows_.count() + 1) * partColumns(); }
    AccessiblePart part(int index) const override;
    int currentPart() const override;
    void usePart(int index) override;

    /// Shows \a table from its first row. The control must have its place by now.
    void setTable(LookupTable table);
    const LookupTable& table() const { return table_; }
    /// After the eyes need another size; the selected row stays.
    void layOutAgain();
    const RowPaging& rows() const { return rows_; }

    void scrollBy(int rows);
    /// Half of what is seen, at least one row.
    int halfPage() const { return std::max(1, (rows_.end() - rows_.top()) / 2); }
    void select(int row);
    void moveRow(int rows) { changed(rows_.moveBy(rows)); }
    void movePage(int pages) { changed(rows_.movePage(pages)); }
    void moveToFirst() { select(0); }
    void moveToLast() { select(rows_.count() - 1); }
    void jumpTo(int row) { changed(rows_.jumpTo(row)); }
    /// Opens the selected row.
    void openSelected();

    /// The cells of a row, heading by heading; empty when there is no such row.
    QString rowText(int row) const;
    /// Where row \a row is seen, in twips of the control; empty when it is not.
    QRect rowRect(int row) const;
    /// Where the cell of \a column in \a row is seen.
    QRect cellRect(int row, int column) const;

  Q_SIGNALS:
    /// Another row is selected, or others are seen.
    void moved();
    /// The user wants what the row opens.
    void opened(int row);

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    TextFont scaled(const TextFont& font) const;
    void changed(bool something);
    int rowAt(QPoint twips) const;
    /// The row that a click at \a twips opens, or none.
    int linkAt(QPoint twips) const;
    void setHovered(int row);
    void paintHead(QPainter& painter) const;
    void paintRow(QPainter& painter, int row) const;
    void paintCell(QPainter& painter, const QRect& cell, const QString& text) const;

    LookupTable table_;
    TableLayout layout_;
    RowPaging rows_;
    WheelSteps wheel_{2};
    int hovered_ = RowPaging::kNone;
    int pressed_ = RowPaging::kNone;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
