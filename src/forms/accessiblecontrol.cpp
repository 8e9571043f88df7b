#include "forms/accessiblecontrol.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <map>

#include "forms/accessiblepartinterface.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/showntexts.h"
#include "forms/stage.h"
#include "forms/textview.h"

namespace sarne {
namespace {

/// A control with what is within it.
class AccessibleControl : public QAccessibleWidget {
  public:
    explicit AccessibleControl(Control* control)
        : QAccessibleWidget(control, QAccessible::StaticText), control_(control) {}
    ~AccessibleControl() override {
        for (const auto& [index, id] : parts_) QAccessible::deleteAccessibleInterface(id);
    }

    QAccessible::Role role() const override { return control_->role(); }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return control_->accessibleValue();
        const QString said = QAccessibleWidget::text(kind);
        // The plate's words are the name: a description that says the same would be heard twice.
        return kind == QAccessible::Description && said == QAccessibleWidget::text(QAccessible::Name)
                   ? QString()
                   : said;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        control_->addAccessibleState(state);
        return state;
    }
    QStringList actionNames() const override {
        return control_->isPressable() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& action) override {
        // Queued: a click may open a dialog, and the reader would wait for its end.
        if (action == pressAction())
            QMetaObject::invokeMethod(control_, &Control::click, Qt::QueuedConnection);
    }

    int childCount() const override {
        const int parts = control_->partCount();
        return parts > 0 ? parts : QAccessibleWidget::childCount();
    }
    QAccessibleInterface* child(int index) const override {
        if (control_->partCount() == 0) return QAccessibleWidget::child(index);
        return index >= 0 && index < control_->partCount() ? partAt(index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (const auto& [index, id] : parts_)
            if (QAccessible::accessibleInterface(id) == child) return index;
        return QAccessibleWidget::indexOfChild(child);
    }
    QAccessibleInterface* focusChild() const override {
        const int current = control_->currentPart();
        return current >= 0 && control_->hasFocus() ? child(current) : QAccessibleWidget::focusChild();
    }

  protected:
    Control* control() const { return control_; }

  private:
    QAccessibleInterface* partAt(int index) const {
        const auto known = parts_.find(index);
        if (known != parts_.end()) return QAccessible::accessibleInterface(known->second);
        auto* made = new AccessiblePartInterface(control_, index);
        parts_[index] = QAccessible::registerAccessibleInterface(made);
        return made;
    }

    Control* control_;
    mutable std::map<int, QAccessible::Id> parts_;
};

/// A text that is read by caret: by line, word and character.
class AccessibleText final : public AccessibleControl, public QAccessibleTextInterface {
  public:
    explicit AccessibleText(TextView* view) : AccessibleControl(view), view_(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return AccessibleControl::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = AccessibleControl::state();
        state.readOnly = state.multiLine = state.focusable = true;
        return state;
    }

    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return static_cast<int>(view_->caret()); }
    void setCursorPosition(int position) override { view_->setCaret(position); }
    QString text(int start, int end) const override { return said().text().mid(start, end - start); }
    using AccessibleControl::text;
    int characterCount() const override { return static_cast<int>(said().text().size()); }
    QRect characterRect(int offset) const override {
        const QRect place = said().placeOf(offset).translated(0, -view_->scrolled());
        return {view_->mapToGlobal(view_->toPixels(place.topLeft())),
                view_->mapToGlobal(view_->toPixels(place.bottomRight()))};
    }
    int offsetAtPoint(const QPoint& point) const override {
        const QPoint at = view_->toTwips(view_->mapFromGlobal(QPointF(point)));
        return static_cast<int>(said().offsetAt(at + QPoint(0, view_->scrolled())));
    }
    void scrollToSubstring(int start, int) override { view_->setCaret(start); }
    QString attributes(int offset, int* start, int* end) const override {
        const auto line = said().lineAt(offset);
        *start = *end = offset;
        if (!line) return {};
        const ReadableText::Line& at = said().lines()[size_t(*line)];
        *start = static_cast<int>(at.start);
        *end = static_cast<int>(at.start + at.length);
        return at.isHeading ? QStringLiteral("font-weight:bold;level:2;") : QString();
    }

  private:
    const ReadableText& said() const { return view_->readable(); }

    TextView* view_;
};

/// How far a bar is, or a slider.
class AccessibleMeasure final : public AccessibleControl, public QAccessibleValueInterface {
  public:
    using AccessibleControl::AccessibleControl;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return AccessibleControl::interface_cast(type);
    }
    QVariant currentValue() const override { return range().value; }
    void setCurrentValue(const QVariant& value) override {
        if (control()->isEnabled()) control()->setAccessibleValue(qBound(0., value.toDouble(), range().most));
    }
    QVariant maximumValue() const override { return range().most; }
    QVariant minimumValue() const override { return 0.; }
    QVariant minimumStepSize() const override { return range().step; }

  private:
    AccessibleRange range() const { return control()->accessibleRange().value_or(AccessibleRange()); }
};

/// Rows and columns; the first row of parts are the headings.
class AccessibleTable final : public AccessibleControl, public QAccessibleTableInterface {
  public:
    using AccessibleControl::AccessibleControl;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
        return AccessibleControl::interface_cast(type);
    }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        return child((row + 1) * columnCount() + column);
    }
    int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
    QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> cells;
        for (int column = 0; column < columnCount() && selectedRowCount() > 0; ++column)
            cells << cellAt(currentRow(), column);
        return cells;
    }
    QString columnDescription(int column) const override { return control()->part(column).name; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return control()->currentPart() >= 0 ? 1 : 0; }
    int columnCount() const override { return std::max(1, control()->partColumns()); }
    int rowCount() const override { return std::max(0, control()->partCount() / columnCount() - 1); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override {
        return selectedRowCount() > 0 ? QList<int>{currentRow()} : QList<int>();
    }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool selectRow(int row) override {
        control()->usePart((row + 1) * columnCount());
        return true;
    }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

  private:
    int currentRow() const { return control()->currentPart() / columnCount() - 1; }
};

/// Those of \a widgets that can be heard, in the order in which they are read.
std::vector<QWidget*> inReadingOrder(const std::vector<QWidget*>& widgets) {
    std::vector<QRect> places;
    places.reserve(widgets.size());
    for (const QWidget* widget : widgets) places.push_back(widget->geometry());
    std::vector<QWidget*> ordered;
    for (const int index : readingOrder(places)) ordered.push_back(widgets[size_t(index)]);
    return ordered;
}

/// A widget whose children are chosen here.
class AccessibleRoom : public QAccessibleWidget {
  public:
    AccessibleRoom(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    int childCount() const override { return static_cast<int>(heard().size()); }
    QAccessibleInterface* child(int index) const override {
        const auto widgets = heard();
        return index >= 0 && index < static_cast<int>(widgets.size())
                   ? QAccessible::queryAccessibleInterface(widgets[size_t(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto widgets = heard();
        const auto at = std::ranges::find(widgets, child->object());
        return at == widgets.end() ? -1 : static_cast<int>(at - widgets.begin());
    }

  private:
    virtual std::vector<QWidget*> heard() const = 0;
};

class AccessibleForm final : public AccessibleRoom {
  public:
    explicit AccessibleForm(Form* form) : AccessibleRoom(form, QAccessible::Client), form_(form) {}

    QAccessible::Role role() const override { return form_->role(); }
    /// A dialog without a name of its own is called by its title; the rest of what it says describes it.
    QString text(QAccessible::Text kind) const override {
        QString said = QAccessibleWidget::text(kind);
        if (!said.isEmpty() || role() != QAccessible::Dialog) return said;
        QStringList texts = shownTexts(*form_);
        const QString named = form_->accessibleName();
        if (kind == QAccessible::Name) return texts.value(0);
        if (kind != QAccessible::Description) return {};
        texts.removeAll(named.isEmpty() ? texts.value(0) : named);
        return texts.join(u'\n');
    }

  private:
    static bool isHeard(const Control& control) {
        const auto* label = qobject_cast<const Label*>(&control);
        return !control.isUnheard() && !(label && label->text().trimmed().isEmpty());
    }
    std::vector<QWidget*> heard() const override {
        std::vector<QWidget*> controls;
        for (Control* control : form_->findChildren<Control*>(Qt::FindDirectChildrenOnly))
            if (control->isVisibleTo(form_) && isHeard(*control)) controls.push_back(control);
        return inReadingOrder(controls);
    }

    Form* form_;
};

/// The window: of the forms it shows those that are not covered by another one.
class AccessibleStage final : public AccessibleRoom {
  public:
    explicit AccessibleStage(Stage* stage) : AccessibleRoom(stage, QAccessible::Window), stage_(stage) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? stage_->windowTitle() : QString();
    }

  private:
    std::vector<QWidget*> heard() const override {
        std::vector<QWidget*> forms;
        const QObjectList all = stage_->children();
        for (auto object = all.rbegin(); object != all.rend(); ++object) {
            auto* form = qobject_cast<Form*>(*object);
            if (!form || !form->isVisible()) continue;
            forms.push_back(form);
            if (form->role() == QAccessible::Client) break;
        }
        return forms;
    }

    Stage* stage_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* form = qobject_cast<Form*>(object)) return new AccessibleForm(form);
    if (auto* stage = qobject_cast<Stage*>(object)) return new AccessibleStage(stage);
    if (auto* view = qobject_cast<TextView*>(object)) return new AccessibleText(view);
    auto* control = qobject_cast<Control*>(object);
    if (!control) return nullptr;
    if (control->accessibleRange()) return new AccessibleMeasure(control);
    if (control->role() == QAccessible::Table) return new AccessibleTable(control);
    return new AccessibleControl(control);
}

}  // namespace

void registerAccessibleControls() {
    static const bool once = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(once)
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
