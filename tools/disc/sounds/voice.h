#pragma once

#include <QString>

#include "sound.h"

namespace sarne::disc {

/// How quickly is spoken.
enum class Pace { name, caption };

/// \a text spoken by the Czech voice: mono, silence at the ends taken away, the same loudness for every text.
/// A sound without samples when the speech program cannot be run. \a scratch is an existing folder.
Sound speak(const QString& text, Pace pace, const QString& scratch);

}  // namespace sarne::disc
