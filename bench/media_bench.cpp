#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>

#include "platform/effectplayer.h"
#include "platform/mpvcontrol.h"
#include "platform/soundserver.h"
#include "platform/testmedia.h"

namespace sarne {
namespace {

constexpr int filmMs = 4000;

QString film(const TestMedia& media) {
    return media.film(QStringLiteral("a.avi"), filmMs, QStringLiteral("-c:v mjpeg -q:v 4 -c:a pcm_s16le"));
}

/// Processor time of all threads of this process, in seconds.
double cpuSeconds() {
    rusage use;
    getrusage(RUSAGE_SELF, &use);
    return static_cast<double>(use.ru_utime.tv_sec + use.ru_stime.tv_sec) +
           static_cast<double>(use.ru_utime.tv_usec + use.ru_stime.tv_usec) / 1e6;
}

qint64 residentKilobytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.simplified().split(' ').value(1).toLongLong();
    return 0;
}

/// The first "open" of the run, which loads the player: what a start without music is spared.
void BM_LoadPlayer(benchmark::State& state) {
    const TestMedia media;
    const QString file = media.write(QStringLiteral("a.wav"), sineWav(440, 1000));
    const qint64 before = residentKilobytes();
    for (auto _ : state) {
        MpvControl player;
        player.setFileName(file);
        player.command(u"open");
        state.counters["kilobytes"] = static_cast<double>(residentKilobytes() - before);
    }
}
BENCHMARK(BM_LoadPlayer)->Iterations(1)->Unit(benchmark::kMillisecond);

/// How long "open" keeps the user interface when it does not wait, the player being loaded for the first time
/// or not.
void BM_OpenWithoutWaiting(benchmark::State& state) {
    const TestMedia media;
    MpvControl player;
    player.setWait(MediaWait::DontWait);
    player.setFileName(media.write(QStringLiteral("a.wav"), sineWav(440, 1000)));
    for (auto _ : state) player.command(u"open");
}
BENCHMARK(BM_OpenWithoutWaiting)->Iterations(20)->Unit(benchmark::kMillisecond);

void BM_OpenToFirstFrame(benchmark::State& state) {
    const TestMedia media;
    MpvControl player;
    player.setFileName(film(media));
    for (auto _ : state) {
        player.command(u"open");
        if (player.renderFrame({800, 600}).isNull()) state.SkipWithError("no picture");
    }
}
BENCHMARK(BM_OpenToFirstFrame)->Iterations(20)->Unit(benchmark::kMillisecond);

/// A new player each time, as a screen that is made for every film.
void BM_NewPlayerToFirstFrame(benchmark::State& state) {
    const TestMedia media;
    const QString file = film(media);
    for (auto _ : state) {
        MpvControl player;
        player.setFileName(file);
        player.command(u"open");
        if (player.renderFrame({800, 600}).isNull()) state.SkipWithError("no picture");
    }
}
BENCHMARK(BM_NewPlayerToFirstFrame)->Iterations(20)->Unit(benchmark::kMillisecond);

/// From a jump in a film of an hour to its first picture there.
void BM_SeekInAnHour(benchmark::State& state) {
    const TestMedia media;
    MpvControl player;
    player.setFileName(media.film(QStringLiteral("a.avi"), 3600000,
                                  QStringLiteral("-c:v mjpeg -c:a pcm_u8 -ar 8000"),
                                  QStringLiteral("160x120"), 5));
    player.command(u"open");  // and stays stopped: what is shown comes of the jump
    bool shown = false;
    QObject::connect(&player, &MultimediaControl::frameReady, &player, [&] { shown = true; });
    qint64 minute = 50;
    for (auto _ : state) {
        state.PauseTiming();
        runFor(300);
        shown = false;
        state.ResumeTiming();
        player.setPosition(minute * 60000);
        if (!waitFor([&] { return shown && !player.renderFrame({800, 600}).isNull(); }))
            state.SkipWithError("no picture");
        minute = 60 - minute;
    }
}
BENCHMARK(BM_SeekInAnHour)->Iterations(20)->Unit(benchmark::kMillisecond);

/// The share of one core that a film of 320 x 240 takes at this size.
void BM_PlayFilm(benchmark::State& state) {
    const QSize size(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const TestMedia media;
    MpvControl player;
    int frames = 0;
    QObject::connect(&player, &MultimediaControl::frameReady, &player, [&] {
        ++frames;
        benchmark::DoNotOptimize(player.renderFrame(size));
    });
    player.setFileName(film(media));
    player.command(u"open");
    for (auto _ : state) {
        QElapsedTimer time;
        time.start();
        const double before = cpuSeconds();
        player.command(u"play");
        waitFor([&] { return player.mode() == MediaMode::Stopped; }, 2 * filmMs);
        state.counters["core"] = (cpuSeconds() - before) / (static_cast<double>(time.elapsed()) / 1000);
        state.counters["frames"] = frames;
    }
}
BENCHMARK(BM_PlayFilm)->Args({800, 600})->Args({1920, 1080})->Iterations(1)->Unit(benchmark::kMillisecond);

/// The share of one core that the music takes.
void BM_PlayMusic(benchmark::State& state) {
    SoundServer server;
    if (!server.start()) return state.SkipWithError("no sound server");
    const TestMedia media;
    MpvControl player;
    player.setFileName(media.write(QStringLiteral("a.wav"), sineWav(440, 20000)));
    player.setLoop(MediaLoop::On);
    player.command(u"open");
    player.command(u"play");
    QEventLoop loop;
    for (auto _ : state) {
        const double before = cpuSeconds();
        QTimer::singleShot(4000, &loop, &QEventLoop::quit);
        loop.exec();
        state.counters["core"] = (cpuSeconds() - before) / 4;
    }
}
BENCHMARK(BM_PlayMusic)->Iterations(1)->Unit(benchmark::kMillisecond);

/// From play() to the sound at the end of the recorder's pipe, the recorder's own delay of some 10 ms
/// included.
void BM_EffectStarts(benchmark::State& state) {
    SoundServer server;
    if (!server.start()) return state.SkipWithError("no sound server");
    MixerEffectPlayer effects;
    effects.prepare();
    runFor(500);
    const QByteArray effect = sineWav(1000, 60);
    for (auto _ : state) {
        state.PauseTiming();
        runFor(300);
        server.rewind();
        state.ResumeTiming();
        effects.play(effect);
        waitFor([&] { return server.recorded().firstSound() >= 0; });
    }
}
BENCHMARK(BM_EffectStarts)->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
