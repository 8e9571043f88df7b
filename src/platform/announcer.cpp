#include "platform/announcer.h"

#include <QAccessible>
#include <QAccessibleObject>

namespace sarne {

namespace {

/// The text that is announced, as an object of the window: what a screen reader asks for its role and name.
class Alert final : public QObject {
  public:
    explicit Alert(const QPointer<QObject>& window) : window_(window) {}
    QObject* window() const { return window_; }
    QString text;

  private:
    QPointer<QObject> window_;
};

class AlertInterface final : public QAccessibleObject {
  public:
    explicit AlertInterface(Alert* alert) : QAccessibleObject(alert) {}

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(owner()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override { return parent() ? parent()->rect() : QRect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && object() ? static_cast<Alert*>(object())->text : QString();
    }

  private:
    QObject* owner() const { return object() ? static_cast<Alert*>(object())->window() : nullptr; }
};

}  // namespace

AccessibleAnnouncer::AccessibleAnnouncer(QObject* window) : window_(window) {
    for (auto& alert : alerts_) {
        alert = std::make_unique<Alert>(window_);
        QAccessible::registerAccessibleInterface(new AlertInterface(static_cast<Alert*>(alert.get())));
    }
}

AccessibleAnnouncer::~AccessibleAnnouncer() = default;

void AccessibleAnnouncer::announce(const QString& text) {
    if (text.isEmpty() || !window_) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(window_, text);
    QAccessible::updateAccessibility(&event);
#else
    QObject* alert = alerts_[next_++ % kKept].get();
    static_cast<Alert*>(alert)->text = text;
    // Screen readers differ in what they listen to: an alert, or a notification that is new on the screen.
    for (const QAccessible::Event type :
         {QAccessible::NameChanged, QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(alert, type);
        QAccessible::updateAccessibility(&event);
    }
#endif
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
