#include "richtext/wordwrap.h"

#include <algorithm>

#include "core/unbreakable.h"

namespace sarne {
namespace {

constexpr qsizetype kShort = 512;  // characters that are measured at once

}  // namespace

qsizetype charactersFitting(QStringView text, int width, const MeasureText& measure) {
    qsizetype fits = 1, tooMany = text.size() + 1;
    // Most lines are short of the end of the text by far: look near first.
    for (qsizetype step = 64; fits + step < tooMany; step *= 2) {
        if (measure(text.left(fits + step)) > width)
            tooMany = fits + step;
        else
            fits += step;
    }
    while (tooMany - fits > 1) {
        const qsizetype middle = fits + (tooMany - fits) / 2;
        (measure(text.left(middle)) <= width ? fits : tooMany) = middle;
    }
    return fits;
}

qsizetype firstLine(QStringView text, int width, const MeasureText& measure, LongWords longWords) {
    if (text.size() <= kShort && measure(text) <= width) return text.size();
    const qsizetype fits = charactersFitting(text, width, measure);
    if (fits >= text.size()) return text.size();
    // Blanks in front belong to the first word: an indented line is not broken before it begins.
    const qsizetype word =
        std::find_if(text.begin(), text.end(), [](QChar c) { return c != u' '; }) - text.begin();
    const qsizetype last = text.left(fits + 1).lastIndexOf(u' ');
    qsizetype blank = last;
    while (blank > word && holdsTogether(text, blank)) blank = text.left(blank).lastIndexOf(u' ');
    if (blank <= word) blank = last;  // nothing else is left
    if (blank > word) return blank == fits ? fits : blank + 1;
    if (longWords == LongWords::Break) return fits;
    const qsizetype end = text.indexOf(u' ', word);
    return end < 0 ? text.size() : end;
}

QStringList wrapAtBlanks(const QString& text, int width, const MeasureText& measure, const QString& indent) {
    QStringList lines;
    QString rest = text;
    while (true) {
        const qsizetype length = firstLine(rest, width, measure, LongWords::Overhang);
        if (length == rest.size()) return lines << rest;
        QString line = rest.left(length);
        while (line.endsWith(u' ')) line.chop(1);
        lines << line;
        while (length < rest.size() && rest[length] == u' ') rest.remove(length, 1);
        if (length == rest.size()) return lines;
        rest = indent + rest.mid(length);
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
