#include "print/printmaterial.h"

#include "core/texts.h"

namespace sarne {

QString PrintMaterial::documentName(const QString& first) const {
    if (count() <= 1) return first;
    return (isText() ? Texts::tr("Texty z kuchařky (%1)") : Texts::tr("Recepty (%1)")).arg(count());
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
