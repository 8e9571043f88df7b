#include "makesounds.h"

#include <QDir>
#include <QFileInfo>

#include "../stamps.h"
#include "music.h"
#include "voice.h"

namespace sarne::disc {
namespace {

const QString kEffects = QStringLiteral("zvuky/efekty.txt");
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
    const QString file = shop.disc + u'/' + output;
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

Task nameTask(Workshop& shop, const Voices& voices, const Recipe& recipe) {
    const QString file = shop.disc + QStringLiteral("/zvuky/č%1.wav").arg(recipe.id);
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

}  // namespace

void makeEffects(Workshop& shop) {
    renderEffects(shop, readCheckedEffects(shop));
}

void makeSounds(Workshop& shop) {
    const QList<Effect> effects = readCheckedEffects(shop);
    if (shop.problems.hasErrors()) return;
    renderEffects(shop, effects);
    makeMusic(shop, effects, QStringLiteral("zvuky/hudba.txt"), QStringLiteral("HUDBA.WAV"));
    makeMusic(shop, effects, QStringLiteral("zvuky/vina.txt"), QStringLiteral("zvuky/Vina.WAV"));
    makeNames(shop);
}

}  // namespace sarne::disc
