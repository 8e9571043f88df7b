#include <gtest/gtest.h>

#include <QGuiApplication>

/// The pictures are painted with texts, which needs the fonts of a running application.
int main(int argc, char** argv) {
    const QGuiApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: GPL-3.0-or-later
