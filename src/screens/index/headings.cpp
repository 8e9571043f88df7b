#include "screens/index/headings.h"

#include "richtext/plaintext.h"

namespace sarne {

bool beginsWithHeading(QStringView text, const QString& name) {
    const QString begin = plainText(text, name.size() + 1);
    // Blanks that hold words together are blanks all the same.
    return begin.trimmed().section(u'\n', 0, 0).simplified() == name.simplified();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
