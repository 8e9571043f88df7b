#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace sarne {

/// The width of a text, in whatever unit the lines are measured.
using MeasureText = std::function<int(QStringView)>;

/// What becomes of a word that is wider than a line.
enum class LongWords { Overhang, Break };

/// How many characters of \a text fit into \a width; at least one.
qsizetype charactersFitting(QStringView text, int width, const MeasureText& measure);

/// How many characters of \a text go on its first line: all, or up to a blank, which may be the last of them.
qsizetype firstLine(QStringView text, int width, const MeasureText& measure, LongWords longWords);

/// \a text on as many lines as it needs to stay within \a width, broken at blanks and never inside a word: a
/// word that is wider has a line of its own and stands over. Always at least one line. Continued lines start
/// with \a indent.
QStringList wrapAtBlanks(const QString& text, int width, const MeasureText& measure,
                         const QString& indent = {});

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
