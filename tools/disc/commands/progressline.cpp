#include "progressline.h"

#include <unistd.h>

#include <QLocale>
#include <cstdio>

namespace sarne::disc {
namespace {

constexpr int kBar = 24;
constexpr qint64 kSecond = 1000;
constexpr qint64 kMinute = 60;
constexpr double kMegabyte = 1e6;

QString decimal(double value) {
    return QLocale(QLocale::Czech).toString(value, 'f', 1);
}

}  // namespace

ProgressLine::ProgressLine() : isTerminal_(isatty(STDOUT_FILENO) != 0) {
    since_.start();
}

void ProgressLine::made(const QString& stage, qsizetype done, qsizetype all, const QString& file) {
    ++total_;
    if (!isTerminal_) {
        if (stage != stage_) endStage();
        stage_ = stage;
        ++inStage_;
        return;
    }
    const auto full = static_cast<int>(kBar * done / std::max<qsizetype>(1, all));
    const QString line = QStringLiteral("[%1%2] %3 %4/%5 %6 %7")
                             .arg(QString(full, u'#'), QString(kBar - full, u'.'), stage)
                             .arg(done)
                             .arg(all)
                             .arg(QFileInfo(file).fileName(), durationText(since_.elapsed()));
    std::printf("\r%s", qUtf8Printable(line.leftJustified(width_)));
    std::fflush(stdout);
    width_ = line.size();
}

void ProgressLine::endStage() {
    if (inStage_ > 0)
        std::printf("%s: %lld (%s)\n", qUtf8Printable(stage_), static_cast<long long>(inStage_),
                    qUtf8Printable(durationText(since_.elapsed())));
    std::fflush(stdout);
    inStage_ = 0;
}

void ProgressLine::clear() {
    if (isTerminal_ && width_ > 0) std::printf("\r%s\r", qUtf8Printable(QString(width_, u' ')));
    width_ = 0;
}

void ProgressLine::finish(const QString& what) {
    clear();
    endStage();
    std::printf("%s, vyrobeno souborů: %lld, trvalo to %s\n", qUtf8Printable(what),
                static_cast<long long>(total_), qUtf8Printable(durationText(since_.elapsed())));
}

QString durationText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / kSecond;
    if (seconds >= kMinute)
        return QStringLiteral("%1 min %2 s").arg(seconds / kMinute).arg(seconds % kMinute);
    return decimal(static_cast<double>(milliseconds) / kSecond) + QStringLiteral(" s");
}

QString sizeText(qint64 bytes) {
    return decimal(static_cast<double>(bytes) / kMegabyte) + QStringLiteral(" MB");
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
