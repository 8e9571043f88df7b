#include "richtext/linkkey.h"

namespace sarne {

QString LinkKey::text() const {
    return QString::number(static_cast<int>(kind)) + QString::number(number);
}

QColor linkColor(LinkKind kind) {
    switch (kind) {
        case LinkKind::Keyword:
            return {184, 64, 42};
        case LinkKind::Beep:
            return {28, 96, 104};
        case LinkKind::Video:
            return {63, 107, 53};
    }
    return Qt::black;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
