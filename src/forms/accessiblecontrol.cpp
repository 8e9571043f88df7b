#include "forms/accessiblecontrol.h"

#include <QAccessibleWidget>

#include "forms/picturebox.h"

namespace sarne {
namespace {

class AccessibleControl final : public QAccessibleWidget {
  public:
    explicit AccessibleControl(Control* control)
        : QAccessibleWidget(control, control->role()), control_(control) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return control_->accessibleValue();
        const QString said = QAccessibleWidget::text(kind);
        // What a surface shows is put together when somebody asks for it: it may be a book.
        const auto* surface = qobject_cast<PictureBox*>(control_);
        return kind == QAccessible::Description && said.isEmpty() && surface ? surface->drawnText() : said;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        control_->addAccessibleState(state);
        return state;
    }
    QStringList actionNames() const override {
        return role() == QAccessible::StaticText ? QStringList() : QStringList{pressAction()};
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) control_->click();
    }

  private:
    Control* control_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* control = qobject_cast<Control*>(object);
    return control ? new AccessibleControl(control) : nullptr;
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
