#pragma once

#include <QHash>
#include <QList>
#include <QMap>

#include "../textfile.h"

namespace sarne::disc {

/// Who plays: a General MIDI program (0 to 127), how loud (0 to 127), from which side (-63 left to 63 right),
/// how much reverberation (0 to 127), and the lowest note of a part made from chords.
struct Instrument {
    QString name;
    int program = 0;
    int loudness = 90;
    int side = 0;
    int reverb = 40;
    int lowest = 48;
};

/// A note: times in beats from the start of the piece, the pitch as MIDI counts it (c4 = 60).
struct Note {
    int instrument = 0;
    double from = 0;
    double length = 1;
    int pitch = 60;
    /// 1 as the instrument is set, less where it plays along.
    double strength = 1;
};

/// An effect that sounds within the music.
struct Event {
    Place place;
    double seconds = 0;
    QString effect;
    double loudness = 0;
    /// -1 left to 1 right.
    double side = 0;
};

/// How fast a stretch of a piece goes: beats a minute and beats a bar, from a beat of the piece on.
struct Pace {
    double from = 0;
    double tempo = 90;
    int beats = 4;
};

struct Score {
    /// In the order of time, the first at 0; a piece without parts has none.
    QList<Pace> paces;
    double length = 0;  ///< in beats
    QList<Instrument> instruments;
    QList<Note> notes;
    QList<Event> events;
};

/// Reads a piece of music that is written down as text:
///   tempo: 84            takt: 3            průběh: A B A
///   nástroj: kytara program=24 hlas=70 strana=-20 dozvuk=50 od=e3
///   událost: 12,5 přípitek hlas=-6 strana=0,3
///   == A
///   akordy: F | C7 Gm
///   klarinet: c5:1,5 a4:0,5 c5:1 | f5:2 -:1
///   kytara vzor: z:1 1+2+3 1+2+3
/// A part may have a "tempo" and a "takt" of its own; those of the head hold for the others.
/// Notes are c d e f g a h (b is the flat one) with "is" and "es", an octave and, behind a colon, a length in
/// beats that holds until the next; "-" rests, "~" goes on, "+" joins a chord, a "*" behind the note is a
/// tremolo. A pattern ("vzor") plays the tones of the bar's chord from the instrument's lowest note up, "z"
/// being the root and "k" the fifth; bars of a pattern take turns. A bar that is too long or too short, an
/// unknown word, a part that does not exist are reported with their line.
Score readScore(const Lines& lines, Problems& problems);

/// The MIDI number of a note such as "fis4"; -1 when it is none.
int pitchOf(const QString& note);
/// The tones of a chord such as "Gm7" as steps of the scale of twelve from c, the root first; none when it is
/// no chord.
QList<int> chordTones(const QString& chord);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
