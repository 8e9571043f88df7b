#include "forms/followlink.h"

#include "core/value.h"
#include "forms/bassarne.h"
#include "forms/screens.h"

namespace sarne {

void followLink(basSarne& sarne, const LinkKey& key) {
    const auto number = toRecordId(key.number).value_or(0);
    switch (key.kind) {
        case LinkKind::Keyword:
            return sarne.screens().showIndex(number);
        case LinkKind::Video:
            return sarne.screens().showVideo(number);
        case LinkKind::Beep:
            return sarne.Beep();
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
