#include "makesounds.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

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

QList<Effect> readCheckedEffects(Workshop& shop) {
    const ContentFolder folder(shop.content, shop.problems);
    const QList<Effect> effects = readEffects(folder.read(kEffects), shop.problems);
    checkButtons(effects, shop.problems);
    return shop.problems.hasErrors() ? QList<Effect>() : effects;
}

/// A task that writes a sound.
Task soundTask(const QString& file, const QString& origin, const std::function<Sound()>& make) {
    return {{file}, origin, [=] {
                const Sound sound = make();
                return !sound.samples.empty() && writeWav(file, sound);
            }};
}

void renderEffects(Workshop& shop, const QList<Effect>& effects) {
    const QString origin = originOf({inContent(shop, kEffects)}, stamp::sounds());
    QList<Task> tasks;
    for (const Effect& effect : effects) {
        const QString file = shop.scratch + QStringLiteral("/zvuky/%1.wav").arg(effect.number);
        if (effect.number != 0) tasks << soundTask(file, origin, [=] { return renderEffect(effect); });
    }
    shop.makeAll(tasks);
}

void makeMusic(Workshop& shop, const QList<Effect>& effects, const QString& source, const QString& output) {
    const ContentFolder folder(shop.content, shop.problems);
    const QString file = shop.waves() + u'/' + output;
    const QString origin = originOf({inContent(shop, source), inContent(shop, kEffects)}, stamp::sounds());
    if (shop.ledger.isCurrent(file, origin)) return;
    const Score score = readScore(folder.read(source), shop.problems);
    if (shop.problems.hasErrors()) return;
    shop.makeAll({soundTask(file, origin, [&] {
        return renderMusic(score, effects, kMusicPeak, shop.scratch, {source, 0}, shop.problems);
    })});
}

/// Where a person's own recording of the recipe's name would stand: beside its text.
QString recordingOf(const Workshop& shop, const Recipe& recipe) {
    const QFileInfo text(inContent(shop, recipe.place.file));
    return text.path() + u'/' + text.completeBaseName() + QStringLiteral(".wav");
}

QString nameFile(const Recipe& recipe) {
    return QStringLiteral("zvuky/č%1.wav").arg(recipe.id);
}

Task nameTask(Workshop& shop, const Voices& voices, const Recipe& recipe) {
    const QString file = shop.waves() + u'/' + nameFile(recipe);
    const QString recording = recordingOf(shop, recipe);
    const QStringList sources = Voices::sources(shop.content) << recording;
    return {{file}, originOf(sources, stamp::sounds() + recipe.name), [=, &shop, &voices, &recipe] {
                const Spoken name = QFile::exists(recording) ? voices.recording(recording)
                                                             : voices.speak(recipe.name, Speaker::names);
                if (!name.fault.isEmpty()) shop.problems.error(recipe.place, name.fault);
                return name.fault.isEmpty() && writeWav(file, name.sound);
            }};
}

void makeNames(Workshop& shop) {
    const Voices voices(shop.content, shop.scratch, shop.problems);
    if (shop.problems.hasErrors()) return;
    QDir().mkpath(shop.scratch);
    QList<Task> tasks;
    for (const Recipe& recipe : shop.book.recipes) tasks << nameTask(shop, voices, recipe);
    shop.makeAll(tasks);
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
void compress(Workshop& shop) {
    const QStringList music{QStringLiteral("-c:a"), QStringLiteral("libopus"), QStringLiteral("-b:a"),
                            QStringLiteral("128k")};
    const QStringList speech{QStringLiteral("-c:a"), QStringLiteral("libvorbis"), QStringLiteral("-q:a"),
                             QStringLiteral("5")};
    QList<Task> tasks;
    for (const QString& track : {kMusic, kWineMusic})
        tasks << compressed(shop, track, QStringLiteral("opus"), music);
    for (const Recipe& recipe : shop.book.recipes)
        tasks << compressed(shop, nameFile(recipe), QStringLiteral("ogg"), speech);
    shop.makeAll(tasks);
}

}  // namespace

void makeEffects(Workshop& shop) {
    renderEffects(shop, readCheckedEffects(shop));
}

void makeSounds(Workshop& shop) {
    const QList<Effect> effects = readCheckedEffects(shop);
    if (shop.problems.hasErrors()) return;
    renderEffects(shop, effects);
    makeMusic(shop, effects, QStringLiteral("zvuky/hudba.txt"), kMusic);
    makeMusic(shop, effects, QStringLiteral("zvuky/vina.txt"), kWineMusic);
    makeNames(shop);
    if (shop.kind == DiscKind::Compact && !shop.problems.hasErrors()) compress(shop);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
