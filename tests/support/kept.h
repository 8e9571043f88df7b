#pragma once

#include <QString>
#include <functional>

namespace sarne::test {

/// The folder of the running test.
extern const char* const kFolder;

/// The text of golden/\a name.txt of the test's folder.
QString keptText(const QString& name);

/// Compares \a text, of lines, with the file golden/\a name.txt of the test's folder and tells what differs.
/// With the environment's SARNE_RENEW it writes the file anew: its difference is then to be looked at.
void expectText(const QString& name, const QString& text);

/// The lines "input ⇒ output" of golden/\a name.txt hold for \a of; lines with a semicolon say why. What
/// cannot be seen is written as a sign: ¶ ends a line, ␣ is a hard blank, ␠ one at either end, ∅ nothing. A
/// new case is written without its output, which SARNE_RENEW adds.
void expectCases(const QString& name, const std::function<QString(const QString& input)>& of);

/// \a text with its signs as what they mean.
QString meant(QString text);

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
