#pragma once

#include "disc/videos/direct.h"
#include "medialines.h"

namespace sarne::disc {

inline const char* const kLayers =
    "ryba-cela ryba.webp 400 200 200 100 380 200\n"
    "ryba-cista ryba.webp 400 200 200 100 380 200\n"
    "nuz nuz.webp 400 100 0 50 380 200\n";
inline const char* const kRoles =
    "== ryba, rybu, rybě | jídlo\n"
    "vzhled: celá = ryba-cela, čistá = ryba-cista\n"
    "hlava, hlavě, hlavy: 0 50\n"
    "ocas, ocasu: 100 50\n"
    "po hřbetu: 25 0, 75 0\n"
    "== hlavička, hlavičku | jídlo\n"
    "vzhled: syrová = ryba-cela\n"
    "== tělo | jídlo\n"
    "vzhled: syrové = ryba-cela\n"
    "== nůž, nože | nástroj\n"
    "vzhled: ostrý = nuz\n"
    "ostří: 50 50\n";

/// A chapter of one scene with \a lines, its speech lasting \a speech seconds.
class Filming {
  public:
    explicit Filming(const std::string& lines, double speech = 2) {
        const Cast cast = readCast(linesOf(kRoles), readLayers(linesOf(kLayers), problems), problems);
        const std::string text = "scéna: stůl\n== Kapitola\n-- Titulek.\nřeč: Věta.\n" + lines;
        const Script script = readScript(linesOf(text.c_str()), {}, cast, problems);
        if (!problems.hasErrors()) film = directFilm(script, cast, {speech}, problems);
    }

    /// The last actor that shows a thing.
    Pose pose(const QString& name, double seconds) const {
        Pose found;
        for (const Actor& actor : film.actors)
            if (actor.name == name && poseOf(actor, seconds).of(Property::opacity) > 0)
                found = poseOf(actor, seconds);
        return found;
    }

    Problems problems;
    Film film;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
