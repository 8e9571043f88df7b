#pragma once

#include <QColor>
#include <QString>

namespace sarne {

/// What a link phrase leads to. The value is the first digit of the phrase's key.
enum class LinkKind {
    Keyword = 1,  ///< "*": the index keyword of that number
    Beep = 2,     ///< "#": nothing but a beep
    Video = 3,    ///< "@": the video of that number
};

/// Where a link phrase leads. A value; the number has three digits at most.
struct LinkKey {
    LinkKind kind = LinkKind::Keyword;
    int number = 0;

    bool operator==(const LinkKey&) const = default;
    /// The key as texts know it: the kind's digit, then the number ("115" for *15, "37" for @7).
    QString text() const;
};

/// The colour in which phrases of \a kind are written on paper.
QColor linkColor(LinkKind kind);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
