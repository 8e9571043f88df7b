#pragma once

#include <cstdint>
#include <vector>

#include "forms/control.h"
#include "richtext/surface.h"

class QListView;
class QStringListModel;

namespace sarne {

/// A list of texts, each with a number of its own, of which several can be marked, as everywhere: by a click
/// or an arrow key, with Shift or Ctrl for more. Letters jump to the entry that begins with them, whatever
/// its case and accents; Enter and the other keys that a list has no use for go to the form. Entries are
/// counted from 0.
class ListBox : public Control {
    Q_OBJECT
  public:
    ListBox(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Client; }
    QRect focusPlace() const override { return {{0, 0}, twips().size()}; }
    QString accessibleValue() const override { return text(listIndex()); }

    void setFont(const TextFont& font);
    /// Replaces all entries; none is marked.
    void setItems(const QStringList& texts, const std::vector<std::int32_t>& itemData);

    int listCount() const { return static_cast<int>(items_.size()); }
    /// An entry's text and number; empty and 0 when there is no such entry.
    QString text(int index) const;
    std::int32_t itemData(int index) const;

    /// The current entry, -1 when there is none.
    int listIndex() const;
    /// Makes the entry the current and only marked one and shows it; -1 marks nothing.
    void setListIndex(int index);
    /// The marked entries, in the order of the list.
    std::vector<int> marked() const;

    /// The first entry that shows.
    int topIndex() const;
    void scrollTo(int topIndex);
    /// The view that shows the entries: its rows are what the mouse hits.
    QListView& view() const { return *view_; }

    void rescale() override;

  protected:
    void paint(QPainter& painter) override;

  private:
    QListView* view_;
    QStringListModel* texts_;
    std::vector<std::int32_t> items_;
    TextFont font_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
