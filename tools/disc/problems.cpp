#include "problems.h"

namespace sarne::disc {

namespace {

QString located(const Place& place, const QString& text) {
    return QStringLiteral("%1:%2: %3").arg(place.file).arg(place.line).arg(text);
}

}  // namespace

void Problems::add(QStringList& list, const Problem& problem) {
    const QString line = located(problem.place, problem.text);
    const std::lock_guard lock(adding_);
    if (list.contains(line)) return;
    list << line;
    all_ << problem;
}

void Problems::error(const Place& place, const QString& text) {
    hasMistakes_ = true;
    add(errors_, {place, text, true});
}

void Problems::finding(const Place& place, const QString& text) {
    const bool isError = edition_ == Edition::release;
    add(isError ? errors_ : notes_, {place, text, isError});
}

void Problems::note(const QString& text) {
    const std::lock_guard lock(adding_);
    if (!notes_.contains(text)) notes_ << text;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
