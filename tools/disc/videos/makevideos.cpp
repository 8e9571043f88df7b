#include "makevideos.h"

#include <QDir>
#include <atomic>
#include <future>
#include <mutex>

#include "../spelling.h"
#include "../typography.h"
#include "draw.h"
#include "encode.h"
#include "soundtrack.h"

namespace sarne::disc {
namespace {

/// Changed whenever the same script would give another video.
const QString kVersion = QStringLiteral("1");
const QString kEffects = QStringLiteral("zvuky/efekty.txt");
constexpr int kWorkers = 2;

/// A video that is to be made.
struct Job {
    Film film;
    QString file;
    QString origin;
    QList<FilmFault> faults{};
    bool isMade = false;
};

/// Where a script stands and what becomes of it.
struct Source {
    QString script;
    QString title;
    QString file;
};

QList<Source> sources(const Workshop& shop) {
    QList<Source> all{{QStringLiteral("videa/uvod.txt"), {}, shop.disc + QStringLiteral("/VIDEO/UVOD.AVI")}};
    for (const Video& video : shop.book.videos)
        all << Source{QStringLiteral("videa/%1.txt").arg(video.number), video.title,
                      shop.disc + QStringLiteral("/VIDEO/%1.AVI").arg(video.number)};
    return all;
}

QString originOfFilm(const Workshop& shop, const Source& source) {
    const QStringList files{shop.content + u'/' + source.script, shop.content + u'/' + kEffects,
                            shop.art + QStringLiteral("/rendered/pozadi/uvod.jpg"),
                            shop.content + QStringLiteral("/zvuky/hudba.txt")};
    return originOf(files, kVersion + source.title);
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

void make(Job& job, const QList<Effect>& effects, const Workshop& shop) {
    const Sound sound =
        makeSoundtrack(job.film, effects, shop.disc + QStringLiteral("/HUDBA.WAV"), shop.scratch, job.faults);
    if (!job.faults.isEmpty()) return;
    const QImage ground = drawScene(job.film.scene, shop.art);
    job.isMade = encodeFilm(job.film, ground, sound, job.file, shop.scratch);
    if (!job.isMade) job.faults << FilmFault{job.film.place, QStringLiteral("ffmpeg cannot make the video")};
}

/// Makes all, two at a time; each is written down as soon as it is there, so that a build that is broken off
/// goes on from there.
void makeAll(QList<Job>& jobs, const QList<Effect>& effects, Workshop& shop) {
    std::atomic<qsizetype> next = 0;
    std::mutex ledger;
    Job* const all = jobs.data();
    const auto work = [&] {
        for (qsizetype i = next++; i < jobs.size(); i = next++) {
            make(all[i], effects, shop);
            if (!all[i].isMade) continue;
            const std::lock_guard lock(ledger);
            shop.ledger.setMade(all[i].file, all[i].origin);
            shop.ledger.save();
        }
    };
    std::vector<std::future<void>> workers;
    for (int i = 0; i < kWorkers; ++i) workers.push_back(std::async(std::launch::async, work));
    for (auto& worker : workers) worker.get();
}

}  // namespace

void makeVideos(Workshop& shop) {
    const ContentFolder folder(shop.content, shop.problems);
    QList<Job> jobs = staleJobs(shop, folder);
    const QList<Effect> effects = readEffects(folder.read(kEffects), shop.problems);
    if (jobs.isEmpty() || shop.problems.hasErrors()) return;
    QDir().mkpath(shop.disc + QStringLiteral("/VIDEO"));
    QDir().mkpath(shop.scratch);
    makeAll(jobs, effects, shop);
    for (const Job& job : jobs)
        for (const FilmFault& fault : job.faults) shop.problems.error(fault.place, fault.text);
}

}  // namespace sarne::disc
