#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

#include "support/fakesarne.h"

namespace sarne::test {

/// A run with one screen, whose keys go to the form that is named.
class OnAScreen : public testing::Test {
  protected:
    static void press(QWidget& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&form, &event);
    }

    FakeSarne sarne;
    Form& screen = *new Form(sarne, u"frmStranka"_s);
    Eyes& eyes = sarne.window.eyes();
};

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
