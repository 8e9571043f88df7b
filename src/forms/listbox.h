#pragma once

#include <QElapsedTimer>
#include <cstdint>
#include <vector>

#include "forms/control.h"
#include "forms/listselection.h"
#include "richtext/surface.h"

namespace sarne {

/// A list of texts, each with a number of its own, of which one or several can be marked. Letters jump to the
/// entry that begins with them; Enter and the other keys that a list has no use for go to the form. Entries
/// are counted from 0.
class ListBox : public Control {
    Q_OBJECT
  public:
    ListBox(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::List; }
    QString accessibleValue() const override { return text(listIndex()); }

    void setMode(ListSelection::Mode mode) { selection_.setMode(mode); }
    void setFont(const TextFont& font);

    void addItem(const QString& text, std::int32_t itemData);
    void removeItem(int index);
    /// Replaces all entries; none is marked.
    void setItems(const QStringList& texts, const std::vector<std::int32_t>& itemData);
    void clear();

    int listCount() const { return static_cast<int>(items_.size()); }
    /// An entry's text and number; empty and 0 when there is no such entry.
    QString text(int index) const;
    std::int32_t itemData(int index) const;
    /// The first entry with this number, -1 when there is none.
    int indexOf(std::int32_t itemData) const;

    /// The current entry, -1 when there is none.
    int listIndex() const { return selection_.current(); }
    /// Makes the entry the current and only marked one and shows it; -1 marks nothing.
    void setListIndex(int index);
    const ListSelection& selection() const { return selection_; }
    void go(int index, ListSelection::Reach reach);

    int topIndex() const { return top_; }
    void scrollTo(int topIndex);
    /// How many entries show.
    int visibleRows() const;
    /// The height of an entry in twips.
    int rowHeight() const;
    /// Where entry \a index shows, in twips of the list; empty when it does not.
    QRect rowRect(int index) const;

  Q_SIGNALS:
    /// Another entry is current, or others are marked.
    void selectionChanged();

  protected:
    void paint(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    struct Item {
        QString text;
        std::int32_t data;
    };
    enum class Drag { None, Rows, Thumb };

    int rowAt(int y) const;
    int maxTop() const;
    QRect scrollTrack() const;
    QRect thumb() const;
    void pressScrollBar(QPoint at);
    void pressRow(int row, Qt::KeyboardModifiers modifiers);
    bool moveKey(const QKeyEvent& event);
    bool markKey(const QKeyEvent& event);
    bool letterKey(const QKeyEvent& event);
    void jumpTo(const QString& prefix);
    void showCurrent();
    void changed();
    void paintRow(QPainter& painter, int index) const;
    void paintScrollBar(QPainter& painter) const;

    std::vector<Item> items_;
    ListSelection selection_;
    TextFont font_;
    int top_ = 0;
    Drag drag_ = Drag::None;
    int grab_ = 0;          // where the thumb is held, twips from its top
    QString typed_;         // the letters typed so far
    QElapsedTimer typing_;  // since the last one
};

}  // namespace sarne
