#include "score.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "parameters.h"

namespace sarne::disc {
namespace {

constexpr double kTremoloStep = 0.125;
constexpr double kTremoloStrength = 0.8;

/// What one instrument plays in a part: its bars, or a pattern over the chords.
struct Voice {
    Place place;
    bool isPattern = false;
    QString bars{};
};

struct Part {
    Pace pace;
    QString chords;
    Place chordPlace;
    QMap<int, QList<Voice>> voices;
};

QStringList barsOf(const QString& text) {
    QStringList bars = text.split(u'|');
    if (bars.size() > 1 && bars.last().trimmed().isEmpty()) bars.removeLast();
    return bars;
}

/// Turns the parts of a score into notes.
class Reader {
  public:
    Reader(Score& score, Problems& problems) : score_(score), problems_(problems) {}

    void head(const Line& line) {
        const KeyValue entry = keyValue(line);
        if (readPace(entry, usual_)) return;
        if (entry.key == QStringLiteral("průběh"))
            order_ = entry;
        else if (entry.key == QStringLiteral("nástroj"))
            instrument(entry);
        else if (entry.key == QStringLiteral("událost"))
            event(entry);
        else
            problems_.error(line.place, QStringLiteral("partitura nezná řádek „%1“").arg(line.text));
    }

    void part(const Section& section) {
        Part& part = parts_[section.title];
        part.pace = usual_;
        for (const Line& line : section.lines)
            if (!line.isBlank()) partLine(part, line);
    }

    void play() {
        if (order_.value.isEmpty()) problems_.error(order_.place, QStringLiteral("partitura nemá průběh"));
        for (const QString& name : order_.value.split(u' ', Qt::SkipEmptyParts)) {
            if (!parts_.contains(name))
                problems_.error(order_.place, QStringLiteral("část „%1“ neexistuje").arg(name));
            else
                playPart(parts_[name]);
        }
    }

  private:
    void positive(const KeyValue& entry, double& value) {
        if (!readNumber(entry.value, value) || value <= 0)
            problems_.error(entry.place, QStringLiteral("%1 není číslo nad 0").arg(entry.key));
    }

    /// Whether the line tells tempo or beats.
    bool readPace(const KeyValue& entry, Pace& pace) {
        if (entry.key == QStringLiteral("tempo")) {
            positive(entry, pace.tempo);
        } else if (entry.key == QStringLiteral("takt")) {
            double value = pace.beats;
            positive(entry, value);
            pace.beats = std::max(1, static_cast<int>(value));
        } else {
            return false;
        }
        return true;
    }

    void instrument(const KeyValue& entry) {
        Parameters words(entry.value, entry.place, problems_);
        Instrument made{words.names().join(u' ').toLower()};
        const auto number = [&](const QString& key, int& value, int least, int most) {
            value = std::clamp(static_cast<int>(words.number(key, value)), least, most);
        };
        number(QStringLiteral("program"), made.program, 0, 127);
        number(QStringLiteral("hlas"), made.loudness, 0, 127);
        number(QStringLiteral("strana"), made.side, -63, 63);
        number(QStringLiteral("dozvuk"), made.reverb, 0, 127);
        if (words.has(QStringLiteral("od"))) made.lowest = pitchOf(words.text(QStringLiteral("od")));
        if (made.lowest < 0) problems_.error(entry.place, QStringLiteral("od není nota"));
        words.reportUnknown();
        score_.instruments << made;
    }

    void event(const KeyValue& entry) {
        Parameters words(entry.value, entry.place, problems_);
        Event made{entry.place, 0, words.names().mid(1).join(u' ')};
        if (!readNumber(words.names().value(0), made.seconds) || made.seconds < 0)
            problems_.error(entry.place, QStringLiteral("událost začíná vteřinou"));
        made.loudness = words.number(QStringLiteral("hlas"), 0);
        made.side = words.number(QStringLiteral("strana"), 0);
        words.reportUnknown();
        score_.events << made;
    }

    int instrumentNamed(const QString& name) const {
        const auto& all = score_.instruments;
        const auto found =
            std::find_if(all.cbegin(), all.cend(), [&](const Instrument& one) { return one.name == name; });
        return found == all.cend() ? -1 : static_cast<int>(found - all.cbegin());
    }

    void partLine(Part& part, const Line& line) {
        KeyValue entry = keyValue(line);
        if (readPace(entry, part.pace)) return;
        if (entry.key == QStringLiteral("akordy")) {
            part.chords = entry.value;
            part.chordPlace = entry.place;
            return;
        }
        const QString pattern = QStringLiteral(" vzor");
        const bool isPattern = entry.key.endsWith(pattern);
        if (isPattern) entry.key.chop(pattern.size());
        const int player = instrumentNamed(entry.key);
        if (player < 0)
            problems_.error(line.place, QStringLiteral("„%1“ nikdo nehraje").arg(entry.key));
        else
            part.voices[player] << Voice{line.place, isPattern, entry.value};
    }

    void playPart(const Part& part) {
        const QStringList chords = barsOf(part.chords);
        setPace(part.pace);
        for (const QString& chord :
             part.chords.split(QRegularExpression(QStringLiteral("[\\s|]+")), Qt::SkipEmptyParts))
            if (chordTones(chord).isEmpty())
                problems_.error(part.chordPlace, QStringLiteral("tohle není akord: %1").arg(chord));
        for (auto voice = part.voices.cbegin(); voice != part.voices.cend(); ++voice)
            for (const Voice& line : voice.value()) playVoice(voice.key(), line, chords);
        score_.length += static_cast<double>(chords.size()) * beats_;
    }

    void setPace(Pace pace) {
        pace.from = score_.length;
        beats_ = pace.beats;
        if (score_.paces.isEmpty() || score_.paces.last().tempo != pace.tempo ||
            score_.paces.last().beats != pace.beats)
            score_.paces << pace;
    }

    void playVoice(int player, const Voice& voice, const QStringList& chords) {
        const QStringList bars = barsOf(voice.bars);
        if (!voice.isPattern && bars.size() != chords.size())
            problems_.error(
                voice.place,
                QStringLiteral("taktů je %1, část jich má %2").arg(bars.size()).arg(chords.size()));
        length_ = 1;
        for (int bar = 0; bar < chords.size(); ++bar)
            playBar(player, voice, bars.value(bar % bars.size()), chords[bar], score_.length + bar * beats_);
    }

    void playBar(int player, const Voice& voice, const QString& bar, const QString& chords, double from) {
        double at = 0;
        for (const QString& word : bar.split(u' ', Qt::SkipEmptyParts)) {
            const QString note = word.section(u':', 0, 0);
            if (word.contains(u':') && (!readNumber(word.section(u':', 1), length_) || length_ <= 0))
                problems_.error(voice.place, QStringLiteral("tohle není délka: %1").arg(word));
            const QStringList here = chords.split(u' ', Qt::SkipEmptyParts);
            const int slot = std::min(static_cast<int>(at / beats_ * static_cast<double>(here.size())),
                                      static_cast<int>(here.size()) - 1);
            playWord(player, voice, note, here.value(slot), from + at);
            at += length_;
        }
        if (std::abs(at - beats_) > 1e-6)
            problems_.error(voice.place, QStringLiteral("takt má %1 dob: %2").arg(at).arg(bar.trimmed()));
    }

    void playWord(int player, const Voice& voice, QString word, const QString& chord, double from) {
        if (word == QStringLiteral("-")) return;
        if (word == QStringLiteral("~")) {
            if (!score_.notes.isEmpty()) score_.notes.last().length += length_;
            return;
        }
        const bool isTremolo = word.endsWith(u'*');
        if (isTremolo) word.chop(1);
        for (const QString& tone : word.split(u'+')) {
            const int pitch = voice.isPattern ? patternPitch(player, tone, chordTones(chord)) : pitchOf(tone);
            if (pitch < 0 || pitch > 127)
                problems_.error(voice.place, QStringLiteral("tohle není nota: %1").arg(tone));
            else if (isTremolo)
                tremolo(player, from, pitch);
            else
                score_.notes << Note{player, from, length_, pitch, 1};
        }
    }

    void tremolo(int player, double from, int pitch) {
        for (double at = 0; at < length_ - 1e-6; at += kTremoloStep)
            score_.notes << Note{player, from + at, kTremoloStep, pitch, kTremoloStrength};
    }

    int patternPitch(int player, const QString& tone, const QList<int>& chord) const {
        if (chord.isEmpty()) return -1;
        const int lowest = score_.instruments[player].lowest;
        const auto above = [&](int step) { return lowest + ((step - lowest) % 12 + 12) % 12; };
        if (tone == QStringLiteral("z")) return above(chord[0]);
        if (tone == QStringLiteral("k")) return above(chord[2]);
        const int wanted = tone.toInt();
        if (wanted < 1) return -1;
        QList<int> ladder;
        for (int octave = 0; octave < 4; ++octave)
            for (const int step : chord) ladder << above(step) + 12 * octave;
        std::sort(ladder.begin(), ladder.end());
        return ladder.value(wanted - 1, -1);
    }

    Score& score_;
    Problems& problems_;
    KeyValue order_;
    QMap<QString, Part> parts_;
    Pace usual_;
    int beats_ = 4;
    double length_ = 1;
};

}  // namespace

Score readScore(const Lines& lines, Problems& problems) {
    Score score;
    Reader reader(score, problems);
    const QList<Section> all = sections(lines);
    for (const Line& line : all.first().lines)
        if (!line.isBlank()) reader.head(line);
    for (const Section& section : all.mid(1)) reader.part(section);
    reader.play();
    return score;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
