#include "makevideos.h"

#include <QDir>

#include "../spelling.h"
#include "../stamps.h"
#include "../typography.h"
#include "draw.h"
#include "encode.h"
#include "soundtrack.h"

namespace sarne::disc {
namespace {

const QString kEffects = QStringLiteral("zvuky/efekty.txt");

/// A video that is to be made.
struct Job {
    Film film;
    QString file;
    QString origin;
};

/// Where a script stands and what becomes of it.
struct Source {
    QString script;
    QString title;
    QString file;
};

QList<Source> sources(const Workshop& shop) {
    const QString file =
        shop.disc + QStringLiteral("/VIDEO/%1.") + shop.either(QStringLiteral("AVI"), QStringLiteral("mkv"));
    QList<Source> all{{QStringLiteral("videa/uvod.txt"), {}, file.arg(QStringLiteral("UVOD"))}};
    for (const Video& video : shop.book.videos)
        all << Source{QStringLiteral("videa/%1.txt").arg(video.number), video.title, file.arg(video.number)};
    return all;
}

QString originOfFilm(const Workshop& shop, const Source& source) {
    const QStringList files{shop.content + u'/' + source.script, shop.content + u'/' + kEffects,
                            shop.art + QStringLiteral("/rendered/pozadi/uvod.jpg"),
                            shop.content + QStringLiteral("/zvuky/hudba.txt")};
    return originOf(files + Voices::sources(shop.content), stamp::videos() + source.title);
}

void proofreadCaptions(const ContentFolder& folder, const QList<Job>& jobs, Problems& problems) {
    QStringList known;
    for (const Row& row : tableRows(folder.read(QStringLiteral("slovnik.txt")))) known << row.at(0);
    SpellCheck spelling(known);
    for (const Job& job : jobs)
        for (const Step& step : job.film.steps) {
            checkTypography(step.caption, step.place, problems);
            spelling.add(step.caption, step.place);
        }
    spelling.report(problems);
}

QList<Job> staleJobs(Workshop& shop, const ContentFolder& folder) {
    QList<Job> jobs;
    for (const Source& source : sources(shop)) {
        const QString origin = originOfFilm(shop, source);
        if (shop.ledger.isCurrent(source.file, origin)) continue;
        jobs << Job{readFilm(folder.read(source.script), source.title, shop.problems), source.file, origin};
    }
    if (!jobs.isEmpty()) proofreadCaptions(folder, jobs, shop.problems);
    for (Job& job : jobs)
        for (Step& step : job.film.steps) step.caption = withUnbreakableBlanks(step.caption);
    return jobs;
}

bool make(Job& job, const QList<Effect>& effects, const Voices& voices, const Workshop& shop) {
    QList<FilmFault> faults;
    const Sound sound =
        makeSoundtrack(job.film, effects, shop.waves() + QStringLiteral("/HUDBA.WAV"), voices, faults);
    for (const FilmFault& fault : faults) shop.problems.error(fault.place, fault.text);
    if (!faults.isEmpty()) return false;
    const QImage ground = drawScene(job.film.scene, shop.art);
    if (encodeFilm(job.film, ground, sound, job.file, shop.scratch)) return true;
    shop.problems.error(job.film.place, QStringLiteral("ffmpeg z něj neudělal video"));
    return false;
}

}  // namespace

void makeVideos(Workshop& shop) {
    const ContentFolder folder(shop.content, shop.problems);
    QList<Job> jobs = staleJobs(shop, folder);
    const QList<Effect> effects = readEffects(folder.read(kEffects), shop.problems);
    const Voices voices(shop.content, shop.scratch, shop.problems);
    if (jobs.isEmpty() || shop.problems.hasErrors()) return;
    QDir().mkpath(shop.scratch);
    QList<Task> tasks;
    for (Job& job : jobs)
        tasks << Task{{job.file}, job.origin, [&] { return make(job, effects, voices, shop); }};
    shop.makeAll(tasks);
}

}  // namespace sarne::disc
