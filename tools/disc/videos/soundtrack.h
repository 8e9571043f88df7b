#pragma once

#include "../sounds/effects.h"
#include "../sounds/voice.h"
#include "film.h"

namespace sarne::disc {

/// What the making of a film has to say: pictures and sound are made beside the main thread.
struct FilmFault {
    Place place;
    QString text;
};

/// Speaks the captions, which gives every step its time, and mixes in the effects and the music. \a music is
/// the background music's file. Faults are appended.
Sound makeSoundtrack(Film& film, const QList<Effect>& effects, const QString& music, const Voices& voices,
                     QList<FilmFault>& faults);

}  // namespace sarne::disc
