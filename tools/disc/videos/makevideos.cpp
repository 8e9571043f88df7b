#include "makevideos.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <functional>
#include <mutex>
#include <numeric>

#include "../ownfiles.h"
#include "../spelling.h"
#include "../stamps.h"
#include "../typography.h"
#include "core/unbreakable.h"
#include "direct.h"
#include "encode.h"
#include "projector.h"
#include "soundtrack.h"

namespace sarne::disc {
namespace {

const QString kEffects = QStringLiteral("zvuky/efekty.txt");
const QString kCast = QStringLiteral("videa/obsazeni.txt");
const QString kMusic = QStringLiteral("zvuky/hudba.txt");

/// A video that is to be made.
struct Job {
    Script script;
    QString film;
    QString chapters;
    QString origin;
};

/// Where a script stands and what becomes of it.
struct Source {
    QString script;
    QString title;
    QString stem;
    /// The author's own film, which is taken instead of a script; empty when there is none.
    QString own = {};

    QString film(const Workshop& shop) const {
        return stem + shop.either(QStringLiteral(".AVI"), QStringLiteral(".mkv"));
    }
};

QList<Source> sources(const Workshop& shop) {
    QList<Source> all{{QStringLiteral("videa/uvod.txt"), {}, shop.disc + QStringLiteral("/VIDEO/UVOD")}};
    for (const Video& video : shop.book.videos)
        all << Source{QStringLiteral("videa/%1.txt").arg(video.number), video.title,
                      shop.disc + QStringLiteral("/VIDEO/%1").arg(video.number)};
    for (Source& source : all) source.own = ownFilm(shop.content + u'/' + source.script.chopped(4));
    return all;
}

/// Those of the sources that are scripts. An author's disc needs no intro.
QList<Source> scripts(const Workshop& shop, const QString& only) {
    QList<Source> all;
    for (const Source& source : sources(shop)) {
        if (!source.own.isEmpty()) continue;
        if (!only.isEmpty() && source.script != QStringLiteral("videa/%1.txt").arg(only)) continue;
        const bool isIntro = source.title.isEmpty();
        if (isIntro && shop.isOwnDisc() && !QFileInfo::exists(shop.content + u'/' + source.script)) continue;
        all << source;
    }
    return all;
}

/// Films that the author made elsewhere, in the size and the form of this disc.
void takeOwnFilms(Workshop& shop) {
    QList<Task> tasks;
    for (const Source& source : sources(shop)) {
        if (source.own.isEmpty()) continue;
        const QString film = source.film(shop);
        tasks << Task{{film}, originOf({source.own}, stamp::videos()), [&shop, film, own = source.own] {
                          if (convertFilm(own, film, shop.scratch)) return true;
                          shop.problems.error(
                              {QDir(shop.content).relativeFilePath(own), 0},
                              QStringLiteral("film ffmpeg nepřečte; uložte ho znovu, třeba jako MP4"));
                          return false;
                      }};
    }
    shop.makeAll(tasks);
}

/// The pictures in which a thing may be seen.
void addLooks(const QString& name, const Cast& cast, const QString& art, QSet<QString>& files) {
    const Role* role = cast.find(name);
    if (!role) return;
    for (const auto& look : role->looks)
        files << art + QStringLiteral("/rendered/film/") + cast.layers.value(look.second).file;
}

/// The pictures that a script may need.
QStringList picturesOf(const Script& script, const Cast& cast, const Workshop& shop) {
    QSet<QString> files{shop.artPicture(grounds().value(script.ground).picture)};
    for (const Scene& scene : script.scenes) {
        if (!scene.ground.isEmpty()) files << shop.artPicture(grounds().value(scene.ground).picture);
        for (const Sentence& line : scene.sentences) {
            addLooks(line.subject, cast, shop.art, files);
            for (const QString& part : line.parts) addLooks(part, cast, shop.art, files);
        }
    }
    QStringList all(files.cbegin(), files.cend());
    all.sort();
    return all;
}

QString originOfFilm(const Workshop& shop, const Source& source, const QStringList& pictures) {
    QStringList files{shop.content + u'/' + source.script, shop.content + u'/' + kCast,
                      shop.content + u'/' + kEffects, shop.content + u'/' + kMusic};
    return originOf(files + pictures + Voices::sources(shop.content), stamp::videos() + source.title);
}

void proofread(const ContentFolder& folder, const QList<Job>& jobs, Problems& problems) {
    QStringList known;
    for (const Row& row : tableRows(folder.readIfThere(QStringLiteral("slovnik.txt")))) known << row.at(0);
    SpellCheck spelling(known);
    for (const Job& job : jobs)
        for (const Scene& scene : job.script.scenes)
            for (const QString& text : {scene.chapter, scene.caption, scene.speech}) {
                checkTypography(text, scene.place, problems);
                spelling.add(text, scene.place);
            }
    spelling.report(problems);
}

QList<Job> staleJobs(Workshop& shop, const ContentFolder& folder, const Cast& cast, const QString& only) {
    QList<Job> jobs;
    for (const Source& source : scripts(shop, only)) {
        const Script script = readScript(folder.read(source.script), source.title, cast, shop.problems);
        const QStringList pictures = picturesOf(script, cast, shop);
        for (const QString& picture : pictures)
            if (!QFileInfo::exists(picture))
                shop.problems.error({picture, 0}, QStringLiteral("obrázek chybí"));
        const QString origin = originOfFilm(shop, source, pictures);
        const QString film = source.film(shop);
        const QString chapters = source.stem + QStringLiteral(".KAP");
        const bool isCurrent = shop.ledger.isCurrent(chapters, origin);
        if (shop.ledger.isCurrent(film, origin) && isCurrent) continue;
        jobs << Job{script, film, chapters, origin};
    }
    // The longest first, so that no core waits for the last.
    const auto length = [](const Job& job) {
        return std::accumulate(job.script.scenes.cbegin(), job.script.scenes.cend(), qsizetype{0},
                               [](qsizetype sum, const Scene& one) { return sum + one.speech.size(); });
    };
    std::ranges::stable_sort(jobs, std::ranges::greater(), length);
    if (!jobs.isEmpty()) proofread(folder, jobs, shop.problems);
    for (Job& job : jobs)
        for (Scene& scene : job.script.scenes) scene.caption = withUnbreakableBlanks(scene.caption);
    return jobs;
}

/// The grounds, each read once for all films.
class GroundStore {
  public:
    explicit GroundStore(const Workshop& shop) : shop_(shop) {}
    QImage operator()(const QString& name) {
        const std::lock_guard lock(reading_);
        if (!pictures_.contains(name))
            pictures_.insert(name, preparedGround(name, shop_.artPicture(grounds().value(name).picture)));
        return pictures_.value(name);
    }

  private:
    const Workshop& shop_;
    std::mutex reading_;
    QHash<QString, QImage> pictures_;
};

/// What all films share.
struct Studio {
    const Workshop& shop;
    const Cast& cast;
    const QList<Effect>& effects;
    const Voices& voices;
    GroundStore& grounds;
};

/// A lesson, which has a title, takes its time; the intro does not.
void checkLength(const Script& script, const Film& film, Problems& problems) {
    const double shortest = script.title.isEmpty() ? 8 : 40;
    const double longest = script.title.isEmpty() ? 14 : 75;
    if (film.seconds < shortest || film.seconds > longest)
        problems.error(script.place, QStringLiteral("film trvá %1 s, má trvat %2 až %3")
                                         .arg(film.seconds, 0, 'f', 1)
                                         .arg(shortest)
                                         .arg(longest));
}

bool make(const Job& job, const Studio& studio) {
    Problems& problems = studio.shop.problems;
    const qsizetype before = problems.errors().size();
    const QList<Sound> speech = speakScenes(job.script, studio.voices, problems);
    QList<double> seconds;
    for (const Sound& one : speech) seconds << one.seconds();
    const Film film = directFilm(job.script, studio.cast, seconds, problems);
    checkLength(job.script, film, problems);
    const Sound sound =
        makeSoundtrack(film, speech, studio.effects, studio.shop.waves() + QStringLiteral("/HUDBA.WAV"),
                       job.script.music, problems);
    if (problems.errors().size() > before) return false;
    Projector projector(film, studio.cast, studio.shop.art,
                        [&](const QString& name) { return studio.grounds(name); });
    if (encodeFilm(film, projector, sound, job.film, studio.shop.scratch) &&
        writeChapters(film, job.chapters))
        return true;
    problems.error(job.script.place, QStringLiteral("ffmpeg z něj neudělal video"));
    return false;
}

}  // namespace

Cast readFilmCast(const ContentFolder& folder, const QString& art, Problems& problems) {
    const ContentFolder pictures(art + QStringLiteral("/rendered/film"), problems);
    return readCast(folder.read(kCast), readLayers(pictures.read(QStringLiteral("veci.txt")), problems),
                    problems);
}

void checkVideos(Workshop& shop) {
    const QList<Source> wanted = scripts(shop, {});
    if (wanted.isEmpty()) return;
    const ContentFolder folder(shop.content, shop.problems);
    const Cast cast = readFilmCast(folder, shop.art, shop.problems);
    for (const Source& source : wanted)
        readScript(folder.read(source.script), source.title, cast, shop.problems);
}

void makeVideos(Workshop& shop, const QString& only) {
    takeOwnFilms(shop);
    if (shop.problems.hasErrors() || scripts(shop, only).isEmpty()) return;
    const ContentFolder folder(shop.content, shop.problems);
    const Cast cast = readFilmCast(folder, shop.art, shop.problems);
    const QList<Job> jobs = staleJobs(shop, folder, cast, only);
    const QList<Effect> effects = readEffects(folder.read(kEffects), shop.problems);
    Voices voices(shop.content, shop.scratch, shop.problems);
    if (jobs.isEmpty() || shop.problems.hasErrors()) return;
    QDir().mkpath(shop.scratch);
    QStringList speech;
    for (const Job& job : jobs)
        for (const Scene& scene : job.script.scenes) speech << scene.speech;
    voices.prepare(speech, Speaker::films);
    GroundStore grounds(shop);
    const Studio studio{shop, cast, effects, voices, grounds};
    QList<Task> tasks;
    for (const Job& job : jobs)
        tasks << Task{{job.film, job.chapters}, job.origin, [&] { return make(job, studio); }};
    shop.makeAll(tasks);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
