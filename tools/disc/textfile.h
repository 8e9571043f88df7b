#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "problems.h"

namespace sarne::disc {

/// A line of a content file that carries something: comments (a line that begins with ";") are left out,
/// blanks at the end too.
struct Line {
    Place place;
    QString text;

    bool isBlank() const { return text.trimmed().isEmpty(); }
    /// How many blanks the line begins with.
    int indent() const;
};

/// A running text: its lines, blank ones between paragraphs.
using Lines = QList<Line>;

/// The content folder.
class ContentFolder {
  public:
    ContentFolder(QString root, Problems& problems) : root_(std::move(root)), problems_(problems) {}

    /// The lines of a UTF-8 text file; none, and an error, when it is missing or is not UTF-8.
    Lines read(const QString& file) const;
    /// The same for a file that may be missing.
    Lines readIfThere(const QString& file) const;
    /// The text files of a folder, by name, as names below the content folder.
    QStringList files(const QString& folder) const;
    /// Every file of the content, by name, as native paths.
    QStringList allFiles() const;

  private:
    QString root_;
    Problems& problems_;
};

/// A table row: cells parted by "|", blanks around them gone.
struct Row {
    Place place;
    QStringList cells;

    /// The cell at \a column, empty where the row is shorter.
    QString at(int column) const { return cells.value(column); }
};
QList<Row> tableRows(const Lines& lines);

/// A part of a file: the lines behind a line that begins with "==", whose text is the title. The lines in
/// front of the first title are a section without one.
struct Section {
    Place place;
    QString title;
    Lines lines;
};
QList<Section> sections(const Lines& lines);

/// "key: value", the key in lower case; an empty key when the line has no colon.
struct KeyValue {
    Place place;
    QString key;
    QString value;
};
KeyValue keyValue(const Line& line);

/// The parts of \a text between \a separator, trimmed, empty ones left out.
QStringList trimmedParts(const QString& text, QChar separator);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
