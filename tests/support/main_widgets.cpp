#include <gtest/gtest.h>

#include <QApplication>

#ifndef SARNE_TEST_DISPLAY
#define SARNE_TEST_DISPLAY "offscreen"
#endif

// Tests of forms run in a real application without a display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", SARNE_TEST_DISPLAY);
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: GPL-3.0-or-later
