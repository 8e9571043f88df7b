#include "soundserver.h"

#include <signal.h>

#include <QFile>
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>

#include "support/files.h"
#include "testmedia.h"

namespace sarne {

using namespace Qt::StringLiterals;  // benchmarks are compiled without what tests have

namespace {

constexpr int threshold = 100;
constexpr double perMs = 44.1;

QStringList words(const char* arguments) {
    return QString::fromLatin1(arguments).split(u' ');
}

/// A tone of \a hertz in \a count samples from \a first on: how strong it is and where its wave stands.
std::complex<double> waveIn(const std::vector<qint16>& samples, std::size_t first, std::size_t count,
                            double hertz) {
    std::complex<double> wave;
    for (std::size_t i = first; i < first + count; ++i)
        wave +=
            std::polar<double>(samples[i], -2 * std::numbers::pi * hertz * static_cast<double>(i) / 44100);
    return wave;
}

bool sounds(qint16 sample) {
    return std::abs(sample) > threshold;
}

}  // namespace

Recording Recording::part(double from, double to) const {
    const auto at = [this](double ms) {
        return samples_.begin() +
               std::clamp<qint64>(std::llround(ms * perMs), 0, static_cast<qint64>(samples_.size()));
    };
    return Recording(std::vector<qint16>(at(from), at(std::max(from, to))));
}

int Recording::peak() const {
    int peak = 0;
    for (const qint16 sample : samples_) peak = std::max(peak, std::abs(sample));
    return peak;
}

double Recording::firstSound() const {
    const auto found = std::find_if(samples_.begin(), samples_.end(), sounds);
    return found == samples_.end() ? -1 : static_cast<double>(found - samples_.begin()) / perMs;
}

double Recording::lastSound() const {
    const auto found = std::find_if(samples_.rbegin(), samples_.rend(), sounds);
    return found == samples_.rend() ? -1 : static_cast<double>(samples_.rend() - found) / perMs;
}

double Recording::longestGap() const {
    const Recording inner = part(firstSound(), lastSound());
    int longest = 0;
    int run = 0;
    for (const qint16 sample : inner.samples_) {
        run = sounds(sample) ? 0 : run + 1;
        longest = std::max(longest, run);
    }
    return longest / perMs;
}

double Recording::longestShift(double hertz) const {
    const std::vector<qint16> inner = part(firstSound(), lastSound()).samples_;
    const std::size_t window = static_cast<std::size_t>(std::llround(2 * 44100 / hertz));
    std::complex<double> first;
    double longest = 0;
    for (std::size_t start = 0; start + window <= inner.size(); start += window) {
        const std::complex<double> wave = waveIn(inner, start, window, hertz);
        if (start == 0) first = wave;
        longest = std::max(longest, std::abs(std::arg(wave / first)));
    }
    return longest / (2 * std::numbers::pi * hertz) * 1000;
}

double Recording::share(double hertz) const {
    constexpr std::size_t window = 441;  // short, so that a stutter on a busy machine does not matter
    double tone = 0;
    double energy = 0;
    for (std::size_t start = 0; start + window <= samples_.size(); start += window) {
        for (std::size_t i = start; i < start + window; ++i) energy += double(samples_[i]) * samples_[i];
        tone += 2 * std::norm(waveIn(samples_, start, window, hertz)) / window;
    }
    return energy > 0 ? tone / energy : 0;
}

SoundServer::SoundServer() = default;

SoundServer::~SoundServer() {
    kill();
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
}

bool SoundServer::start() {
    const QString socket = folder_.filePath(u"native"_s);
    QFile::remove(socket);  // of a server that was killed
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "PULSE_RUNTIME_PATH"})
        environment.insert(QLatin1String(name), folder_.path());
    environment.remove(u"PULSE_SERVER"_s);
    server_.setProcessEnvironment(environment);
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(u"pulseaudio"_s,
                  words("-n --daemonize=no --use-pid-file=no --exit-idle-time=-1 -L") +
                      QStringList{u"module-native-protocol-unix auth-anonymous=1 socket="_s + socket, u"-L"_s,
                                  u"module-null-sink sink_name=nahravka"_s});
    if (!server_.waitForStarted() || !waitFor([&] { return QFile::exists(socket); })) return false;
    qputenv("PULSE_SERVER", "unix:" + socket.toUtf8());
    offerByAlsa();
    return startRecording();
}

/// A program that does not know the server reaches it as one reaches a sound card, where ALSA's plugin is
/// installed.
void SoundServer::offerByAlsa() {
    const QString config = folder_.filePath(u"asound.conf"_s);
    if (test::write(config, "pcm.!default { type pulse }\nctl.!default { type pulse }\n"))
        qputenv("ALSA_CONFIG_PATH", config.toUtf8());
}

bool SoundServer::startRecording() {
    recorder_.start(
        u"parec"_s,
        words("-d nahravka.monitor --raw --format=s16le --rate=44100 --channels=1 --latency-msec=10"));
    return recorder_.waitForStarted() && waitFor([this] { return recorder_.bytesAvailable() > 0; });
}

void SoundServer::kill() {
    for (QProcess* process : {&recorder_, &server_}) {
        process->kill();
        process->waitForFinished();
    }
}

void SoundServer::freeze() {
    ::kill(static_cast<pid_t>(server_.processId()), SIGSTOP);
}

void SoundServer::wake() {
    ::kill(static_cast<pid_t>(server_.processId()), SIGCONT);
}

bool SoundServer::pullDevice() {
    return QProcess::execute(u"pactl"_s, words("unload-module module-null-sink")) == 0;
}

bool SoundServer::plugDevice() {
    const QString load = u"pactl load-module module-null-sink sink_name=nahravka >/dev/null"_s;
    if (QProcess::execute(u"sh"_s, {u"-c"_s, load}) != 0) return false;
    recorder_.kill();
    recorder_.waitForFinished();
    rewind();
    return startRecording();
}

void SoundServer::rewind() {
    recorder_.readAllStandardOutput();
    bytes_.clear();
}

Recording SoundServer::recorded() {
    bytes_ += recorder_.readAllStandardOutput();
    std::vector<qint16> samples(static_cast<std::size_t>(bytes_.size()) / 2);
    if (!samples.empty()) std::memcpy(samples.data(), bytes_.constData(), samples.size() * 2);
    return Recording(std::move(samples));
}

Recording SoundServer::listen(int milliseconds) {
    rewind();
    runFor(milliseconds);
    return recorded();
}

Recording SoundServer::latest() {
    const Recording sound = recorded();
    return sound.part(sound.milliseconds() - 200, sound.milliseconds());
}

bool SoundServer::waitForTone(double hertz) {
    return waitFor([&] { return latest().peak() > 3000 && latest().share(hertz) > 0.9; });
}

bool SoundServer::waitForSilence() {
    return waitFor([&] { return recorded().milliseconds() > 200 && latest().peak() == 0; });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
