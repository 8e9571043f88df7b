#pragma once

#include <algorithm>
#include <vector>

#include "core/rowpaging.h"
#include "forms/control.h"
#include "forms/picture.h"
#include "forms/wheelsteps.h"
#include "richtext/surface.h"

namespace sarne {

/// A row of a TickList.
struct TickRow {
    enum class Kind {
        Item,     ///< with a box to tick
        Plain,    ///< without one
        Heading,  ///< what the rows below it are; the keyboard passes over it
        Fold,     ///< opens or closes the rows below it
    };
    Kind kind = Kind::Item;
    QString text;
    QString right;  ///< at the right edge: an amount
    QString below;  ///< smaller, on a line of its own
    bool ticked = false;
    Picture picture = {};  ///< of a heading: at its left
};

/// Rows that are ticked off, on paper: by a click anywhere in the row, or by Space on the selected one.
/// Ticked rows are struck out. Scrolls by whole rows.
class TickList : public Control {
    Q_OBJECT
  public:
    TickList(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::List; }
    QString accessibleValue() const override;
    int partCount() const override { return static_cast<int>(rows_.size()); }
    AccessiblePart part(int index) const override;
    int currentPart() const override { return selected() == RowPaging::kNone ? -1 : selected(); }
    void usePart(int index) override;

    /// The size of the rows' text in points; the smaller text and the boxes follow it.
    void setPoints(double points);
    /// Shows \a rows. The selection and what is seen stay where they were, as far as there are rows. The
    /// control must have its place by now.
    /// \a done says what becomes of ticked rows: struck out, or left as they are.
    enum class Done { StruckOut, Kept };
    void setRows(std::vector<TickRow> rows, Done done = Done::StruckOut);
    const std::vector<TickRow>& rows() const { return rows_; }
    const RowPaging& paging() const { return paging_; }
    int selected() const { return paging_.selected(); }
    void select(int row);
    void scrollBy(int rows);

    // These move the selection over what cannot be selected; without one they begin at the first row seen.

    void moveRow(int rows);
    void movePage(int pages) { moveRow(pages * std::max(1, paging_.end() - paging_.top() - 1)); }
    void moveToFirst() { moveRow(-paging_.count()); }
    void moveToLast() { moveRow(paging_.count()); }

    /// The arrows, Page keys, Home, End and Space. False for any other key.
    bool keyDown(const QKeyEvent& event);
    /// Lays the rows out anew where the texts have another size now.
    void rescale() override;
    /// Where row \a row is seen, in twips of the control; empty when it is not.
    QRect rowRect(int row) const;

  Q_SIGNALS:
    /// The user has ticked row \a row or wants it folded.
    void used(int row);
    /// Another row is selected, or others are seen.
    void moved();

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int heightOf(const TickRow& row) const;
    int belowHeight(const TickRow& row) const;
    int textWidth(const TickRow& row) const;
    int twipsOf(double points) const;
    bool canBeSelected(int row) const;
    void changed(bool something);
    int rowAt(QPoint twips) const;
    TextFont font(double share, bool bold) const;
    void paintRow(QPainter& painter, int row) const;
    QRect paintLead(QPainter& painter, const TickRow& row, const QRect& place) const;
    void paintTexts(QPainter& painter, const TickRow& row, const QRect& room) const;
    void paintBelow(QPainter& painter, const TickRow& row, const QRect& room) const;
    void paintPosition(QPainter& painter) const;
    void paintBox(QPainter& painter, const QRect& place, const TickRow& row) const;

    std::vector<TickRow> rows_;
    RowPaging paging_;
    WheelSteps wheel_{2};
    double points_ = 14, laidOutFor_ = 0;
    Done done_ = Done::StruckOut;
    Picture on_, off_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
