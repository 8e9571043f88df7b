#include "forms/decimalentry.h"

#include "forms/edit.h"

namespace sarne {

void takeDecimalComma(Edit& entry) {
    QObject::connect(&entry, &Edit::textChanged, &entry, [&entry](const QString& text) {
        if (text.contains(u',')) entry.setText(QString(text).replace(u',', u'.'));
    });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
