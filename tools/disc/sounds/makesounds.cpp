#include "makesounds.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "../ownfiles.h"
#include "../stamps.h"
#include "music.h"
#include "voice.h"

namespace sarne::disc {
namespace {

const QString kEffects = QStringLiteral("zvuky/efekty.txt");
const QString kMusic = QStringLiteral("HUDBA.WAV");
const QString kWineMusic = QStringLiteral("zvuky/Vina.WAV");
/// Music stays in the background of the effects and the voice.
constexpr double kMusicPeak = -10;
constexpr int kFirstButton = 101;
constexpr int kLastButton = 121;

QString inContent(const Workshop& shop, const QString& file) {
    return shop.content + u'/' + file;
}

void checkButtons(const QList<Effect>& effects, Problems& problems) {
    QList<int> numbers;
    for (const Effect& effect : effects) numbers << effect.number;
    for (int wanted = kFirstButton; wanted <= kLastButton; ++wanted)
        if (!numbers.contains(wanted))
            problems.error({kEffects, 0}, QStringLiteral("chybí efekt %1").arg(wanted));
}

/// Where the sounds' source \a file stands: in the content, else with this builder.
QString soundsFolder(const Workshop& shop, const QString& file) {
    return QFileInfo::exists(inContent(shop, file)) ? shop.content : QStringLiteral(":/sarne-disc");
}

/// Whether the effects are those of the base's resources.
bool hasOnlyBaseEffects(const Workshop& shop) {
    return shop.usesBase() && !QFileInfo::exists(inContent(shop, kEffects));
}

QList<Effect> readCheckedEffects(Workshop& shop) {
    const qsizetype known = shop.problems.errors().size();
    const ContentFolder folder(soundsFolder(shop, kEffects), shop.problems);
    const QList<Effect> effects = readEffects(folder.read(kEffects), shop.problems);
    checkButtons(effects, shop.problems);
    return shop.problems.errors().size() > known ? QList<Effect>() : effects;
}

/// A task that writes a sound.
Task soundTask(const QString& file, const QString& origin, const std::function<Sound()>& make) {
    return {{file}, origin, [=] {
                const Sound sound = make();
                return !sound.samples.empty() && writeWav(file, sound);
            }};
}

void renderEffects(Workshop& shop, const QList<Effect>& effects) {
    const QString origin = originOf({soundsFolder(shop, kEffects) + u'/' + kEffects}, stamp::sounds());
    QList<Task> tasks;
    for (const Effect& effect : effects) {
        const QString file = shop.scratch + QStringLiteral("/zvuky/%1.wav").arg(effect.number);
        if (effect.number != 0) tasks << soundTask(file, origin, [=] { return renderEffect(effect); });
    }
    shop.makeAll(tasks);
}

/// What becomes a track: its score, else the recording of that name, else the base's.
struct Track {
    QString output;
    /// The path of its score without an ending, below the content.
    QString stem;

    QString score() const { return stem + QStringLiteral(".txt"); }
};

const Track kTracks[] = {{kMusic, QStringLiteral("zvuky/hudba")}, {kWineMusic, QStringLiteral("zvuky/vina")}};

bool hasScore(const Workshop& shop, const Track& track) {
    return !shop.isOwnDisc() || QFileInfo::exists(inContent(shop, track.score()));
}

/// Any recording as a WAV.
bool decode(const QString& from, const QString& to) {
    return QProcess::execute(QStringLiteral("ffmpeg"),
                             {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                              QStringLiteral("-y"), QStringLiteral("-i"), from, QStringLiteral("-vn"),
                              QStringLiteral("-c:a"), QStringLiteral("pcm_s16le"), to}) == 0;
}

void addMusic(Workshop& shop, const QList<Effect>& effects, const Track& track, QList<Task>& tasks) {
    const QString file = shop.waves() + u'/' + track.output;
    const QString recording = ownRecording(inContent(shop, track.stem));
    if (!hasScore(shop, track)) {
        if (recording.isEmpty()) return;
        tasks << Task{
            {file}, originOf({recording}, stamp::sounds()), [=] { return decode(recording, file); }};
        return;
    }
    const ContentFolder folder(shop.content, shop.problems);
    const QString effectsFile = soundsFolder(shop, kEffects) + u'/' + kEffects;
    const QString origin = originOf({inContent(shop, track.score()), effectsFile}, stamp::sounds());
    if (shop.ledger.isCurrent(file, origin)) return;
    const Score score = readScore(folder.read(track.score()), shop.problems);
    const Place place{track.score(), 0};
    tasks << soundTask(file, origin, [=, &shop] {
        return renderMusic(score, effects, kMusicPeak, shop.scratch, place, shop.problems);
    });
}

/// The recording of the recipe's name that a person put beside its text.
QString recordingOf(const Workshop& shop, const Recipe& recipe) {
    return ownRecording(inContent(shop, recipe.place.file).chopped(4));
}

QString nameFile(const Recipe& recipe) {
    return QStringLiteral("zvuky/č%1.wav").arg(recipe.id);
}

Task nameTask(Workshop& shop, const Voices& voices, const Recipe& recipe) {
    const QString file = shop.waves() + u'/' + nameFile(recipe);
    const QString recording = recordingOf(shop, recipe);
    const bool isRecorded = !recording.isEmpty();
    const QStringList sources = isRecorded ? QStringList{recording} : Voices::sources(shop.content);
    return {{file}, originOf(sources, stamp::sounds() + recipe.name), [=, &shop, &voices, &recipe] {
                const Spoken name =
                    isRecorded ? voices.recording(recording) : voices.speak(recipe.name, Speaker::names);
                if (!name.fault.isEmpty() && shop.isOwnDisc()) {
                    shop.problems.finding(recipe.place, name.fault);
                    return true;  // the name stays silent, and is tried again
                }
                if (!name.fault.isEmpty()) shop.problems.error(recipe.place, name.fault);
                return name.fault.isEmpty() && writeWav(file, name.sound);
            }};
}

/// Whether the machine can speak Czech; names without a recording stay silent where it cannot.
bool canSpeak(const Workshop& shop) {
    return QFileInfo::exists(inContent(shop, Voices::sources({}).first())) &&
           !QStandardPaths::findExecutable(QStringLiteral("festival")).isEmpty();
}

/// The recipes whose names are heard; the others are findings.
QList<int> heardRecipes(Workshop& shop) {
    const bool speaks = !shop.isOwnDisc() || canSpeak(shop);
    QList<int> heard;
    for (const Recipe& recipe : shop.book.recipes) {
        if (speaks || !recordingOf(shop, recipe).isEmpty())
            heard << recipe.id;
        else
            shop.problems.finding(
                recipe.place,
                QStringLiteral("název „%1“ neřekne nikdo: není tu nahrávka ani hlas").arg(recipe.name));
    }
    return heard;
}

/// The compact disc's sound \a output ("zvuky/č1.ogg"), made of the WAV of the same name.
Task compressed(const Workshop& shop, const QString& wave, const QString& ending,
                const QStringList& options) {
    const QString from = shop.waves() + u'/' + wave;
    const QString to = shop.disc + u'/' + wave.chopped(3) + ending;
    return {{to}, originOf({from}, stamp::sounds()), [=] {
                const QStringList sound{QStringLiteral("-nostdin"), QStringLiteral("-v"),
                                        QStringLiteral("error"),    QStringLiteral("-y"),
                                        QStringLiteral("-i"),       from};
                return QProcess::execute(
                           QStringLiteral("ffmpeg"),
                           sound + options +
                               QStringList{QStringLiteral("-fflags"), QStringLiteral("+bitexact"), to}) == 0;
            }};
}

/// Music that loops is no Vorbis, which players cut by some milliseconds at a round's end; the player of the
/// effects plays names best as Vorbis.
void compress(Workshop& shop, const QList<int>& heard) {
    const QStringList music{QStringLiteral("-c:a"), QStringLiteral("libopus"), QStringLiteral("-b:a"),
                            QStringLiteral("128k")};
    const QStringList speech{QStringLiteral("-c:a"), QStringLiteral("libvorbis"), QStringLiteral("-q:a"),
                             QStringLiteral("5")};
    QList<Task> tasks;
    for (const Track& track : kTracks)
        if (QFileInfo::exists(shop.waves() + u'/' + track.output))
            tasks << compressed(shop, track.output, QStringLiteral("opus"), music);
    for (const int id : heard)
        if (const QString name = nameFile(shop.book.recipes[id]);
            QFileInfo::exists(shop.waves() + u'/' + name))
            tasks << compressed(shop, name, QStringLiteral("ogg"), speech);
    shop.makeAll(tasks);
}

/// The base's music, where the content has none of its own, in whichever form the base has it.
void takeMusicFromBase(Workshop& shop) {
    for (const Track& track : kTracks) {
        if (hasScore(shop, track) || !ownRecording(inContent(shop, track.stem)).isEmpty()) continue;
        for (const QString& file : {track.output, track.output.chopped(3) + QStringLiteral("opus")})
            shop.takeFromBase(QStringLiteral("disc/") + file);
    }
}

}  // namespace

void makeEffects(Workshop& shop) {
    renderEffects(shop, readCheckedEffects(shop));
}

void makeSounds(Workshop& shop) {
    const QList<Effect> effects = hasOnlyBaseEffects(shop) ? QList<Effect>() : readCheckedEffects(shop);
    if (shop.problems.hasErrors()) return;
    renderEffects(shop, effects);
    QDir().mkpath(shop.scratch);
    QList<Task> tasks;
    for (const Track& track : kTracks) addMusic(shop, effects, track, tasks);
    const QList<int> heard = heardRecipes(shop);
    Problems silent;  // without the spellings nobody speaks
    Voices voices(shop.content, shop.scratch, canSpeak(shop) ? shop.problems : silent);
    if (shop.problems.hasErrors()) return;
    QStringList spoken;
    for (const int id : heard) {
        const Recipe& recipe = *shop.book.recipes.constFind(id);
        tasks << nameTask(shop, voices, recipe);
        if (recordingOf(shop, recipe).isEmpty() && !shop.isCurrent(tasks.last())) spoken << recipe.name;
    }
    voices.prepare(spoken, Speaker::names);
    shop.makeAll(tasks);
    takeMusicFromBase(shop);
    if (shop.kind == DiscKind::Compact && !shop.problems.hasErrors()) compress(shop, heard);
}

void checkSounds(Workshop& shop) {
    const QList<Effect> effects = hasOnlyBaseEffects(shop) ? QList<Effect>() : readCheckedEffects(shop);
    const ContentFolder folder(shop.content, shop.problems);
    for (const Track& track : kTracks)
        if (hasScore(shop, track)) readScore(folder.read(track.score()), shop.problems);
    heardRecipes(shop);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
