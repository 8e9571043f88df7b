#include "problems.h"

namespace sarne::disc {

namespace {

QString located(const Place& place, const QString& text) {
    return QStringLiteral("%1:%2: %3").arg(place.file).arg(place.line).arg(text);
}

}  // namespace

void Problems::add(QStringList& list, const QString& text) {
    const std::lock_guard lock(adding_);
    if (!list.contains(text)) list << text;
}

void Problems::error(const Place& place, const QString& text) {
    add(errors_, located(place, text));
}

void Problems::finding(const Place& place, const QString& text) {
    add(edition_ == Edition::release ? errors_ : notes_, located(place, text));
}

void Problems::note(const QString& text) {
    add(notes_, text);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
