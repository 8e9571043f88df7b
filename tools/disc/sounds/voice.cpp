#include "voice.h"

#include <QProcess>
#include <QTemporaryDir>

namespace sarne::disc {
namespace {

constexpr int kTimeout = 30'000;
constexpr double kPeak = -4.5;
constexpr double kSilence = -46;

QString wordsPerMinute(Pace pace) {
    return pace == Pace::name ? QStringLiteral("135") : QStringLiteral("160");
}

}  // namespace

Sound speak(const QString& text, Pace pace, const QString& scratch) {
    const QTemporaryDir folder(scratch + QStringLiteral("/hlas"));
    const QString file = folder.filePath(QStringLiteral("hlas.wav"));
    QProcess speech;
    speech.setStandardErrorFile(QProcess::nullDevice());
    speech.start(QStringLiteral("espeak-ng"),
                 {QStringLiteral("-v"), QStringLiteral("cs"), QStringLiteral("-s"), wordsPerMinute(pace),
                  QStringLiteral("-p"), QStringLiteral("42"), QStringLiteral("-g"), QStringLiteral("2"),
                  QStringLiteral("-w"), file, QStringLiteral("--stdin")});
    speech.write(text.toUtf8());
    speech.closeWriteChannel();
    if (!speech.waitForFinished(kTimeout) || speech.exitCode() != 0) return {};
    Sound spoken = readWav(file);
    trimSilence(spoken, kSilence, 0.04);
    fadeEnds(spoken, 0.01, 0.03);
    setPeak(spoken, kPeak);
    return spoken;
}

}  // namespace sarne::disc
