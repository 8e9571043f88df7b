#include <gtest/gtest.h>

#include <QGuiApplication>

// Without a display, and without a sound device unless a test brings its own, so that nothing depends on the
// machine's.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: GPL-3.0-or-later
