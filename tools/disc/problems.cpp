#include "problems.h"

namespace sarne::disc {

namespace {

QString located(const Place& place, const QString& text) {
    return QStringLiteral("%1:%2: %3").arg(place.file).arg(place.line).arg(text);
}

}  // namespace

void Problems::error(const Place& place, const QString& text) {
    const QString line = located(place, text);
    if (!errors_.contains(line)) errors_ << line;
}

void Problems::finding(const Place& place, const QString& text) {
    edition_ == Edition::release ? error(place, text) : note(located(place, text));
}

void Problems::note(const QString& text) {
    if (!notes_.contains(text)) notes_ << text;
}

}  // namespace sarne::disc
