#include "platform/announcer.h"

#include <gtest/gtest.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QWindow>

namespace sarne {
namespace {

/// What a screen reader would learn: the kind of event, and the name of what it is about.
QStringList heard;

void hear(QAccessibleEvent* event) {
    QAccessibleInterface* about = event->accessibleInterface();
    ASSERT_TRUE(about && about->isValid());
    EXPECT_EQ(about->role(), QAccessible::Notification);
    heard << (event->type() == QAccessible::Alert ? u"alert "_s : QString()) + about->text(QAccessible::Name);
}

TEST(AnnouncerTest, TextsAreAlertsOfTheWindow) {
    // Events are told only while somebody listens, which without a display nobody does.
    QPlatformAccessibility* listener = QGuiApplicationPrivate::platformIntegration()->accessibility();
    ASSERT_TRUE(listener);
    listener->setActive(true);
    const auto previous = QAccessible::installUpdateHandler(&hear);
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
    const QString said = u"Chcete ukončit program?  "_s;
    EXPECT_EQ(heard, (QStringList{said, said, u"alert "_s + said}));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
