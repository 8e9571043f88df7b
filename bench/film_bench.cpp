// How soon a film shows its first picture, against the bare library on the same file, and for how long
// opening it keeps the user thread. The film is the one named by SARNE_FILM, otherwise one like those of the
// disc.
#include <benchmark/benchmark.h>
#include <ctime>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <clocale>
#include <vector>

#include "platform/mpvcontrol.h"
#include "platform/mpvlibrary.h"
#include "platform/testmedia.h"

namespace sarne {
namespace {

constexpr QSize kSize(800, 600);
constexpr int kRounds = 15;
constexpr int kPatience = 3000;  // milliseconds

double threadSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Keeps the longest time that one event took the user thread.
class TimedApplication : public QGuiApplication {
  public:
    using QGuiApplication::QGuiApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_++ > 0) return inner(receiver, event);
        QElapsedTimer wall;
        wall.start();
        const double before = threadSeconds();
        const bool done = inner(receiver, event);
        longestWall = std::max(longestWall, static_cast<double>(wall.nsecsElapsed()) / 1e6);
        longestWork = std::max(longestWork, (threadSeconds() - before) * 1000);
        return done;
    }

    double longestWall = 0, longestWork = 0;  // milliseconds: on the clock, and of the processor

  private:
    bool inner(QObject* receiver, QEvent* event) {
        const bool done = QGuiApplication::notify(receiver, event);
        --depth_;
        return done;
    }
    int depth_ = 0;
};

QString film(const TestMedia& media) {
    const QString named = qEnvironmentVariable("SARNE_FILM");
    if (!named.isEmpty()) return QFile::exists(named) ? named : QString();
    return media.film(
        QStringLiteral("a.mkv"), 4000,
        QStringLiteral("-c:v libx264 -preset fast -crf 21 -pix_fmt yuv420p -g 100 -c:a libmp3lame"),
        QStringLiteral("800x600"));
}

double milliseconds(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// The program's own way: a new player, as for every film, opened from within an event.
double ownWay(const QString& file) {
    QElapsedTimer clock;
    clock.start();
    MpvControl player;
    bool shown = false;
    QObject::connect(&player, &MultimediaControl::frameReady, &player,
                     [&] { shown = shown || !player.renderFrame(kSize).isNull(); });
    QMetaObject::invokeMethod(
        &player,
        [&] {
            player.setWait(MediaWait::DontWait);
            player.setFileName(file);
            player.command(u"open");
            player.command(u"play");
        },
        Qt::QueuedConnection);
    QEventLoop loop;
    QObject::connect(&player, &MultimediaControl::frameReady, &loop, [&] {
        if (shown) loop.quit();
    });
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    loop.exec();
    return milliseconds(clock);
}

/// Draws the picture that waits, if one does.
bool drawn(const MpvLibrary& mpv, mpv_render_context* context, QImage& image) {
    if (!(mpv.renderContextUpdate(context) & MPV_RENDER_UPDATE_FRAME)) return false;
    int size[] = {image.width(), image.height()};
    char format[] = "bgr0";
    size_t stride = static_cast<size_t>(image.bytesPerLine());
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                 {MPV_RENDER_PARAM_SW_FORMAT, format},
                                 {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                 {MPV_RENDER_PARAM_SW_POINTER, image.bits()},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    return mpv.renderContextRender(context, params) >= 0;
}

/// The library alone, with nothing but what it needs to draw into memory.
double bareWay(const MpvLibrary& mpv, const QString& file) {
    QElapsedTimer clock;
    clock.start();
    std::setlocale(LC_NUMERIC, "C");
    mpv_handle* handle = mpv.create();
    for (const auto& [name, value] : {std::pair("vo", "libmpv"),
                                      {"config", "no"},
                                      {"terminal", "no"},
                                      {"ao", "pulse,alsa"},
                                      {"audio-fallback-to-null", "yes"},
                                      {"hwdec", "no"}})
        mpv.setOptionString(handle, name, value);
    mpv.initialize(handle);
    char api[] = MPV_RENDER_API_TYPE_SW;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, api}, {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_render_context* context = nullptr;
    mpv.renderContextCreate(&context, handle, params);
    const QByteArray path = file.toUtf8();
    const char* command[] = {"loadfile", path.constData(), nullptr};
    mpv.commandAsync(handle, 0, command);
    QImage image(kSize, QImage::Format_RGB32);
    while (!drawn(mpv, context, image) && clock.elapsed() < kPatience) mpv.waitEvent(handle, 0.001);
    const double needed = milliseconds(clock);
    mpv.renderContextFree(context);
    mpv.terminateDestroy(handle);
    return needed;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Both ways by turns, so that a busy machine is as busy for the one as for the other.
void BM_FirstPicture(benchmark::State& state) {
    const TestMedia media;
    const QString file = film(media);
    const auto mpv = MpvLibrary::load();
    if (!mpv || file.isEmpty()) return state.SkipWithError("no player or no film");
    ownWay(file);
    std::vector<double> own, bare;
    for (auto _ : state) {
        for (int i = 0; i < kRounds; ++i) {
            bare.push_back(bareWay(*mpv, file));
            own.push_back(ownWay(file));
        }
    }
    state.counters["own_ms"] = median(own);
    state.counters["bare_ms"] = median(bare);
    state.counters["ratio"] = median(own) / median(bare);
}
BENCHMARK(BM_FirstPicture)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The longest event from the wish to see a film to its first picture: on the clock, and what the user thread
/// itself worked meanwhile, which another process cannot make longer.
void BM_LongestEventWhileOpening(benchmark::State& state) {
    const TestMedia media;
    const QString file = film(media);
    if (file.isEmpty()) return state.SkipWithError("no film");
    auto* application = static_cast<TimedApplication*>(QCoreApplication::instance());
    std::vector<double> wall, work;
    for (auto _ : state) {
        for (int i = 0; i < kRounds; ++i) {
            application->longestWall = application->longestWork = 0;
            ownWay(file);
            wall.push_back(application->longestWall);
            work.push_back(application->longestWork);
        }
    }
    state.counters["wall_median_ms"] = median(wall);
    state.counters["wall_worst_ms"] = *std::max_element(wall.begin(), wall.end());
    state.counters["work_median_ms"] = median(work);
    state.counters["work_worst_ms"] = *std::max_element(work.begin(), work.end());
}
BENCHMARK(BM_LongestEventWhileOpening)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    sarne::TimedApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
