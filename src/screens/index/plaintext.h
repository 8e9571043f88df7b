#pragma once

#include <QString>
#include <QStringView>

namespace sarne {

/// The rich text \a text without its formatting and link markers, a line for each paragraph that has words.
/// Reading stops soon after \a enough characters.
QString plainText(QStringView text, int enough);

/// Whether the first paragraph of the rich text \a text says \a name: then the text brings its own heading.
bool beginsWithHeading(QStringView text, const QString& name);

}  // namespace sarne
