#pragma once

#include <QStringList>

namespace sarne {

/// Gives the application the language of its texts and of Qt's own (dialogs, context menus): the first of the
/// user's \a wanted ("de-AT") for which the program has a translation, otherwise Czech, its source language.
void installLanguage(const QStringList& wanted);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
