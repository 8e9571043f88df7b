#include "platform/announcer.h"

#include <gtest/gtest.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QWindow>

namespace sarne {
namespace {

/// What a screen reader would learn: the kind of event, and the role and name of what it is about.
struct Heard {
    QAccessible::Event event;
    QAccessible::Role role;
    QString name;
};
QList<Heard> heard;

void hear(QAccessibleEvent* event) {
    QAccessibleInterface* about = event->accessibleInterface();
    ASSERT_TRUE(about && about->isValid());
    heard.append({event->type(), about->role(), about->text(QAccessible::Name)});
}

TEST(AnnouncerTest, TextsAreAlertsOfTheWindow) {
    // Events are told only while somebody listens, which without a display nobody does.
    QPlatformAccessibility* listener = QGuiApplicationPrivate::platformIntegration()->accessibility();
    ASSERT_TRUE(listener);
    listener->setActive(true);
    const auto previous = QAccessible::installUpdateHandler(&hear);
    heard.clear();
    {
        auto window = std::make_unique<QWindow>();
        AccessibleAnnouncer announcer(window.get());
        announcer.announce(u"Chcete ukončit program?  "_s);
        announcer.announce({});
        window.reset();
        announcer.announce(u"nikdo neposlouchá"_s);
    }
    QAccessible::installUpdateHandler(previous);
    listener->setActive(false);
    ASSERT_EQ(heard.size(), 3);
    EXPECT_EQ(heard.last().event, QAccessible::Alert);
    for (const Heard& what : heard) {
        EXPECT_EQ(what.role, QAccessible::Notification);
        EXPECT_EQ(what.name, u"Chcete ukončit program?  "_s);
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
