#include <QRegularExpression>
#include <algorithm>

#include "../sounds/parameters.h"
#include "draw.h"
#include "film.h"

namespace sarne::disc {
namespace {

const QStringList kCommon{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("otočení"),
                          QStringLiteral("měřítko"), QStringLiteral("vidět")};

/// Reads a script line by line.
class FilmReader {
  public:
    FilmReader(Film& film, Problems& problems) : film_(film), problems_(problems) {}

    void head(const Line& line) {
        const KeyValue entry = keyValue(line);
        if (entry.key == QStringLiteral("scéna"))
            scene(entry);
        else if (entry.key == QStringLiteral("věc"))
            actor(entry);
        else if (entry.key == QStringLiteral("hudba"))
            number(entry, film_.music);
        else
            problems_.error(line.place, QStringLiteral("scénář nezná řádek „%1“").arg(line.text));
    }

    void step(const Section& section) {
        Step step{section.place, section.title};
        if (section.title.isEmpty()) problems_.error(section.place, QStringLiteral("krok nemá titulek"));
        for (const Line& line : section.lines)
            if (!line.isBlank()) stepLine(step, line);
        film_.steps << step;
    }

    void finish() {
        if (film_.scene.isEmpty()) problems_.error(film_.place, QStringLiteral("scénář nemá scénu"));
        if (film_.steps.isEmpty()) problems_.error(film_.place, QStringLiteral("scénář nemá krok"));
    }

  private:
    void number(const KeyValue& entry, double& value) {
        if (!readNumber(entry.value, value))
            problems_.error(entry.place, QStringLiteral("%1 není číslo").arg(entry.key));
    }

    void scene(const KeyValue& entry) {
        film_.scene = entry.value;
        if (!sceneNames().contains(entry.value))
            problems_.error(entry.place, QStringLiteral("scéna „%1“ neexistuje").arg(entry.value));
    }

    void actor(const KeyValue& entry) {
        Parameters words(entry.value, entry.place, problems_);
        Actor made{entry.place, words.names().value(0), words.names().value(words.names().size() - 1), {}};
        if (!actorKinds().contains(made.kind))
            problems_.error(entry.place, QStringLiteral("„%1“ nikdo neumí nakreslit").arg(made.kind));
        for (const QString& property : kCommon + actorKinds().value(made.kind).properties)
            if (words.has(property)) made.start.insert(property, words.number(property, 0));
        words.reportUnknown();
        film_.actors << made;
        now_.insert(made.name, made.start);
    }

    void stepLine(Step& step, const Line& line) {
        const KeyValue entry = keyValue(line);
        const auto found = std::find_if(film_.actors.cbegin(), film_.actors.cend(),
                                        [&](const Actor& one) { return one.name == entry.key; });
        if (entry.key == QStringLiteral("trvá"))
            number(entry, step.seconds);
        else if (entry.key == QStringLiteral("zvuk"))
            sound(step, entry);
        else if (found == film_.actors.cend())
            problems_.error(line.place, QStringLiteral("ve filmu není „%1“").arg(entry.key));
        else
            movement(step, *found, entry);
    }

    void sound(Step& step, const KeyValue& entry) {
        Parameters words(entry.value, entry.place, problems_);
        SoundCue cue{entry.place, words.names().mid(1).join(u' ')};
        if (!readNumber(words.names().value(0), cue.share))
            problems_.error(entry.place, QStringLiteral("zvuk začíná podílem kroku"));
        cue.loudness = words.number(QStringLiteral("hlas"), cue.loudness);
        words.reportUnknown();
        step.sounds << cue;
    }

    void movement(Step& step, const Actor& actor, const KeyValue& entry) {
        Parameters words(entry.value, entry.place, problems_);
        const double first = words.number(QStringLiteral("od"), 0);
        const double last = words.number(QStringLiteral("do"), 1);
        if (first < 0 || last > 1 || first > last)
            problems_.error(entry.place, QStringLiteral("od a do jsou podíly kroku od 0 do 1"));
        if (words.has(QStringLiteral("kmitů"))) swing(step, actor, words, first, last);
        for (const QString& property : kCommon + actorKinds().value(actor.kind).properties) {
            if (!words.has(property)) continue;
            const bool hasStart =
                QString(entry.value)
                    .contains(QRegularExpression(QStringLiteral("(^| )%1=[^ ]*>").arg(property)));
            auto [from, to] = words.glide(property, 0);
            double& current = now_[actor.name][property];
            step.moves[actor.name] << Move{property, hasStart ? from : current, to, first, last};
            current = to;
        }
        words.reportUnknown();
    }

    static void swing(Step& step, const Actor& actor, Parameters& words, double first, double last) {
        Swing made{words.number(QStringLiteral("kmitů"), 4)};
        made.dx = words.number(QStringLiteral("dx"), 0);
        made.dy = words.number(QStringLiteral("dy"), 0);
        made.turn = words.number(QStringLiteral("dotočení"), 0);
        made.from = first;
        made.to = last;
        step.swings[actor.name] << made;
    }

    Film& film_;
    Problems& problems_;
    /// Where the steps read so far have left the actors.
    QHash<QString, QHash<QString, double>> now_;
};

}  // namespace

Film readFilm(const Lines& lines, const QString& title, Problems& problems) {
    Film film;
    film.title = title;
    if (!lines.isEmpty()) film.place = lines.first().place;
    FilmReader reader(film, problems);
    const QList<Section> all = sections(lines);
    for (const Line& line : all.first().lines)
        if (!line.isBlank()) reader.head(line);
    for (const Section& section : all.mid(1)) reader.step(section);
    reader.finish();
    return film;
}

}  // namespace sarne::disc
