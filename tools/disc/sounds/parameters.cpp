#include "parameters.h"

namespace sarne::disc {

bool readNumber(const QString& text, double& value) {
    bool isNumber = false;
    const double read = QString(text).replace(u',', u'.').toDouble(&isNumber);
    if (isNumber) value = read;
    return isNumber;
}

Parameters::Parameters(const QString& text, Place place, Problems& problems)
    : place_(std::move(place)), problems_(problems) {
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        const qsizetype equals = word.indexOf(u'=');
        if (equals < 0)
            names_ << word;
        else
            values_.insert(word.first(equals), word.mid(equals + 1));
    }
}

double Parameters::parsed(const QString& key, const QString& value, double missing) {
    double number = missing;
    if (!readNumber(value, number))
        problems_.error(place_, QStringLiteral("%1 není číslo: %2").arg(key, value));
    return number;
}

double Parameters::number(const QString& key, double missing) {
    return glide(key, missing).first;
}

std::pair<double, double> Parameters::glide(const QString& key, double missing) {
    if (!values_.contains(key)) return {missing, missing};
    const QString value = values_.take(key);
    const qsizetype arrow = value.indexOf(u'>');
    if (arrow < 0) {
        const double number = parsed(key, value, missing);
        return {number, number};
    }
    return {parsed(key, value.first(arrow), missing), parsed(key, value.mid(arrow + 1), missing)};
}

QString Parameters::text(const QString& key) {
    return values_.take(key);
}

void Parameters::reportUnknown() {
    QStringList keys = values_.keys();
    keys.sort();
    for (const QString& key : keys) problems_.error(place_, QStringLiteral("klíč „%1“ je neznámý").arg(key));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
