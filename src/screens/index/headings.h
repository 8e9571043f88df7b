#pragma once

#include <QString>
#include <QStringView>

namespace sarne {

/// Whether the first paragraph of the rich text \a text says \a name: then the text brings its own heading.
bool beginsWithHeading(QStringView text, const QString& name);
/// The rich text \a text without its first paragraph, where that says \a name and nothing else; otherwise
/// \a text.
QString withoutHeading(const QString& text, const QString& name);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
