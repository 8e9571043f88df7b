#pragma once

#include <QString>
#include <QStringList>

namespace sarne::disc {

/// " – mysleli jste „candát“?" when one of \a known is written nearly like \a word, else nothing. To be put
/// behind a message about a word that nobody knows.
QString didYouMean(const QString& word, const QStringList& known);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
