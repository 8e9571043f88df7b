#include "app/editionwatch.h"

#include <QFile>
#include <QFileInfo>

namespace sarne {
namespace {

constexpr int kAgain = 200;
constexpr qint64 kLongestMark = 64;

struct Mark {
    int edition = 0;
    int recipe = 0;
    int section = 0;
};

Mark readMark(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QList<QByteArray> words = file.read(kLongestMark).simplified().split(' ');
    return {words.value(0).toInt(), words.value(1).toInt(), words.value(2).toInt()};
}

}  // namespace

EditionWatch::EditionWatch(QString mark, Show show) : mark_(std::move(mark)), show_(std::move(show)) {
    if (mark_.isEmpty()) return;
    edition_ = readMark(mark_).edition;
    watcher_.addPath(QFileInfo(mark_).absolutePath());
    again_.setSingleShot(true);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &EditionWatch::look);
    connect(&again_, &QTimer::timeout, this, &EditionWatch::look);
}

void EditionWatch::look() {
    const Mark mark = readMark(mark_);
    if (mark.edition == 0 || mark.edition == edition_) return;
    if (show_(static_cast<std::int16_t>(mark.recipe), mark.section))
        edition_ = mark.edition;
    else
        again_.start(kAgain);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
