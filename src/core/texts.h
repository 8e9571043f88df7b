#pragma once

#include <QCoreApplication>

namespace sarne {

/// The program's own texts. They stand in the code in Czech, the source language, and pass through Texts::tr
/// where they are used; one in a table of constants is marked by QT_TRANSLATE_NOOP("Texts", …) there, because
/// the language is known only when the run has begun. A further language is one file,
/// `translations/sarne_LL.ts`.
class Texts {
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
