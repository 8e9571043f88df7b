#include "textfile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStringDecoder>
#include <algorithm>

namespace sarne::disc {

int Line::indent() const {
    const auto first = std::find_if(text.cbegin(), text.cend(), [](QChar c) { return c != u' '; });
    return static_cast<int>(first - text.cbegin());
}

Lines ContentFolder::read(const QString& file) const {
    QFile opened(root_ + u'/' + file);
    if (!opened.open(QIODevice::ReadOnly)) {
        problems_.error({file, 0}, QStringLiteral("soubor chybí"));
        return {};
    }
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString all = utf8(opened.readAll());
    if (utf8.hasError()) problems_.error({file, 0}, QStringLiteral("soubor není v UTF-8"));
    Lines lines;
    int number = 0;
    for (QString text : all.split(u'\n')) {
        ++number;
        while (!text.isEmpty() && text.back().isSpace()) text.chop(1);
        if (text.startsWith(u';')) continue;
        lines << Line{{file, number}, text};
    }
    return lines;
}

Lines ContentFolder::readIfThere(const QString& file) const {
    return QFile::exists(root_ + u'/' + file) ? read(file) : Lines();
}

QStringList ContentFolder::files(const QString& folder) const {
    QStringList found;
    const QDir dir(root_ + u'/' + folder);
    for (const QString& name : dir.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name))
        found << folder + u'/' + name;
    return found;
}

QStringList ContentFolder::allFiles() const {
    QStringList found;
    QDirIterator walk(root_, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) found << walk.next();
    found.sort();
    return found;
}

QList<Row> tableRows(const Lines& lines) {
    QList<Row> rows;
    for (const Line& line : lines) {
        if (line.isBlank()) continue;
        Row row{line.place, line.text.split(u'|')};
        for (QString& cell : row.cells) cell = cell.trimmed();
        rows << row;
    }
    return rows;
}

QList<Section> sections(const Lines& lines) {
    QList<Section> all{{lines.isEmpty() ? Place{} : lines.first().place, {}, {}}};
    for (const Line& line : lines) {
        if (line.text.startsWith(QLatin1String("==")))
            all << Section{line.place, line.text.mid(2).trimmed(), {}};
        else
            all.last().lines << line;
    }
    return all;
}

KeyValue keyValue(const Line& line) {
    const qsizetype colon = line.text.indexOf(u':');
    if (colon < 0) return {line.place, {}, line.text.trimmed()};
    return {line.place, line.text.first(colon).trimmed().toLower(), line.text.mid(colon + 1).trimmed()};
}

QStringList trimmedParts(const QString& text, QChar separator) {
    QStringList parts;
    for (const QString& part : text.split(separator))
        if (!part.trimmed().isEmpty()) parts << part.trimmed();
    return parts;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
