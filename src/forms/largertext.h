#pragma once

#include <QSize>
#include <QString>
#include <algorithm>

#include "richtext/surface.h"

namespace sarne {

/// \a font in \a scale times its size.
TextFont larger(TextFont font, double scale);

/// How much larger than designed a text is drawn for eyes that want larger ones: as much as they want, or as
/// its room holds. Remembers the last answer, since a control is painted more often than it changes.
class RoomToGrow {
  public:
    /// For \a text in \a font, drawn with \a flags in \a room (twips), where \a scale times is wanted. Never
    /// below 1: no text becomes smaller than it was designed.
    double of(const TextFont& font, double scale, const QString& text, QSize room, int flags) const;

  private:
    struct Asked {
        TextFont font;
        double scale = 0;
        QString text;
        QSize room;
        int flags = 0;
        bool operator==(const Asked&) const = default;
    };
    static double measured(const Asked& asked);

    mutable Asked asked_;
    mutable double answer_ = 1;
};

/// How much larger \a one and all that are alike in its form are drawn: as much as each of them has room for.
template <typename Text>
double growthOfAlike(const Text& one, bool (Text::*isAlike)(const Text&) const,
                     double (Text::*roomToGrow)() const) {
    double growth = (one.*roomToGrow)();
    for (const Text* other : one.form().template findChildren<Text*>(Qt::FindDirectChildrenOnly))
        if ((one.*isAlike)(*other)) growth = std::min(growth, (other->*roomToGrow)());
    return growth;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
