#pragma once

#include <QApplication>
#include <QEvent>
#include <functional>

namespace sarne::test {

/// Tells \a seen of every object that gets an event of the kind \a type while it lives.
class OnEvent final : public QObject {
  public:
    OnEvent(QEvent::Type type, std::function<void(const QObject*)> seen)
        : type_(type), seen_(std::move(seen)) {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == type_) seen_(object);
        return false;
    }

  private:
    QEvent::Type type_;
    std::function<void(const QObject*)> seen_;
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
