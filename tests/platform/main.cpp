#include <gtest/gtest.h>

#include <QGuiApplication>

// Without a display, a sound device and a print server unless a test brings its own, so that nothing depends
// on the machine's.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    qputenv("CUPS_SERVER", "/nonexistent/cups");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: GPL-3.0-or-later
