#include "media/chapters.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <optional>

namespace sarne {
namespace {

constexpr qint64 kLargest = 65536;      // bytes; a film's chapters take some hundred
constexpr double kLongest = 24 * 3600;  // seconds
constexpr qint64 kJustBegun = 2000;     // milliseconds

std::optional<Chapter> chapterOf(const QString& line) {
    const qsizetype tab = line.indexOf(u'\t');
    if (tab < 0) return {};
    bool isNumber = false;
    const double seconds = line.left(tab).toDouble(&isNumber);
    const QString title = line.mid(tab + 1).simplified();
    if (!isNumber || !(seconds >= 0 && seconds < kLongest) || title.isEmpty()) return {};
    return Chapter{qRound64(seconds * 1000), title};
}

std::optional<QString> decoded(const QByteArray& text) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString all = utf8(text);
    if (utf8.hasError()) return {};
    return all;
}

}  // namespace

Chapters Chapters::parse(const QByteArray& text) {
    const auto all = decoded(text);
    if (!all) return {};
    Chapters found;
    for (const QString& line : all->split(u'\n', Qt::SkipEmptyParts)) {
        const auto chapter = chapterOf(line);
        if (!chapter || (!found.isEmpty() && chapter->start <= found.chapters_.back().start)) return {};
        found.chapters_.push_back(*chapter);
    }
    return found;
}

Chapters Chapters::read(const QString& file) {
    QFile source(file);
    if (file.isEmpty() || !source.open(QIODevice::ReadOnly) || source.size() > kLargest) return {};
    return parse(source.read(kLargest));
}

int Chapters::at(qint64 position) const {
    const auto later = std::ranges::upper_bound(chapters_, position, {}, &Chapter::start);
    return int(later - chapters_.begin()) - 1;
}

QString Chapters::titleAt(qint64 position) const {
    const int index = at(position);
    return index < 0 ? QString() : chapters_[size_t(index)].title;
}

qint64 Chapters::previous(qint64 position) const {
    return startOf(at(position) - 1);
}

qint64 Chapters::next(qint64 position, qint64 length) const {
    const int index = at(position) + 1;
    return index < int(chapters_.size()) ? std::min(startOf(index), length) : length;
}

qint64 Chapters::again(qint64 position) const {
    const int index = at(position);
    return startOf(position - startOf(index) < kJustBegun ? index - 1 : index);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
