#pragma once

#include <QStringView>

#include "richtext/rtfsink.h"

namespace sarne {

/// What becomes of the link markers "*", "#" and "@" with their numbers.
enum class LinkMarkers {
    Honour,  ///< they open and close link phrases: the screen
    Remove,  ///< they and their numbers are left out: paper
};

/// Reads \a text into \a sink: an RTF document, or, where it is none, plain text whose line ends are
/// paragraphs and in which every character stands for itself. Whatever the text holds, reading goes on with
/// what follows. Returns early when \a stop is given and gets set.
void readRichText(QStringView text, RtfSink& sink, LinkMarkers markers, const StopFlag* stop = nullptr);

/// Reads \a text as plain text, whatever it looks like.
void readPlainText(QStringView text, RtfSink& sink, const StopFlag* stop = nullptr);

/// Whether \a text is an RTF document: it begins with "{\rtf", blanks and a byte order mark aside.
bool isRtf(QStringView text);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
