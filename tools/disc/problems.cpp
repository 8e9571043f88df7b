#include "problems.h"

namespace sarne::disc {

void Problems::error(const Place& place, const QString& text) {
    const QString line = QStringLiteral("%1:%2: %3").arg(place.file).arg(place.line).arg(text);
    if (!errors_.contains(line)) errors_ << line;
}

void Problems::note(const QString& text) {
    if (!notes_.contains(text)) notes_ << text;
}

}  // namespace sarne::disc
