#include "linkbook.h"

namespace sarne::disc {
namespace {

QString folded(const QString& name) {
    QString text = name.simplified().toLower();
    return text.replace(QChar(QChar::Nbsp), u' ');
}

}  // namespace

bool LinkBook::addKeyword(const QString& name, int number) {
    if (keywords_.contains(folded(name))) return keywords_.value(folded(name)) == number;
    keywords_.insert(folded(name), number);
    return true;
}

std::optional<LinkTarget> LinkBook::find(const QString& name) const {
    const QString key = folded(name);
    if (key.startsWith(QLatin1String("video "))) {
        const int number = key.mid(6).toInt();
        if (videos_.contains(number)) return LinkTarget{LinkKind::video, number};
        return {};
    }
    const auto found = keywords_.constFind(key);
    if (found == keywords_.cend()) return {};
    return LinkTarget{LinkKind::keyword, *found};
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
