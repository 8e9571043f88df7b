// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sarne {

/// Whether the blank at \a blank of \a text holds together what stands around it: a one-letter preposition or
/// conjunction and the next word, a number and the word or sign that belongs to it, a day and its month. No
/// line ends there.
bool holdsTogether(QStringView text, qsizetype blank);

/// \a text with non-breaking blanks where a blank holds together.
QString withUnbreakableBlanks(QString text);

/// \a text as it is painted: with the same blanks, and with a joiner behind the dash of a range ("8–10") and
/// of an amount ("sůl – 2 g"), where a line may otherwise end. Neither wider nor higher than \a text: the
/// joiner is one that the program's fonts have, as the word joiner is not.
QString unbroken(QString text);

}  // namespace sarne
