#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

namespace sarne {

/// One thing within a control that a screen reader comes to by itself: a row, an entry, a cell, a heading, a
/// link phrase.
struct AccessiblePart {
    QString name;
    QAccessible::Role role = QAccessible::ListItem;
    QRect place = {};          ///< twips of the control; empty while it is out of sight
    QString description = {};  ///< "3 z 17"
    bool isCurrent = false;    ///< the user is at it
    bool isUsable = true;      ///< Enter or a click does something
    bool isCheckable = false, isChecked = false;
};

/// What can be more or less: how far a film is, how many stars.
struct AccessibleRange {
    double value = 0, most = 0;  ///< from 0 on
    double step = 1;             ///< the smallest that makes a difference
};

/// "3 z 17", for the thing number \a index, counted from 0, of \a count.
QString placeAmong(int index, int count);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
